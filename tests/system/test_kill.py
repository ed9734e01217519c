from case import SystemTest, fillerNames, isWriting, kill9
from testkit import program
from testkit.marks import KeptFiles, MarkedData
from testkit.volume import EXT4_RESERVE_BYTES, FILLER_BYTES

# Of several passes, so that a file is written for some time.
LONG = "3"


class Kill(SystemTest):
    def testAKilledRunHoldsNoMoreThanOneFillerFileAndTheNextRunCleansUp(self):
        target = self.makeVolume("ext4", 320)
        kept = KeptFiles(target.path)
        marked = MarkedData(target.path)
        before = marked.leaveDeleted(target)
        self.assertGreater(before, 0.8 * target.sizeBytes)
        freeBefore = target.freeBytes()

        process = self.startWipe(target, LONG)
        program.waitUntil(lambda: isWriting(target, 1), "the second filler file being written")
        self.assertLess(target.freeBytes(), freeBefore - FILLER_BYTES, "the first filler file's space is held")
        kill9(process)
        self.assertFreeAgain(target, freeBefore - FILLER_BYTES)
        self.assertIn(".temp1", fillerNames(target))

        self.wipe(target)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
        self.assertEqual(kept.differences(), [])
        target.unmount()
        after = marked.bytesReadable(target)
        print(f"\nkilled, then run again: {before} -> {after} bytes readable", flush=True)
        self.assertLessEqual(after, EXT4_RESERVE_BYTES)

    def testThePlainUsersLeftDirectoryIsTakenOverByThePlainUser(self):
        target = self.makeVolume("xfs", 320)
        freeBefore = target.freeBytes()
        process = self.startWipe(target, LONG, plainUser=True)
        program.waitUntil(lambda: isWriting(target, 1), "the second filler file being written")
        kill9(process)
        self.assertIn(".temp1", fillerNames(target))
        self.wipe(target, plainUser=True)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
