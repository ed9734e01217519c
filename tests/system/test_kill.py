from case import SystemTest, fillerNames, isWriting, kill9
from testkit import program
from testkit.marks import KeptFiles, MarkedData
from testkit.volume import FILLER_BYTES, MEBIBYTE

MOST_READABLE_BYTES = 17_000_000
MARKED_BYTES = 150 * MEBIBYTE


class Kill(SystemTest):
    def testAKilledRunHoldsNoMoreThanOneFillerFileAndTheNextRunCleansUp(self):
        target = self.makeVolume("ext4", 320)
        kept = KeptFiles(target.path)
        marked = MarkedData(target.path)
        marked.fill()
        marked.delete()
        target.unmount()
        before = marked.bytesReadable(target)
        self.assertGreater(before, 0.8 * target.sizeBytes)
        target.mount()
        freeBefore = target.freeBytes()

        process = self.startWipe(target)
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
        self.assertLessEqual(after, MOST_READABLE_BYTES)

    def testThePlainUsersLeftDirectoryIsTakenOverByThePlainUser(self):
        target = self.makeVolume("xfs", 320)
        freeBefore = target.freeBytes()
        process = self.startWipe(target, plainUser=True)
        program.waitUntil(lambda: isWriting(target, 1), "the second filler file being written")
        kill9(process)
        self.assertIn(".temp1", fillerNames(target))
        self.wipe(target, plainUser=True)
        self.assertNothingLeft(target)
        self.assertFreeAgain(target, freeBefore)
