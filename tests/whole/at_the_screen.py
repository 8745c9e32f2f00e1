"""What the tests of the whole program share: a screen with the sample workbook and deck open in LibreOffice."""

import atexit
import json
import pathlib
import shutil
import sys
import unittest

import xlsxwriter

HERE = pathlib.Path(__file__).resolve().parent
sys.path += [str(HERE.parents[1] / "tools" / "by_hand"), str(HERE.parent / "live")]

from program import BUILD, SAMPLES, png_lines, slides_of  # noqa: E402
from screen import Refused, Screen, wait_until  # noqa: E402

FORM, LIST, DIALOG, PAGE = "UserformObj", "listCharts", "Dialog", "wbStatus"
BOOK, DECK = "Harbour Logistics 2026.xlsx", "Board deck.pptx"
# Two charts and a table: for what takes any workbook, since it is open in a third of the time.
SMALL_BOOK = "few-charts.xlsx"
# A chart sheet, a chart and a range: for what takes one of each kind.
ONE_OF_EACH = "One of each.xlsx"
# Some fifty items that are open in a third of the time too: for what strikes an export on its way.
LONG_BOOK = "many-ranges.xlsx"
# The destinations of the main form that can be chosen, and the dialogs that they lead to.
SLIDES, WORD, HTML, IMAGES = 0, 1, 2, 4
DIALOGS = {SLIDES: DIALOG, WORD: "DialogWord", HTML: "DialogHTML", IMAGES: "DialogImageFiles"}
# A new document of one line, with its caret there.
NEW_TEXT = """
text = desktop.loadComponentFromURL("private:factory/swriter", "_blank", 0, ())
text.Text.String = "Report"
text.CurrentController.ViewCursor.gotoEnd(False)
"""
# Something selected on a sheet by a line of the suite's own language.
SELECT = """
book = document("Workbook")
sheet = book.Sheets.getByName(sys.argv[2])
book.CurrentController.setActiveSheet(sheet)
exec(sys.argv[3])
"""
CELLS = 'book.CurrentController.select(sheet.getCellRangeByName("%s"))'
A_CHART = "book.CurrentController.select(sheet.DrawPage.getByIndex(0))"
# How many pictures there are on each slide.
PICTURES = """
pages = document("Presentation").DrawPages
print([sum(shape.supportsService("com.sun.star.drawing.GraphicObjectShape") for shape in pages.getByIndex(number))
       for number in range(pages.Count)])
"""


def write_one_of_each(path):
    with xlsxwriter.Workbook(path) as book:
        table, charts, whole = book.add_worksheet("Revenue"), book.add_worksheet("Fleet"), book.add_chartsheet("Segment mix")
        head, money = book.add_format({"bold": True, "bg_color": "#1F3864"}), book.add_format({"num_format": "#,##0.0"})
        table.write_row(0, 0, ["Port", "Q1", "Q2", "Q3", "Q4", "Year"], head)
        for row in range(1, 8):
            table.write_row(row, 0, [f"port {row}", *(7 * row % 11 + quarter for quarter in range(4))], money)
            table.write_formula(row, 5, f"=SUM(B{row + 1}:E{row + 1})", money, 4 * (7 * row % 11) + 6)
        for sheet, kind in ((charts, "column"), (whole, "pie")):
            chart = book.add_chart({"type": kind})
            chart.add_series({"categories": "=Revenue!$A$2:$A$8", "values": "=Revenue!$F$2:$F$8"})
            sheet.insert_chart("B2", chart) if sheet is charts else sheet.set_chart(chart)
        book.define_name("Revenue_by_port", "=Revenue!$A$1:$F$8")


class AtTheScreen(unittest.TestCase):
    """All tests of a program share a screen and the suite on it; each has documents of its own there."""

    screen = None

    def setUp(self):
        if AtTheScreen.screen is None:
            AtTheScreen.screen = Screen(BUILD)
            atexit.register(AtTheScreen.screen.close)
        self.folder = self.screen.folder / "home"
        self.addCleanup(self.screen.clear)

    def open_sample(self, *names):
        """Copies of the samples, open in the suite."""
        names = names or (DECK, BOOK)
        for name in names:
            if name == ONE_OF_EACH:
                write_one_of_each(self.folder / name)
            else:
                shutil.copy(SAMPLES / name, self.folder / name)
        self.screen.open_in_suite(*(self.folder / name for name in names))

    def open_main_form(self):
        hand = self.screen.use("/112")
        hand.wait_for(FORM)
        wait_until(lambda: hand.caption(FORM, "NbCharts").endswith("items selected"), what="the list")
        return hand

    @staticmethod
    def check_only(hand, *rows):
        for number, row in enumerate(hand.rows()):
            if row["checked"] != (number in rows):
                hand.do("check-row", FORM, LIST, row=number)

    def check_one_of_each_kind(self, hand):
        icons = [row["icon"] for row in hand.rows()]
        self.check_only(hand, *[icons.index(f"icon:{kind}") for kind in ("chart-sheet", "chart", "range")])

    def open_dialog(self, hand, destination=SLIDES):
        """The options dialog of a destination; its name."""
        dialog = DIALOGS[destination]
        if destination != SLIDES:
            hand.do("click", FORM, f"Option1({destination})")
        hand.do("click", FORM, "PasteIT")
        hand.wait_for(dialog)
        hand.wait_for_page(dialog, PAGE)
        return dialog

    def begin_export(self, hand, destination=SLIDES):
        """Until the first items are on their way."""
        hand.do("click", self.open_dialog(hand, destination), "ContinueOk")
        hand.wait_for("Progress")
        wait_until(lambda: int("0" + hand.caption("Progress", "lblStatus").partition(" ")[0]) >= 2, what="the second item")

    def note_what_is_opened(self):
        """The file in which the path stands that the program has opened."""
        opener = self.screen.folder / "opener"
        opener.mkdir()
        self.addCleanup(shutil.rmtree, opener)
        self.addCleanup(self.screen.environment.update, PATH=self.screen.environment["PATH"])
        (opener / "xdg-open").write_text(f"#!/bin/sh\nprintf %s \"$1\" > '{opener}/opened'\n")
        (opener / "xdg-open").chmod(0o755)
        self.screen.environment["PATH"] = f"{opener}:{self.screen.environment['PATH']}"
        return opener / "opened"

    def in_the_suite(self, script, *arguments):
        """Runs a script of the suite's own language binding over the user's suite; what it prints."""
        return self.screen.in_the_suite(script, *arguments)

    def pictures_on_slides(self):
        """How many pictures each slide of the open presentation has."""
        return json.loads(self.in_the_suite(PICTURES))

    def saved_deck(self):
        """The slides of the open presentation, by way of a copy on disk, which the validator looks at."""
        copy = self.folder / "copy.pptx"
        self.in_the_suite("""
deck = document("Presentation")
deck.storeToURL(uno.systemPathToFileUrl(sys.argv[2]), filter("Impress MS PowerPoint 2007 XML"))
""", copy)
        return slides_of(copy)


__all__ = ["A_CHART", "AtTheScreen", "BOOK", "BUILD", "CELLS", "DECK", "DIALOG", "FORM", "HTML", "IMAGES", "LIST", "LONG_BOOK", "NEW_TEXT",
           "ONE_OF_EACH", "PAGE", "Refused", "SELECT", "SLIDES", "SMALL_BOOK", "Screen", "WORD", "png_lines", "slides_of", "unittest", "wait_until"]
