"""The list of drives while volumes come and go."""

from case import fillerNames
from testkit import program
from window_case import FAST, WindowTest


class ComingAndGoing(WindowTest):
    def assertHighlighted(self, window, name):
        """Its tile, and no other."""
        def selected():
            return [tile.name for tile in window.findAll("list item") if window.hasState(tile, "selected")]
        window.waitFor(lambda: selected() == [name], f"only {name} being selected")

    def testAVolumeMountedMeanwhileAppearsWithAReloadAndTheChoiceStays(self):
        chosen = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.choose(window, chosen)
        added = self.makeVolume("ext4", 24)
        self.assertFalse(window.isShowing("list item", added.name))
        window.pressButton("Reload Drives")
        window.find("list item", added.name)
        self.assertHighlighted(window, chosen.name)
        self.assertDescribed(window, chosen)
        self.choose(window, added)
        self.assertHighlighted(window, added.name)

    def testAVolumeUnmountedMeanwhileGoesWithAReloadAndNextActsOnTheHighlightedOne(self):
        gone, chosen, last = (self.makeVolume("ext4", size) for size in (16, 24, 32))
        window = self.startWindow()
        self.choose(window, chosen)
        gone.unmount()
        window.pressButton("Reload Drives")
        window.waitUntilGone("list item", gone.name)
        self.assertHighlighted(window, chosen.name)
        self.assertDescribed(window, chosen)
        free = self.description(window)["Free Space :"]

        window.pressButton("Next")
        self.chooseMethod(window, FAST)
        self.assertTrue(window.isShowing("label", free))
        self.proceed(window)
        self.answer(window, "Please!! \n Close all the files related to drive , as well as do not add any data to "
                    "drive during process.")
        program.waitUntil(lambda: fillerNames(chosen), "the run's files on the highlighted volume")
        self.assertNothingLeft(last)
        self.expectSuccess(window, chosen)

    def testWhenTheChosenVolumeIsGoneTheHighlightedOneIsTheDescribedOne(self):
        first, chosen = self.makeVolume("ext4", 16), self.makeVolume("ext4", 24)
        window = self.startWindow()
        self.choose(window, chosen)
        chosen.unmount()
        window.pressButton("Reload Drives")
        window.waitUntilGone("list item", chosen.name)
        described = self.description(window)["Drive Name :"]
        self.assertHighlighted(window, described)
        self.choose(window, first)
        self.assertHighlighted(window, first.name)

    def testAVolumeThatComesBackAfterItWasGoneCanBeErased(self):
        target = self.makeVolume("ext4", 16)
        window = self.startWindow()
        self.choose(window, target)
        target.unmount()
        window.pressButton("Reload Drives")
        window.waitUntilGone("list item", target.name)
        target.mount()
        window.pressButton("Reload Drives")
        self.startRun(window, target)
        self.expectSuccess(window, target)
