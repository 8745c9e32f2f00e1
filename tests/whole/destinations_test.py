"""The destinations beside PowerPoint, through the main form and by one command."""

from at_the_screen import (A_CHART, CELLS, FORM, HTML, IMAGES, NEW_TEXT, ONE_OF_EACH, PAGE, SELECT, WORD, AtTheScreen, unittest,
                           wait_until)

PICTURES, EDITABLE, EMBEDDED = 0, 1, 2

# What stands in it: pictures, objects, tables, pages, and the texts of captions.
IN_TEXT = """
text = document("Text")
text.TextFields.refresh()
paragraphs = [each for each in text.Text if each.supportsService("com.sun.star.text.Paragraph")]
captions = [each.String for each in paragraphs if each.ParaStyleName in ("Caption", "Beschriftung")]
print(text.GraphicObjects.Count, text.EmbeddedObjects.Count, text.TextTables.Count,
      text.CurrentController.PageCount, "|".join(captions))
"""
SHEETS = 'print(*document("Workbook").Sheets.ElementNames, sep="|")'


class TheDestinations(AtTheScreen):
    def open_book_and_text(self):
        self.open_sample(ONE_OF_EACH)
        self.assertEqual(self.screen.use("/11").ended(), 0)
        self.in_the_suite(NEW_TEXT)

    def in_text(self):
        counts, _, captions = self.in_the_suite(IN_TEXT).rstrip("\n").partition(" ")
        pictures, objects, tables, pages, *captions = f"{counts} {captions}".split(" ", 4)
        return int(pictures), int(objects), int(tables), int(pages), "".join(captions)

    def test_of_word_takes_pictures_charts_tables_and_workbooks(self):
        self.open_book_and_text()
        for number, arrives in ((PICTURES, (3, 0, 0)), (EDITABLE, (0, 2, 1)), (EMBEDDED, (0, 3, 0))):
            with self.subTest(format=number):
                before = self.in_text()
                hand = self.open_main_form()
                self.check_one_of_each_kind(hand)
                hand.do("click", FORM, f"Option1({WORD})")
                hand.do("click", FORM, f"OptionFormat({number})")
                hand.do("click", self.open_dialog(hand, WORD), "ContinueOk")
                self.assertEqual(hand.ended(120), 0, hand.said())
                after = self.in_text()
                self.assertEqual(tuple(now - then for now, then in zip(after[:3], before[:3])), arrives)
                self.assertEqual(after[3] - before[3], 3, "a page for each")

    def test_of_the_selection_to_word(self):
        self.open_book_and_text()
        for sheet, selection, arrives in (("Revenue", CELLS % "A1:F8", [(1, 0, 0), (0, 1, 0), (0, 0, 1)]),
                                          ("Fleet", A_CHART, [(1, 0, 0), (0, 1, 0), None]),
                                          ("Segment mix", "", [(1, 0, 0), (0, 1, 0), None])):
            for code, made in zip(("/512", "/612", "/812"), arrives):
                with self.subTest(sheet=sheet, code=code):
                    self.in_the_suite(SELECT, sheet, selection)
                    before = self.in_text()
                    hand = self.screen.use(code)
                    self.assertEqual(hand.ended(60), 0, hand.said())
                    after = self.in_text()
                    self.assertEqual(tuple(now - then for now, then in zip(after[:3], before[:3])),
                                     made or (0, 0, 0))
                    boxes = hand.end["boxes"]
                    self.assertEqual(len(boxes), 0 if made else 1, boxes)
                    if not made:
                        self.assertIn("This icon refers to tables only", boxes[0])

    def test_of_html_and_image_files_come_into_their_folders(self):
        opened = self.note_what_is_opened()
        self.open_sample(ONE_OF_EACH)
        hand = self.open_main_form()
        self.check_one_of_each_kind(hand)
        hand.do("click", self.open_dialog(hand, HTML), "ContinueOk")
        self.assertEqual(hand.ended(120), 0, hand.said())
        folder = self.folder / "MurvaneHTML"
        self.assertEqual(opened.read_text(), str(folder / "MurvaneHTML101.html"))
        page = (folder / "MurvaneHTML101.html").read_text()
        self.assertEqual(page.count("<img"), 2)
        self.assertGreaterEqual(page.count("<table"), 1)
        self.assertEqual(len(list((folder / "MurvaneHTML101_files").iterdir())), 2)
        self.assertNotIn("Reserved", self.in_the_suite(SHEETS))

        hand = self.open_main_form()
        dialog = self.open_dialog(hand, IMAGES)
        hand.do("follow", dialog, PAGE, href="murvane://select/imgFormat/jpeg")
        wait_until(lambda: hand.value(dialog, "Jpeg"), what="the format")
        hand.do("click", dialog, "ContinueOk")
        self.assertEqual(hand.ended(60), 0, hand.said())
        self.assertEqual(opened.read_text(), str(self.folder / "MurvaneImages"))
        files = sorted((self.folder / "MurvaneImages").iterdir())
        self.assertEqual(len(files), 3)
        for file in files:
            self.assertTrue(file.name.endswith(".jpg") and file.read_bytes().startswith(b"\xff\xd8\xff"), file)


if __name__ == "__main__":
    unittest.main()
