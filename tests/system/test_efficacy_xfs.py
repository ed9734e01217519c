from efficacy import EfficacyTest


class EfficacyOnXfs(EfficacyTest):
    fs = "xfs"
    mebibytes = 512  # of which its log takes 64
    mostReadableBytes = 33_600_000  # XFS keeps back up to 8192 blocks for itself.

    def testOnePassLeavesOnlyTheReserveReadable(self):
        self.checkRun("1")

    def testThreePassesLeaveOnlyTheReserveReadable(self):
        self.checkRun("3")

    def testAPlainUsersRunLeavesNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("1", plainUser=True)

    def testAPlainUsersThreePassesLeaveNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("3", plainUser=True)
