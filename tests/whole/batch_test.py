"""What a batch does to the open presentation beside the plain road: other views, another deck, its cancelling."""

from at_the_screen import DECK, DIALOG, LONG_BOOK, SMALL_BOOK, AtTheScreen, unittest

SLIDES_OF_DECK = 3
SHOW_VIEW = """
dispatcher = context.ServiceManager.createInstanceWithContext("com.sun.star.frame.DispatchHelper", context)
frame = document("Presentation").CurrentController.Frame
dispatcher.executeDispatch(frame, sys.argv[2], "", 0, ())
"""


class TheBatch(AtTheScreen):
    def test_comes_to_its_slides_in_every_view_of_the_deck(self):
        self.open_sample(DECK, SMALL_BOOK)
        for view in (".uno:DiaMode", ".uno:OutlineMode", ".uno:NotesMode"):
            with self.subTest(view=view):
                hand = self.open_main_form()
                self.check_only(hand, 0, 2)
                self.in_the_suite(SHOW_VIEW, view)
                self.open_dialog(hand)
                hand.do("click", DIALOG, "ContinueOk")
                self.assertEqual(hand.ended(120), 0, hand.said())
        self.assertEqual(self.pictures_on_slides()[SLIDES_OF_DECK:], [1] * 6)

    def test_goes_to_the_deck_that_the_dialog_names_though_another_comes_to_the_front(self):
        self.open_sample(DECK, SMALL_BOOK)
        hand = self.open_main_form()
        self.check_only(hand, 0, 2)
        self.open_dialog(hand)
        self.in_the_suite('desktop.loadComponentFromURL("private:factory/simpress", "_blank", 0, ())')
        hand.do("click", DIALOG, "ContinueOk")
        self.assertEqual(hand.ended(120), 0, hand.said())
        counts = self.in_the_suite("""
decks = [each for each in desktop.Components if each.supportsService(SERVICES["Presentation"])]
print(sorted((each.Title, each.DrawPages.Count) for each in decks if each.URL))
""")
        self.assertIn(f"('{DECK}', {SLIDES_OF_DECK + 2})", counts)

    def test_ends_after_the_item_at_hand_when_it_is_cancelled(self):
        self.open_sample(DECK, LONG_BOOK)
        hand = self.open_main_form()
        self.begin_export(hand)
        hand.do("key", "Progress", key="Escape")
        hand.wait_for("MurvaneNotice")
        hand.do("key", "MurvaneNotice", key="Return")
        self.assertEqual(hand.ended(60), 0, hand.said())
        made = self.pictures_on_slides()[SLIDES_OF_DECK:]
        self.assertEqual(made, [1] * len(made))
        self.assertLess(len(made), 20)
        self.assertGreaterEqual(len(made), 2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
