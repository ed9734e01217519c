from efficacy import EfficacyTest


class EfficacyOnBtrfsInThreePasses(EfficacyTest):
    fs = "btrfs"
    leastMarkedBefore = 0.6  # metadata is stored twice
    mostReadableBytes = 100_000

    def testThreePassesLeaveNothingReadableAndNoWriteFailsBeforeTheVolumeIsFull(self):
        report, markedBytes = self.checkRun("3")
        # Each pass overwrites the same blocks, so that whatever files can fill gets all three.
        self.assertGreater(report["bytesCovered"], 0.99 * markedBytes)
        self.assertGreaterEqual(report["bytesWritten"], 3 * report["bytesCovered"])

    def testAPlainUsersThreePassesLeaveNothingReadable(self):
        self.checkRun("3", plainUser=True)
