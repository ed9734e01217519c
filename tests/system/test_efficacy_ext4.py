from efficacy import EfficacyTest
from testkit.volume import EXT4_RESERVE_BYTES


class EfficacyOnExt4(EfficacyTest):
    fs = "ext4"
    mostReadableBytes = EXT4_RESERVE_BYTES

    def testOnePassLeavesOnlyTheReserveReadable(self):
        self.checkRun("1")

    def testThreePassesLeaveOnlyTheReserveReadable(self):
        self.checkRun("3")

    def testAPlainUsersRunLeavesNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("1", plainUser=True)

    def testAPlainUsersThreePassesLeaveNoMoreThanTheReserveAndTheBlocksOfRoot(self):
        self.checkRun("3", plainUser=True)
