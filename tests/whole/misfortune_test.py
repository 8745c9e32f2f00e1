"""What users do not plan for: the suite dies, the workbook is closed, names are hostile, the list is long."""

import contextlib
import shutil
import subprocess

import xlsxwriter

from at_the_screen import (BUILD, DECK, FORM, HTML, IMAGES, LIST, LONG_BOOK, NEW_TEXT, SAMPLES, SLIDES, SMALL_BOOK, WORD, AtTheScreen,
                           Refused, unittest, wait_until)

NOTICE = "MurvaneNotice"
# As a macro or another program does.
CLOSE_BY_CALL = """
from com.sun.star.util import CloseVetoException
try:
    document(sys.argv[2]).close(True)
except CloseVetoException:
    print("waits")
"""
OPEN_KINDS = """
print([kind for kind, service in SERVICES.items() if any(each.supportsService(service) for each in desktop.Components)])
"""


class WithoutTheSuite(AtTheScreen):
    def setUp(self):
        super().setUp()
        if self.screen.has_suite():
            self.screen.kill_suite()
            self.screen.clear()

    def test_a_suite_that_dies_under_the_form_or_during_the_export_ends_the_program_with_a_report(self):
        for destination in (None, SLIDES, WORD, HTML):
            with self.subTest(destination=destination):
                self.open_sample(*([DECK] if destination == SLIDES else []), SMALL_BOOK if destination is None else LONG_BOOK)
                hand = self.open_main_form()
                if destination == WORD:
                    self.in_the_suite(NEW_TEXT)
                if destination is not None:
                    self.begin_export(hand, destination)
                self.screen.kill_suite()
                if destination is None:
                    with contextlib.suppress(AssertionError, Refused):  # It may have ended, or the form gone, by itself.
                        hand.do("click-row", FORM, LIST, row=2)
                self.assertEqual(hand.ended(15), 1)
                self.assertIn("LibreOffice has ended", hand.said())
        self.assertEqual(list((self.folder / "MurvaneHTML").iterdir()), [], "half a page")

    def test_a_suite_that_is_ended_during_an_export_does_not_run_on_unseen(self):
        self.open_sample(LONG_BOOK)
        hand = self.open_main_form()
        self.in_the_suite(NEW_TEXT)
        self.in_the_suite("document('Workbook').setModified(True)")
        self.begin_export(hand, WORD)
        self.screen.press("Untitled", "ctrl+q")

        def is_told():
            # Each of the two documents is asked about.
            with contextlib.suppress(IndexError, subprocess.CalledProcessError):
                self.screen.press("Save Document", "alt+n")
            return NOTICE in hand.do("forms")

        wait_until(is_told, what="the notice")
        hand.do("key", NOTICE, key="Return")
        self.assertEqual(hand.ended(), 0)
        # Which window it asks first decides whether it ends or shows what can be opened.
        wait_until(lambda: not self.screen.has_suite() or self.screen.window_named("LibreOffice"), what="the suite")

    def test_commands_without_a_suite_end_in_silence_or_with_their_notice(self):
        hand = self.screen.use("/112")
        self.assertEqual((hand.ended(), hand.said()), (0, ""))
        layout = self.screen.use("/006")
        layout.wait_for(NOTICE)
        layout.wait_for_page(NOTICE, "wbNotice", "#noticeRoot")
        text = layout.do("ask", NOTICE, "wbNotice", script="document.body.innerText")
        self.assertIn("An Excel workbook must be open to set slide position.", text)
        layout.do("key", NOTICE, key="Return")
        self.assertEqual(layout.ended(), 0)
        self.assertNotRegex(layout.said(), "OpenGL|graphics")
        about = self.screen.use("/004")
        about.wait_for("MurvaneAbout")
        about.do("key", "MurvaneAbout", key="Escape")
        self.assertEqual(about.ended(), 0)

    def test_the_code_without_a_form_ends_with_the_report_of_a_failure(self):
        hand = self.screen.use("/922")
        self.assertEqual(hand.ended(), 1)
        (box,) = hand.end["boxes"]
        self.assertIn("unhandled failure 91", box)

    def test_a_screen_that_is_named_and_not_there_is_no_crash(self):
        environment = {**self.screen.environment, "DISPLAY": ":4999"}
        ended = subprocess.run([BUILD / "bin" / "murvane", "/006"], env=environment, capture_output=True, text=True,
                               timeout=30)
        self.assertGreaterEqual(ended.returncode, 0, ended.stderr)


