"""The whole road by hand: from the list of the open workbook to the slides of the open presentation."""

import subprocess

from at_the_screen import DECK, DIALOG, FORM, LIST, PAGE, SMALL_BOOK, AtTheScreen, png_lines, unittest, wait_until

SLIDES_OF_DECK = 3
SHEET, ORDER, CAPTION = 1, 3, 4


def shown_name(row):
    texts = row["texts"]
    return texts[SHEET] if texts[0] == "{Chart Sheet}" else texts[0]


class TheRoad(AtTheScreen):
    def choose(self, hand):
        """Two rows and all behind the tenth out, one moved down, one captioned; the rows as they then stand."""
        self.check_only(hand, *range(10))
        before = hand.rows()
        hand.do("check-row", FORM, LIST, row=1)
        hand.do("check-row", FORM, LIST, row=4)
        hand.do("click-row", FORM, LIST, row=2)
        wait_until(lambda: hand.do("rows", FORM, LIST)["selected"] == 2)
        hand.do("click", FORM, "Down")
        wait_until(lambda: hand.rows()[3]["texts"][0] == before[2]["texts"][0], what="the move")
        hand.do("click", FORM, "AddCaption")
        wait_until(lambda: hand.do("control", FORM, "TitlesFrame")["visible"])
        hand.do("key", FORM, key="Tab")
        hand.do("click", FORM, "SlideTitle")
        hand.do("key", FORM, key="Ctrl+A")
        hand.do("type", FORM, text='Typed <b> & "quoted"')
        wait_until(lambda: hand.rows()[3]["texts"][CAPTION] == 'Typed <b> & "quoted"', what="the caption")
        rows = hand.rows()
        self.assertEqual([row["checked"] for row in rows].count(False),
                         [row["checked"] for row in before].count(False) + 2)
        return rows

    def toggle(self, hand, key):
        def state():
            return hand.value(DIALOG, key)
        before = state()
        hand.do("follow", DIALOG, PAGE, href=f"murvane://toggle/{key}")
        wait_until(lambda: state() != before, what=f"the toggle of {key}")
        hand.wait_for_page(DIALOG, PAGE)

    def test_leads_from_the_list_to_the_slides_and_the_choice_is_found_again(self):
        self.open_sample()
        hand = self.open_main_form()
        rows = self.choose(hand)
        wanted = [row for row in rows if row["checked"]]
        self.assertEqual([row["texts"][ORDER] for row in wanted], [str(n + 1) for n in range(len(wanted))])

        self.open_dialog(hand)
        with_titles = hand.value(DIALOG, "slideTitle")
        if not with_titles:
            self.toggle(hand, "slideTitle")
        if not hand.value(DIALOG, "sourceInc"):
            self.toggle(hand, "sourceInc")
        hand.do("click", DIALOG, "ContinueOk")
        self.assertEqual(hand.ended(180), 0, hand.said())

        slides = self.saved_deck()[SLIDES_OF_DECK:]
        self.assertEqual(len(slides), len(wanted))
        for row, slide in zip(wanted, slides):
            with self.subTest(item=row["texts"][0]):
                caption = row["texts"][CAPTION]
                self.assertEqual(slide.title or "", caption)
                self.assertIn(str(self.folder / "Harbour Logistics 2026.xlsx"), slide.texts)
                (picture,) = slide.pictures
                self.assertEqual(picture["description"], caption or shown_name(row))
                self.assertGreater(png_lines(picture["bytes"]), 8, "blank")

        again = self.open_main_form()
        self.assertEqual([(row["checked"], row["texts"][:5]) for row in again.rows()],
                         [(row["checked"], row["texts"][:5]) for row in rows])
        again.do("key", FORM, key="Alt+F4")
        self.assertEqual(again.ended(), 0, again.said())

    def test_keeps_the_list_in_the_workbook_that_is_saved_from_another_window_under_another_name(self):
        self.open_sample(SMALL_BOOK)
        hand = self.open_main_form()
        hand.do("click-row", FORM, LIST, row=0)
        hand.do("click", FORM, "AddCaption")
        wait_until(lambda: hand.do("control", FORM, "TitlesFrame")["visible"])
        hand.do("click", FORM, "SlideTitle")
        hand.do("key", FORM, key="Ctrl+A")
        hand.do("type", FORM, text="Typed")
        wait_until(lambda: hand.rows()[0]["texts"][CAPTION] == "Typed", what="the caption")
        window = self.screen.window_named(SMALL_BOOK)[0]
        subprocess.run(["xdotool", "windowactivate", window], env=self.screen.environment, check=True)
        stored = """
book = document("Workbook")
print(book.Sheets.getByName("kukukukuZichron").getCellRangeByName("T1").String, *book.UndoManager.getAllUndoActionTitles())
"""
        wait_until(lambda: self.in_the_suite(stored).strip() == "Typed", what="the caption in the store, by no step of Undo")
        self.in_the_suite('document("Workbook").storeAsURL(uno.systemPathToFileUrl(sys.argv[2]), ())', self.folder / "Other.ods")
        second = self.screen.use("/112")
        second.wait_for("MurvaneNotice")
        second.do("key", "MurvaneNotice", key="Escape")
        self.assertEqual(second.ended(), 0, second.said())
        self.in_the_suite('close(document("Workbook"))')
        hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(), 0, hand.said())

    def test_leads_to_the_slides_that_the_user_numbers(self):
        self.open_sample(DECK, SMALL_BOOK)
        hand = self.open_main_form()
        hand.do("click", FORM, "Check1")
        wait_until(lambda: not any(row["checked"] for row in hand.rows()), what="the unchecking")
        hand.do("click", FORM, "OptionPredefSlides")
        wait_until(lambda: hand.do("control", FORM, "TextBox10")["visible"])
        for row, number in ((0, "3"), (2, "2a")):
            hand.do("check-row", FORM, LIST, row=row)
            hand.do("click-row", FORM, LIST, row=row)
            wait_until(lambda: hand.do("rows", FORM, LIST)["selected"] == row)
            hand.do("click", FORM, "TextBox10")
            hand.do("key", FORM, key="Ctrl+A")
            hand.do("type", FORM, text=number)
            wait_until(lambda: hand.rows()[row]["texts"][2] == number[0], what="the slide number")
        self.open_dialog(hand)
        hand.do("key", DIALOG, key="Return")
        self.assertEqual(hand.ended(120), 0, hand.said())
        self.assertEqual(self.pictures_on_slides(), [0, 1, 1])

    def test_can_be_walked_by_the_keyboard_and_heard(self):
        self.open_sample(DECK, SMALL_BOOK)
        hand = self.open_main_form()
        stops = hand.do("tab-order", FORM)
        self.assertEqual([stop for stop in stops if not stop[1].strip()], [])
        names = [stop[0] for stop in stops]
        first_of_frames = ["Check1", "listCharts", "Up", "Option1", "OptionFormat", "OptionNewSlides", "PasteIT"]
        self.assertEqual(sorted(first_of_frames, key=names.index), first_of_frames)
        hand.do("click-row", FORM, LIST, row=0)
        hand.do("key", FORM, key="Space")
        wait_until(lambda: not hand.rows()[0]["checked"], what="the space bar")
        while hand.do("focus", FORM) != "PasteIT":
            hand.do("key", FORM, key="Tab")
        hand.do("key", FORM, key="Return")
        hand.wait_for(DIALOG)
        self.assertEqual([stop for stop in hand.do("tab-order", DIALOG) if not stop[1].strip()], [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
