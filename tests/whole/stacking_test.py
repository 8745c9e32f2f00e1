"""Which window stands above which, with a window manager and without, where nobody else sees to it."""

import subprocess

from at_the_screen import DECK, DIALOG, FORM, PAGE, SMALL_BOOK, AtTheScreen, unittest, wait_until

MIDDLE = ("800", "600")


class TheWindows(AtTheScreen):
    def window_in_the_middle(self):
        """All forms come up in the middle of the screen."""
        said = subprocess.run(["xdotool", "mousemove", *MIDDLE, "getmouselocation", "--shell"], check=True,
                              env=self.screen.environment, capture_output=True, text=True).stdout
        return next(line for line in said.splitlines() if line.startswith("WINDOW="))

    def wait_for_in_the_middle(self, window, name):
        wait_until(lambda: self.window_in_the_middle() == window, 5, f"{name} on top")

    def test_the_options_stand_above_the_main_form_also_after_a_tool(self):
        self.open_sample(DECK, SMALL_BOOK)
        self.check()
        self.screen.end_manager()
        self.check()

    def check(self):
        hand = self.open_main_form()
        hand.settle(FORM)
        main_form = self.window_in_the_middle()
        self.open_dialog(hand)
        hand.settle(DIALOG)
        options = self.window_in_the_middle()
        self.assertNotEqual(options, main_form)
        for key, tool in (("style", "PredefinedStyles"), ("layout", "LayoutForm")):
            with self.subTest(tool=tool):
                hand.do("follow", DIALOG, PAGE, href=f"murvane://action/{key}")
                hand.wait_for(tool)
                hand.settle(tool)
                self.assertNotIn(self.window_in_the_middle(), (options, main_form))
                hand.do("key", tool, key="Escape")
                wait_until(lambda: tool not in hand.do("forms"), what=f"the end of {tool}")
                self.wait_for_in_the_middle(options, "the options")
        hand.do("key", DIALOG, key="Escape")
        wait_until(lambda: DIALOG not in hand.do("forms"))
        self.wait_for_in_the_middle(main_form, "the main form")
        hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(), 0, hand.said())


if __name__ == "__main__":
    unittest.main(verbosity=2)