class UnderTheForm(AtTheScreen):
    def test_a_workbook_that_is_closed_leaves_the_form_alive(self):
        self.open_sample(SMALL_BOOK)
        hand = self.open_main_form()
        self.in_the_suite("close(document('Workbook'))")
        hand.do("click-row", FORM, LIST, row=2)
        for deed, control in (("double-click", "imgChart"), ("click", "PasteIT")):
            hand.do(deed, FORM, control)
            hand.wait_for(NOTICE)
            hand.do("key", NOTICE, key="Return")
            wait_until(lambda: NOTICE not in hand.do("forms"))
        hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(), 0, hand.said())

    def test_a_document_that_is_closed_during_an_export_is_told_and_leaves_nothing_half_made(self):
        self.note_what_is_opened()
        for destination, kind, window in ((WORD, "Workbook", None), (HTML, "Workbook", LONG_BOOK), (IMAGES, "Workbook", None),
                                          (WORD, "Text", None), (WORD, "Text", "Untitled"), (SLIDES, "Presentation", DECK)):
            with self.subTest(destination=destination, closed=kind, at=window):
                self.open_sample(*([DECK] if destination == SLIDES else []), LONG_BOOK)
                hand = self.open_main_form()
                if destination == WORD:
                    self.in_the_suite(NEW_TEXT)
                self.in_the_suite(f"document('{kind}').setModified(True)")
                self.begin_export(hand, destination)
                if window:
                    self.screen.press(window, "ctrl+w")
                    wait_until(lambda: self.screen.window_named("Save Document"), what="the question")
                    self.screen.press("Save Document", "alt+n")
                else:
                    self.assertIn("waits", self.in_the_suite(CLOSE_BY_CALL, kind))
                hand.wait_for(NOTICE)
                hand.wait_for_page(NOTICE, "wbNotice", "#noticeRoot")
                self.assertRegex(hand.do("ask", NOTICE, "wbNotice", script="document.body.innerText"),
                                 r"The (workbook|document|presentation) has been closed\. \d+ of 45 items were exported\.")
                self.assertNotIn(kind, self.in_the_suite(OPEN_KINDS))
                hand.do("key", NOTICE, key="Return")
                self.assertEqual(hand.ended(), 0)
                pages = self.folder / "MurvaneHTML"
                self.assertEqual([p.name for p in pages.glob(".*")], [])
                self.screen.clear()

    def test_a_program_that_is_killed_while_it_publishes_leaves_no_page_and_the_next_clears_up(self):
        self.note_what_is_opened()
        self.open_sample(LONG_BOOK)
        hand = self.open_main_form()
        self.begin_export(hand, HTML)
        hand.process.kill()
        pages = self.folder / "MurvaneHTML"
        self.assertEqual([p.name for p in pages.iterdir() if not p.name.startswith(".")], [])
        hand.process.wait()
        hand = self.open_main_form()
        self.check_only(hand, 0, 1)
        hand.do("click", self.open_dialog(hand, HTML), "ContinueOk")
        self.assertEqual(hand.ended(120), 0, hand.said())
        self.assertEqual(sorted(p.name for p in pages.iterdir()), ["MurvaneHTML101.html", "MurvaneHTML101_files"])

    def test_clicks_during_an_export_change_nothing(self):
        self.open_sample(DECK, LONG_BOOK)
        hand = self.open_main_form()
        wanted = range(24)  # Twice as many as there are clicks: each may take as long as an item.
        self.check_only(hand, *wanted)
        self.begin_export(hand)
        for _ in range(3):
            hand.do("click-column", FORM, LIST, column=0)
            hand.do("check-row", FORM, LIST, row=1)
            hand.do("click", FORM, "PasteIT")
            hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(120), 0, hand.said())
        self.assertEqual(len(self.pictures_on_slides()), 3 + len(wanted))

    def test_names_full_of_markup_stay_texts(self):
        hostile = SAMPLES / "bad-inputs" / "odd-names.xlsx"
        self.open_sample(SMALL_BOOK)
        shutil.copy(hostile, self.folder / hostile.name)
        self.screen.open_in_suite(self.folder / hostile.name)
        hand = self.open_main_form()
        names = [row["texts"][0] for row in hand.rows()]
        self.assertTrue([name for name in names if "<" in name], names)
        hand.do("click", FORM, "PasteIT")
        hand.wait_for(NOTICE)
        hand.wait_for_page(NOTICE, "wbNotice", "#noticeRoot")
        self.assertEqual(hand.do("ask", NOTICE, "wbNotice", script="document.scripts.length"), 0)
        hand.do("key", NOTICE, key="Escape")


class ALongList(AtTheScreen):
    def test_of_two_thousand_items_comes_up_and_scrolls_unless_its_loading_is_ended(self):
        book = self.folder / "long.xlsx"
        with xlsxwriter.Workbook(book) as workbook:
            sheet = workbook.add_worksheet("Figures")
            for row in range(2000):
                sheet.write_row(row, 0, [row, row * row])
                workbook.define_name(f"Figures_{row + 1}", f"=Figures!$A${row + 1}:$B${row + 1}")
        self.screen.open_in_suite(book)
        unwanted = self.screen.use("/112")
        unwanted.wait_for("MurvaneLoad")
        unwanted.do("key", "MurvaneLoad", key="Alt+F4")
        self.assertEqual(unwanted.ended(10), 0, unwanted.said())
        hand = self.open_main_form()
        self.assertEqual(len(hand.rows()), 2000)
        hand.do("click-row", FORM, LIST, row=1990)
        wait_until(lambda: hand.do("rows", FORM, LIST)["selected"] == 1990)
        hand.do("key", FORM, key="Alt+F4")
        self.assertEqual(hand.ended(120), 0, hand.said())


if __name__ == "__main__":
    unittest.main(verbosity=2)
