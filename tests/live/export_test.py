"""The sample workbook, from the command line to all that can be made of it."""

import json
import pathlib
import re
import subprocess
import tempfile
import unittest
from xml.etree import ElementTree

import xlsxwriter
from program import SAMPLES, Package, ProgramTest, png_lines, png_size, slides_of
from validator import faults

BOOK = SAMPLES / "Harbour Logistics 2026.xlsx"
DECK = SAMPLES / "Board deck.pptx"
SLIDES_OF_DECK = 3
WIDTH, HEIGHT = 960.0, 540.0
ITEMS, CHARTS, RANGES = 24, 14, 10
W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"


def said_by(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def body_of(document):
    return ElementTree.fromstring(Package(document).read("word/document.xml"))


def named(item):
    return f'{item["name"]}@{item["sheet"]}'


class TheSampleWorkbook(ProgramTest):
    """All tests share one list of the items and one export of them all; each run starts a suite, so it answers as much as it can."""

    listed = None
    exported = None

    def items(self):
        if TheSampleWorkbook.listed is None:
            code, output, errors = self.run_program(BOOK, "--list", "--json")
            self.assertEqual(code, 0, errors)
            TheSampleWorkbook.listed = json.loads(output)["items"]
        return TheSampleWorkbook.listed

    def export(self, *arguments):
        output = self.folder / "Result.pptx"
        code, _, errors = self.run_program(BOOK, "--into", DECK, "--output", output, *arguments)
        self.assertEqual(code, 0, errors)
        self.assert_nothing_left()
        return slides_of(output)

    def whole(self):
        """The slides of all items that are checked, and the folder of all else that came out of the same run."""
        if TheSampleWorkbook.exported is None:
            TheSampleWorkbook.exported = ()
            place = pathlib.Path(tempfile.mkdtemp(dir=self.cache))
            outputs = [part for name in ("r.docx", "r.pdf", "page", "images") for part in ("--output", place / name)]
            slides = self.export("--to", "slides", "--to", "word", "--to", "pdf", "--to", "html", "--to", "images", *outputs,
                                 "--titles", "--source", "--cover", r"Harbour Logistics\nin 2026", "--image-format", "jpeg",
                                 "--captions-below", "--same-width")
            TheSampleWorkbook.exported = slides[SLIDES_OF_DECK:], place
        self.assertTrue(TheSampleWorkbook.exported, "its export has failed in a test before")
        return TheSampleWorkbook.exported

    def test_is_listed_with_its_stored_choice_and_without_what_is_hidden(self):
        items = self.items()
        self.assertTrue([item for item in items if item["caption"]])
        self.assertTrue([item for item in items if not item["checked"]], "the range of several areas")
        self.assertFalse([item for item in items if item["sheet"] in ("Workings", "kukukukuZichron")])

    def test_arrives_whole_in_list_order_with_titles_and_source_and_is_never_written_over(self):
        checked = [item for item in self.items() if item["checked"]]
        before = BOOK.read_bytes(), DECK.read_bytes()
        slides, _ = self.whole()
        self.assertGreaterEqual(len(checked), 12)
        self.assertEqual(len(slides), len(checked))
        for item, slide in zip(checked, slides):
            with self.subTest(item=item["name"], sheet=item["sheet"]):
                self.assertEqual(slide.title, item["caption"])
                self.assertIn(str(BOOK), slide.texts)
                (picture,) = slide.pictures
                # The item's own name where there is no caption; a chart sheet's name is its sheet's.
                name = item["sheet"] if item["name"] == "{Chart Sheet}" else item["name"]
                self.assertEqual(picture["description"], item["caption"] or name)
                self.assert_sharp_and_in_the_middle(picture)

        (self.folder / "Result.pptx").touch()
        for output in (self.folder / "Result.pptx", DECK):
            code, _, errors = self.run_program(BOOK, "--into", DECK, "--output", output)
            self.assertEqual(code, 2)
            self.assertIn(output.name, errors)
        self.assertEqual((BOOK.read_bytes(), DECK.read_bytes()), before)

    def assert_sharp_and_in_the_middle(self, picture):
        self.assertGreater(png_lines(picture["bytes"]), 8, "blank")
        self.assertLessEqual(picture["width"], WIDTH * 0.9 + 0.05)
        self.assertLessEqual(picture["height"], HEIGHT * 0.9 + 0.05)
        self.assertAlmostEqual(picture["left"] + picture["width"] / 2, WIDTH / 2, delta=0.1)
        self.assertAlmostEqual(picture["top"] + picture["height"] / 2, HEIGHT / 2, delta=0.1)
        # Three pixels for each of the screen's; more where the picture had to be made smaller.
        pixels_wide, pixels_high = png_size(picture["bytes"])
        self.assertGreater(pixels_wide / (picture["width"] / 72), 287)
        self.assertGreater(pixels_high / (picture["height"] / 72), 287)

    def test_goes_to_the_other_destinations_in_the_same_run(self):
        _, place = self.whole()
        document, pdf, page, images = (place / name for name in ("r.docx", "r.pdf", "page", "images"))
        self.assertEqual(faults(document), [])
        body = body_of(document)
        self.assertEqual(len(list(body.iter(W + "drawing"))), ITEMS)
        self.assertEqual(len(list(body.iter(W + "pageBreakBefore"))), ITEMS - 1)

        lines = (line.partition(":") for line in said_by("pdfinfo", pdf).splitlines())
        said = {name: value.strip() for name, _, value in lines}
        self.assertEqual((said["Pages"], said["Tagged"], said["Title"]), (str(ITEMS + 1), "yes", BOOK.name))
        pages = said_by("pdftotext", "-layout", pdf, "-").split("\f")
        self.assertIn("in 2026", pages[0])
        self.assertTrue(all(str(BOOK) in page for page in pages[1:ITEMS + 1]), "each page names its source")
        self.assertIn("Westkai", "".join(pages), "cells are text")

        (html,) = page.glob("*.html")
        pictures = re.findall(r'src=["\']?([^"\'> ]+)', html.read_text())
        self.assertEqual(len(pictures), ITEMS)
        self.assertTrue(all((page / picture).is_file() for picture in pictures), pictures)
        self.assertEqual(len(list(images.glob("*.jpg"))), ITEMS)
        self.assertTrue(all(file.read_bytes()[:3] == b"\xff\xd8\xff" for file in images.iterdir()))

    def test_becomes_charts_and_tables_that_can_be_edited(self):
        document, page = self.folder / "r.docx", self.folder / "page"
        code, _, errors = self.run_program(BOOK, "--format", "editable", "--yes", "--to", "word", "--output", document,
                                           "--to", "html", "--output", page)
        self.assertEqual(code, 0, errors)
        self.assertEqual(faults(document), [])
        charts = [name for name in Package(document).names if re.fullmatch(r"word/charts/chart[^/]+\.xml", name)]
        self.assertEqual((len(charts), len(list(body_of(document).iter(W + "tbl")))), (CHARTS, RANGES))
        (html,) = page.glob("*.html")
        self.assertEqual(subprocess.run(["tidy", "-e", "-q", "-utf8", html], capture_output=True, text=True).stderr, "")
        self.assertGreaterEqual(html.read_text().count("<table"), RANGES)
        self.assertIn("Westkai", html.read_text())

    def one_of_each_kind(self):
        kinds = {item["kind"]: item for item in self.items() if item["checked"]}
        self.assertEqual(len(kinds), 3, "a chart, a chart sheet and a range")
        return list(kinds.values())

    def in_vectors(self, kind, sign, items, *arguments):
        """The new slides of a presentation; it and a document beside it hold a vector for each item."""
        document = self.folder / "Result.docx"
        chosen = [part for item in items for part in ("--items", named(item))]
        slides = self.export(*chosen, "--pictures", kind, "--to", "slides", "--to", "word", "--output", document,
                             *arguments)[SLIDES_OF_DECK:]
        self.assertEqual(faults(document), [])
        for package in (Package(self.folder / "Result.pptx"), Package(document)):
            vectors = [package.file.read(name) for name in package.file.namelist() if name.endswith("." + kind)]
            self.assertEqual(len(vectors), len(items))
            for one in vectors:
                self.assertIn(sign, one[:200])
                self.assertNotIn(b"DOCTYPE", one)
        return slides

    def in_pixels(self, item):
        """The picture of an item among those of them all."""
        checked = [named(each) for each in self.items() if each["checked"]]
        slides = dict(zip(checked, self.whole()[0], strict=True))
        (picture,) = slides[named(item)].pictures
        return picture

    def test_goes_in_vectors_to_where_its_pictures_stand(self):
        items = self.one_of_each_kind()
        order = [part for item in items for part in ("--order", named(item))]
        for item, slide in zip(items, self.in_vectors("emf", b" EMF", items, *order), strict=True):
            (picture,), was = slide.pictures, self.in_pixels(item)
            for side in ("left", "top", "width", "height"):
                self.assertAlmostEqual(picture[side], was[side], delta=0.6)

    def test_takes_items_captions_order_placement_and_style_and_the_suite_draws_what_comes_out(self):
        items = self.one_of_each_kind()
        captions = self.folder / "captions.csv"
        captions.write_text("item,sheet,caption,slide\n" + "".join(
            f'"{item["name"]}","{item["sheet"]}","Caption, {n} <&> ""quoted"" é",\n' for n, item in enumerate(items)),
            encoding="utf-8")
        slides = self.in_vectors("svg", b"<svg", items, "--titles", "--captions", captions, "--style", "rounded",
                                 "--width", "0.5", "--left", "0.25", "--top", "0.3",
                                 *[part for item in reversed(items) for part in ("--order", named(item))])
        self.assertEqual([slide.title for slide in slides], [f'Caption, {n} <&> "quoted" é' for n in (2, 1, 0)])
        for item, slide in zip(reversed(items), slides, strict=True):
            (picture,), was = slide.pictures, self.in_pixels(item)
            self.assertAlmostEqual(picture["height"] / picture["width"], was["height"] / was["width"], delta=0.005)
            self.assertAlmostEqual(picture["left"], WIDTH * 0.25, delta=0.1)
            self.assertAlmostEqual(picture["top"], HEIGHT * 0.3, delta=0.1)
            self.assertLessEqual(picture["width"], WIDTH * 0.5 + 0.1)

        self.as_pdf(self.folder / "Result.pptx")
        text = said_by("pdftotext", self.folder / "Result.pdf", "-")
        self.assertEqual(text.count("\f"), SLIDES_OF_DECK + len(slides))

    def test_says_what_tables_lose_before_it_writes_any(self):
        path, output = self.folder / "losses.xlsx", self.folder / "losses.pptx"
        book = xlsxwriter.Workbook(path)
        sheet, bold = book.add_worksheet("Data"), book.add_format({"bold": True})
        sheet.write_column("B1", [1, 2, 3, 4])
        sheet.write_rich_string("A1", "plain and ", bold, "bold")
        sheet.write("A2", "two\nlines, one look")
        sheet.write_comment("A3", "a note covers nothing")
        sheet.conditional_format("B1:B4", {"type": "icon_set", "icon_style": "3_arrows"})
        sheet.insert_textbox("E5", "over the cells")
        sheet.write("K1", "a whole column")
        sheet.conditional_format("H1:H4", {"type": "cell", "criteria": ">", "value": "=E1", "format": bold})
        sheet.conditional_format("O1:O4", {"type": "2_color_scale", "max_type": "formula", "max_value": "=$B$1"})
        sheet.conditional_format("G1:G2", {"type": "2_color_scale", "max_type": "formula", "max_value": "=$B$1"})
        sheet.conditional_format("G1", {"type": "cell", "criteria": ">", "value": 3, "format": bold})
        sheet.conditional_format("H5:H6", {"type": "duplicate", "format": bold})
        sheet.conditional_format("I1:I4", {"type": "cell", "criteria": ">", "value": 2,
                                           "format": book.add_format({"num_format": "0.00"})})
        sheet.conditional_format("J1:J4", {"type": "data_bar", "data_bar_2010": True, "min_type": "formula",
                                           "min_value": "=$B$1"})
        sheet.conditional_format("N1:N4", {"type": "cell", "criteria": ">", "value": 2, "format": bold})
        sheet.conditional_format("N1:N4", {"type": "text", "criteria": "containing", "value": "n", "format": bold})
        sheet.conditional_format("N5:N6", {"type": "duplicate", "format": bold})
        frame = book.add_format({"border": 1})
        sheet.conditional_format("P1:P4", {"type": "formula", "criteria": "=$B$1=1", "format": frame})
        sheet.conditional_format("R1:R4", {"type": "formula", "criteria": "=$R1>R2", "format": frame})
        for column, criteria in (("S", "=S1>Limit"), ("T", "=INDIRECT(\"B1\")>1")):
            sheet.conditional_format(f"{column}1:{column}4", {"type": "formula", "criteria": criteria, "format": frame})
        sheet.add_table("L1:M4")
        sheet.write("E2", "from corner to corner", book.add_format({"diag_type": 1, "diag_border": 1}))
        sheet.add_sparkline("C3", {"range": "Data!B1:B4"})
        for name, cells in (("Formulas", "$H$1:$H$2"), ("Twins", "$H$5"), ("Numbers", "$I$1:$I$2"),
                            ("Bars", "$J$1:$J$2"), ("Scales", "$O$1:$O$2"), ("Coloured", "$L$2:$M$9"), ("Plainly", "$N$1:$N$6"),
                            ("Plain scale", "$G$2"), ("Pale", "$G$1"),
                            ("Big", "$CA$1:$FV$51"), ("Signs", "$B$2:$C$9"), ("Words", "$A$1:$A$3"),
                            ("Covered", "$D$4:$F$9"), ("All of it", "$A$1:$F$9"), ("Plain", "$A$2:$A$9"),
                            ("Whole", "$K:$K"), ("Lines", "$C$2:$C$4"), ("Plain_beside", "$D$1:$D$3"), ("Log", "$Q$1:$Q$400"),
                            ("Underlined", "$P$1:$P$4"), ("Untouched", "$R$1:$R$5"), ("Upper", "$R$1:$R$3"), ("Vague", "$S$1:$S$4"),
                            ("Wandering", "$T$1:$T$4"), ("Crossed", "$E$1:$F$2")):
            book.define_name(name.replace(" ", "_"), f"=Data!{cells}")
        book.define_name("Limit", "=2")
        book.close()
        code, _, errors = self.run_program(path, "--all", "--check", "--format", "editable", "--output", output)
        self.assertEqual(code, 3, errors)
        self.assertFalse(output.exists())
        for loss, names in (("icons", '"All_of_it" and "Signs"'), ("look", '"All_of_it" and "Words"'),
                            ("drawings", '"All_of_it" and "Covered"'), ("5,000", '"Big"'), ("formula", '"Pale".*"Scales".*"Twins".*"Upper".*"Wandering"'),
                            ("numbers are", '"Numbers"'), ("lines around", '"Underlined", "Untouched", "Upper", .*"Wandering"'), ("bars", '"Bars"'), ("table style", '"Coloured"'),
                            ("sparklines", '"All_of_it", "Lines" and "Signs"'), ("too small to read", '"Big" and "Log"')):
            self.assertRegex(errors, f"(?m)^  - [^\"]*{names} .*{loss}")
        self.assertNotRegex(errors, "Plain|Whole|Formulas|Crossed")
        _, _, errors = self.run_program(path, "--all", "--check", "--to", "html", "--output", self.folder / "page")
        for loss, names in (("numbers are", '"Numbers"'), ("lines around", '"Underlined".*'), ("formula", '"Pale".*"Wandering"'),
                            ("corner", '"All_of_it" and "Crossed"')):
            self.assertRegex(errors, f"(?m)^  - [^\"]*{names} .*{loss}")
        _, _, errors = self.run_program(path, "--all", "--check", "--to", "images", "--output", self.folder / "losses")
        self.assertRegex(errors, '(?m)^  - The pictures of "Twins", "Underlined", "Upper", "Vague" and "Wandering" may have conditional formats wrong')


if __name__ == "__main__":
    unittest.main(verbosity=2)
