from efficacy import EfficacyTest


class BtrfsStaysWritable(EfficacyTest):
    fs = "btrfs"
    mebibytes = 1536
    leastMarkedBefore = 0.6
    mostReadableBytes = 100_000

    def testARunOnALargerVolumeDoesNotTurnItReadOnly(self):
        self.checkRun("1")
