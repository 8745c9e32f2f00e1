"""What arrives on the slides in the formats that are more than pictures: by the list, and by one command."""

from at_the_screen import A_CHART, CELLS, DECK, DIALOG, FORM, LIST, ONE_OF_EACH, SELECT, AtTheScreen, unittest, wait_until

SLIDES_OF_DECK = 3
NOTICE = "MurvaneNotice"
CHART, WORKBOOK = "12DCAE26-281F-416F-A234-C3086127382E", "47BBB4CB-CE4C-4E80-A591-42D9AE74950F"

# The shapes of the last slide that are no placeholders, by what they are.
KINDS = """
def kind(shape):
    if shape.ShapeType != "com.sun.star.drawing.OLE2Shape":
        return shape.ShapeType.rsplit(".")[-1]
    if shape.LinkURL:
        return "link to " + shape.LinkURL.rsplit("/")[-1]
    return {"%s": "chart", "%s": "workbook"}.get(shape.CLSID.upper(), shape.CLSID)

pages = document("Presentation").DrawPages
for page in [pages.getByIndex(number) for number in range(pages.Count)][int(sys.argv[2]):]:
    shapes = [page.getByIndex(i) for i in range(page.Count)]
    print("+".join(kind(shape) for shape in shapes if ".presentation." not in shape.ShapeType))
""" % (CHART, WORKBOOK)

FRESH_SLIDE = """
deck = document("Presentation")
deck.CurrentController.setCurrentPage(deck.DrawPages.insertNewByIndex(deck.DrawPages.Count))
"""
LINK = "link to One%20of%20each.xlsx"

# What a double click makes of a chart, of a chart sheet's and of a range, by format.
ONE_ITEM = [("GraphicObjectShape",) * 3, ("chart", "chart", "TableShape"), ("workbook",) * 3, (LINK,) * 3]

# The sheet, what is selected there, and what the commands for editable, embedded and linked make of it.
SELECTIONS = [
    ("Revenue", CELLS % "A1:F8", "TableShape", "workbook", LINK),
    ("Revenue", CELLS % "B5", "TableShape", "workbook", LINK),
    ("Fleet", A_CHART, "chart", "workbook", LINK),
    ("Segment mix", "", "chart", "workbook", LINK),
]


class TheFormats(AtTheScreen):
    def shapes_behind(self, slides):
        return self.in_the_suite(KINDS, slides).split("\n")[:-1]

    def answer(self, hand):
        """The notice about several workbooks in a .pptx, which comes with the second one."""
        hand.wait_for(NOTICE)
        hand.do("key", NOTICE, key="Return")

    def test_of_the_list_are_what_they_say(self):
        self.open_sample(DECK, ONE_OF_EACH)
        slides = SLIDES_OF_DECK
        for number, arrives in ((1, {"chart", "TableShape"}), (2, {"workbook"}), (3, {LINK})):
            with self.subTest(format=number):
                hand = self.open_main_form()
                self.check_one_of_each_kind(hand)
                hand.do("click", FORM, f"OptionFormat({number})")
                hand.do("click", FORM, "PasteIT")
                if number == 2:
                    self.answer(hand)
                hand.wait_for(DIALOG)
                hand.do("click", DIALOG, "ContinueOk")
                self.assertEqual(hand.ended(120), 0, hand.said())
                arrived = self.shapes_behind(slides)
                self.assertEqual(len(arrived), 3)
                self.assertEqual(set(arrived), arrives)
                slides += 3

    def test_of_one_item_come_to_the_slide_in_view(self):
        self.open_sample(DECK, ONE_OF_EACH)
        hand = self.open_main_form()
        for number, arrives in enumerate(ONE_ITEM):
            hand.do("click", FORM, f"OptionFormat({number})")
            for kind, arrived in zip(("chart", "chart-sheet", "range"), arrives):
                with self.subTest(format=number, kind=kind):
                    self.in_the_suite(FRESH_SLIDE)
                    row = next(n for n, each in enumerate(hand.rows()) if each["icon"] == f"icon:{kind}")
                    pictures, boxes = hand.value(FORM, "imgChart"), len(hand.do("boxes"))
                    hand.do("click-row", FORM, LIST, row=row)
                    wait_until(lambda: hand.value(FORM, "imgChart") >= pictures + 2, what="the preview")
                    hand.do("double-click", FORM, "imgChart")
                    # With the second workbook the suite is asked what becomes of it in a .pptx.
                    if arrived == "workbook" and kind == "chart-sheet":
                        self.answer(hand)
                    wait_until(lambda: hand.do("boxes")[boxes:] == ["Done!"], what="the message")
                    self.assertEqual(self.shapes_behind(-1), [arrived])
        hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(), 0, hand.said())

    def test_of_the_selection_are_what_the_command_says_or_are_refused_in_words(self):
        self.open_sample(DECK, ONE_OF_EACH)
        self.assertEqual(self.screen.use("/11").ended(), 0)
        for sheet, selection, *arrives in SELECTIONS:
            for code, kind in zip(("/312", "/3122", "/412"), arrives):
                with self.subTest(sheet=sheet, selection=selection, code=code):
                    self.in_the_suite(FRESH_SLIDE + SELECT, sheet, selection)
                    hand = self.screen.use(code)
                    if kind == "workbook" and selection == CELLS % "B5":
                        self.answer(hand)
                    self.assertEqual(hand.ended(60), 0, hand.said())
                    self.assertEqual(self.shapes_behind(-1), [kind])
        # Cells under a chart, and of a hidden row.
        self.in_the_suite(FRESH_SLIDE + SELECT, "Fleet",
                          "at = sheet.DrawPage.getByIndex(0).Anchor\n"
                          "book.CurrentController.select(at)")
        hand = self.screen.use("/3122")
        hand.wait_for(NOTICE)
        hand.wait_for_page(NOTICE, "wbNotice", "#noticeRoot")
        text = hand.do("ask", NOTICE, "wbNotice", script="document.body.innerText")
        self.assertIn("The specified range contains embedded charts.", text)
        hand.do("key", NOTICE, key="Return")
        self.assertEqual(hand.ended(), 0)
        self.in_the_suite(FRESH_SLIDE + SELECT, "Revenue", "sheet.Rows.getByIndex(5).IsVisible = False\n" + CELLS % "A6:F6")
        hand = self.screen.use("/412")
        self.assertEqual(hand.ended(60), 1)
        (box,) = hand.end["boxes"]
        self.assertIn("nothing", box)


if __name__ == "__main__":
    unittest.main()
