from efficacy import EfficacyTest


class EfficacyOnExt4(EfficacyTest):
    fs = "ext4"
    mostReadableBytes = 17_000_000  # ext4 keeps back up to 4096 clusters for itself.

    def testOnePassLeavesOnlyTheReserveReadable(self):
        self.checkRun("1")

    def testThreePassesLeaveOnlyTheReserveReadable(self):
        self.checkRun("3")

    def testAPlainUsersRunLeavesNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("1", plainUser=True)

    def testAPlainUsersThreePassesLeaveNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("3", plainUser=True)
