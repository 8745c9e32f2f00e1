"""The sample workbook, from the command line to the slides of the presentation that comes out."""

import json
import subprocess
import unittest

import xlsxwriter
from program import SAMPLES, Package, ProgramTest, png_lines, png_size, slides_of
from validator import faults

BOOK = SAMPLES / "Harbour Logistics 2026.xlsx"
DECK = SAMPLES / "Board deck.pptx"
SLIDES_OF_DECK = 3
WIDTH, HEIGHT = 960.0, 540.0


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

    def charts(self):
        return [item for item in self.items() if item["kind"] == "Embedded" and item["checked"]]

    def export(self, *arguments):
        output = self.folder / "Result.pptx"
        code, _, errors = self.run_program(BOOK, "--into", DECK, "--output", output, *arguments)
        self.assertEqual(code, 0, errors)
        self.assert_nothing_left()
        return slides_of(output)

    def whole(self):
        """The slides of all items that are checked."""
        if TheSampleWorkbook.exported is None:
            TheSampleWorkbook.exported = self.export("--titles", "--source")[SLIDES_OF_DECK:]
        return TheSampleWorkbook.exported

    def test_is_listed_with_its_stored_choice_and_without_what_is_hidden(self):
        items = self.items()
        self.assertTrue([item for item in items if item["caption"]])
        self.assertTrue([item for item in items if not item["checked"]], "the range of several areas")
        self.assertFalse([item for item in items if item["sheet"] in ("Workings", "kukukukuZichron")])

    def test_arrives_whole_in_list_order_with_titles_and_source_and_is_never_written_over(self):
        checked = [item for item in self.items() if item["checked"]]
        before = BOOK.read_bytes(), DECK.read_bytes()
        slides = self.whole()
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

    def test_takes_items_captions_order_placement_and_style_and_the_suite_draws_what_comes_out(self):
        charts = self.charts()[:3]
        captions = self.folder / "captions.csv"
        captions.write_text("item,sheet,caption,slide\n" + "".join(
            f'"{c["name"]}","{c["sheet"]}","Caption, {n} <&> ""quoted"" é",\n' for n, c in enumerate(charts)),
            encoding="utf-8")
        names = [f'{c["name"]}@{c["sheet"]}' for c in charts]
        slides = self.export("--titles", "--captions", captions, "--style", "rounded",
                             "--width", "0.5", "--left", "0.25", "--top", "0.3",
                             *[part for name in names for part in ("--items", name)],
                             *[part for name in reversed(names) for part in ("--order", name)])
        self.assertEqual([slide.title for slide in slides[SLIDES_OF_DECK:]],
                         [f'Caption, {n} <&> "quoted" é' for n in (2, 1, 0)])
        for slide in slides[SLIDES_OF_DECK:]:
            (picture,) = slide.pictures
            self.assertAlmostEqual(picture["left"], WIDTH * 0.25, delta=0.1)
            self.assertAlmostEqual(picture["top"], HEIGHT * 0.3, delta=0.1)
            self.assertLessEqual(picture["width"], WIDTH * 0.5 + 0.1)

        self.as_pdf(self.folder / "Result.pptx")
        text = subprocess.run(["pdftotext", str(self.folder / "Result.pdf"), "-"], check=True, capture_output=True,
                              text=True).stdout
        self.assertEqual(text.count("\f"), len(slides))

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
        for name, cells in (("Big", "$A$1:$CV$51"), ("Signs", "$B$2:$C$9"), ("Words", "$A$1:$A$3"),
                            ("Covered", "$D$4:$F$9"), ("All of it", "$A$1:$F$9"), ("Plain", "$A$2:$A$9"),
                            ("Whole", "$K:$K")):
            book.define_name(name.replace(" ", "_"), f"=Data!{cells}")
        book.close()
        code, _, errors = self.run_program(path, "--all", "--check", "--format", "editable", "--output", output)
        self.assertEqual(code, 3, errors)
        self.assertFalse(output.exists())
        for loss, names in (("icons", '"All_of_it" and "Signs"'), ("look", '"All_of_it" and "Words"'),
                            ("drawings", '"All_of_it" and "Covered"'), ("5,000", '"Big"')):
            self.assertRegex(errors, f"(?m)^  - [^\"]*{names} .*{loss}")
        self.assertNotRegex(errors, "Plain|Whole")

    def test_goes_in_vectors_to_where_its_pictures_stand(self):
        checked = [item for item in self.items() if item["checked"]]
        kinds = {item["kind"]: f'{item["name"]}@{item["sheet"]}' for item in checked}
        self.assertEqual(len(kinds), 3, "a chart, a chart sheet and a range")
        chosen = [part for name in kinds.values() for part in ("--items", name)]
        plain = [slide for item, slide in zip(checked, self.whole(), strict=True)
                 if f'{item["name"]}@{item["sheet"]}' in kinds.values()]
        for kind, sign in (("svg", b"<svg"), ("emf", b" EMF")):
            document = self.folder / "Result.docx"
            slides = self.export(*chosen, "--overwrite", "--pictures", kind, "--to", "slides", "--to", "word",
                                 "--output", document)[SLIDES_OF_DECK:]
            for slide, before in zip(slides, plain, strict=True):
                (picture,), (was,) = slide.pictures, before.pictures
                for side in ("left", "top", "width", "height"):
                    self.assertAlmostEqual(picture[side], was[side], delta=0.6)
            self.assertEqual(faults(document), [])
            for package in (Package(self.folder / "Result.pptx"), Package(document)):
                vectors = [package.file.read(name) for name in package.file.namelist() if name.endswith("." + kind)]
                self.assertEqual(len(vectors), len(kinds))
                for one in vectors:
                    self.assertIn(sign, one[:200])
                    self.assertNotIn(b"DOCTYPE", one)


if __name__ == "__main__":
    unittest.main(verbosity=2)
