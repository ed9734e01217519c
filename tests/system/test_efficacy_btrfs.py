from efficacy import EfficacyTest


class EfficacyOnBtrfs(EfficacyTest):
    fs = "btrfs"
    leastMarkedBefore = 0.6  # metadata is stored twice
    mostReadableBytes = 100_000

    def testOnePassLeavesNothingReadable(self):
        self.checkRun("1")

    def testAPlainUsersRunLeavesNothingReadable(self):
        self.checkRun("1", plainUser=True)
