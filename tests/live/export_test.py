"""The sample workbook, from the command line to the slides of the presentation that comes out."""

import json
import shutil
import subprocess
import unittest

from program import SAMPLES, ProgramTest, colours_of, png_size, slides_of

BOOK = SAMPLES / "Harbour Logistics 2026.xlsx"
DECK = SAMPLES / "Board deck.pptx"
SLIDES_OF_DECK = 3
WIDTH, HEIGHT = 960.0, 540.0


class TheSampleWorkbook(ProgramTest):
    def items(self, *arguments):
        code, output, errors = self.run_program(BOOK, "--list", "--json", *arguments)
        self.assertEqual(code, 0, errors)
        return json.loads(output)["items"]

    def export(self, *arguments, book=BOOK):
        output = self.folder / "Result.pptx"
        code, _, errors = self.run_program(book, "--into", DECK, "--output", output, *arguments)
        self.assertEqual(code, 0, errors)
        self.assert_nothing_left()
        return slides_of(output)

    def test_arrives_whole_in_list_order_with_titles_and_source(self):
        checked = [item for item in self.items() if item["checked"]]
        slides = self.export("--titles", "--source")
        self.assertGreaterEqual(len(checked), 12)
        self.assertEqual(len(slides), SLIDES_OF_DECK + len(checked))
        for item, slide in zip(checked, slides[SLIDES_OF_DECK:]):
            with self.subTest(item=item["name"], sheet=item["sheet"]):
                self.assertEqual(slide.title, item["caption"])
                self.assertIn(str(BOOK), slide.texts)
                (picture,) = slide.pictures
                # The item's own name where there is no caption; a chart sheet's name is its sheet's.
                name = item["sheet"] if item["name"] == "{Chart Sheet}" else item["name"]
                self.assertEqual(picture["description"], item["caption"] or name)

    def test_pictures_are_sharp_and_stand_in_the_middle(self):
        for slide in self.export()[SLIDES_OF_DECK:]:
            (picture,) = slide.pictures
            with self.subTest(picture=picture["description"]):
                pixels_wide, pixels_high = png_size(picture["bytes"])
                self.assertGreater(colours_of(picture["bytes"]), 8, "blank")
                self.assertLessEqual(picture["width"], WIDTH * 0.9 + 0.05)
                self.assertLessEqual(picture["height"], HEIGHT * 0.9 + 0.05)
                self.assertAlmostEqual(picture["left"] + picture["width"] / 2, WIDTH / 2, delta=0.1)
                self.assertAlmostEqual(picture["top"] + picture["height"] / 2, HEIGHT / 2, delta=0.1)
                # Three pixels for each of the screen's; more where the picture had to be made smaller.
                self.assertGreater(pixels_wide / (picture["width"] / 72), 287)
                self.assertGreater(pixels_high / (picture["height"] / 72), 287)

    def test_follows_the_placement_that_is_asked_for(self):
        slides = self.export("--items", "{Chart Sheet}", "--width", "0.5", "--left", "0.25", "--top", "0.3")
        for slide in slides[SLIDES_OF_DECK:]:
            (picture,) = slide.pictures
            self.assertAlmostEqual(picture["left"], WIDTH * 0.25, delta=0.1)
            self.assertAlmostEqual(picture["top"], HEIGHT * 0.3, delta=0.1)
            self.assertLessEqual(picture["width"], WIDTH * 0.5 + 0.1)

    def test_takes_the_items_captions_and_order_that_are_asked_for(self):
        charts = [item for item in self.items() if item["kind"] == "Embedded" and item["checked"]][:3]
        captions = self.folder / "captions.csv"
        captions.write_text("item,sheet,caption,slide\n" + "".join(
            f'"{c["name"]}","{c["sheet"]}","Caption, {n} <&> ""quoted"" é",\n' for n, c in enumerate(charts)),
            encoding="utf-8")
        names = [f'{c["name"]}@{c["sheet"]}' for c in charts]
        wanted = [part for name in reversed(names) for part in ("--order", name)]
        chosen = [part for name in names for part in ("--items", name)]
        slides = self.export("--titles", "--captions", captions, *chosen, *wanted)
        self.assertEqual([slide.title for slide in slides[SLIDES_OF_DECK:]],
                         [f'Caption, {n} <&> "quoted" é' for n in (2, 1, 0)])

    def test_goes_to_the_slides_that_are_named(self):
        chart = next(item for item in self.items() if item["kind"] == "Embedded" and item["checked"])
        captions = self.folder / "captions.csv"
        captions.write_text(f'item,sheet,caption,slide\n"{chart["name"]}","{chart["sheet"]}",Here,3\n', encoding="utf-8")
        slides = self.export("--slides", "predefined", "--titles", "--captions", captions,
                             "--items", f'{chart["name"]}@{chart["sheet"]}')
        self.assertEqual(len(slides), SLIDES_OF_DECK)
        self.assertEqual(slides[2].title, "Here")
        self.assertEqual(len(slides[2].pictures), 1)

    def test_leaves_its_inputs_as_they_were_and_never_writes_over_anything(self):
        book, deck = BOOK.read_bytes(), DECK.read_bytes()
        self.export()
        again = self.run_program(BOOK, "--into", DECK, "--output", self.folder / "Result.pptx")
        self.assertEqual(again[0], 2, again)
        self.assertIn("Result.pptx", again[2])
        code, _, errors = self.run_program(BOOK, "--into", DECK, "--output", DECK, "--overwrite")
        self.assertNotEqual(code, 0)
        self.assertEqual((BOOK.read_bytes(), DECK.read_bytes()), (book, deck))

    def test_comes_out_as_a_presentation_that_the_suite_draws(self):
        self.export("--titles", "--style", "rounded", "--items", "{Chart Sheet}")
        subprocess.run(["soffice", f"-env:UserInstallation=file://{self.cache}/reader", "--headless", "--convert-to",
                        "pdf", "--outdir", str(self.folder), str(self.folder / "Result.pptx")],
                       check=True, capture_output=True, timeout=120)
        text = subprocess.run(["pdftotext", str(self.folder / "Result.pdf"), "-"], check=True, capture_output=True,
                              text=True).stdout
        self.assertEqual(text.count("\f"), len(slides_of(self.folder / "Result.pptx")))

    def test_items_on_hidden_sheets_and_names_without_a_range_are_not_listed(self):
        names = {(item["name"], item["sheet"]) for item in self.items()}
        self.assertFalse([n for n in names if n[1] in ("Workings", "kukukukuZichron")])
        several = [item for item in self.items() if not item["checked"]]
        self.assertTrue(several, "the range of several areas is listed unchecked")


class AStoredChoice(ProgramTest):
    def test_of_captions_and_order_is_found_in_the_workbook(self):
        copy = self.folder / "copy.xlsx"
        shutil.copy(BOOK, copy)
        code, output, errors = self.run_program(copy, "--list", "--json")
        self.assertEqual(code, 0, errors)
        self.assertTrue([item for item in json.loads(output)["items"] if item["caption"]])


if __name__ == "__main__":
    unittest.main(verbosity=2)
