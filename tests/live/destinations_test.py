"""The sample workbook in all destinations at once, and the formats of a document."""

import re
import subprocess
import unittest
from xml.etree import ElementTree

from program import SAMPLES, Package, ProgramTest
from validator import faults

BOOK = SAMPLES / "Harbour Logistics 2026.xlsx"
ITEMS, CHARTS, RANGES = 24, 14, 10
W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"


def text_of(pdf):
    return subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True, check=True).stdout


def said_of(pdf):
    """What pdfinfo tells: a name and a value each."""
    lines = subprocess.run(["pdfinfo", pdf], capture_output=True, text=True, check=True).stdout.splitlines()
    return {name.strip(): value.strip() for name, _, value in (line.partition(":") for line in lines)}


class TheDestinations(ProgramTest):
    def make(self, *arguments):
        code, _, errors = self.run_program(BOOK, *arguments)
        self.assertEqual(code, 0, errors)

    @staticmethod
    def body_of(document):
        return ElementTree.fromstring(Package(document).read("word/document.xml"))

    def test_come_out_of_one_run(self):
        before = BOOK.read_bytes()
        document, pdf, page, images = (self.folder / name for name in ("r.docx", "r.pdf", "page", "images"))
        self.make("--output", document, "--output", pdf, "--to", "word", "--to", "pdf", "--to", "html", "--output", page,
                  "--to", "images", "--output", images, "--source", "--cover", r"Harbour Logistics\nin 2026",
                  "--image-format", "jpeg", "--captions-below", "--same-width")
        self.assertEqual(BOOK.read_bytes(), before)

        self.assertEqual(faults(document), [])
        body = self.body_of(document)
        self.assertEqual(len(list(body.iter(W + "drawing"))), ITEMS)
        self.assertEqual(len(list(body.iter(W + "pageBreakBefore"))), ITEMS - 1)

        said = said_of(pdf)
        self.assertEqual((said["Pages"], said["Tagged"], said["Title"]), (str(ITEMS + 1), "yes", BOOK.name))
        pages = text_of(pdf).split("\f")
        self.assertIn("in 2026", pages[0])
        self.assertTrue(all(str(BOOK) in page for page in pages[1:ITEMS + 1]), "each page names its source")
        self.assertIn("Westkai", "".join(pages), "cells are text")

        (html,) = page.glob("*.html")
        pictures = re.findall(r'src=["\']?([^"\'> ]+)', html.read_text())
        self.assertEqual(len(pictures), ITEMS)
        self.assertTrue(all((page / picture).is_file() for picture in pictures), pictures)
        self.assertEqual(len(list(images.glob("*.jpg"))), ITEMS)
        self.assertTrue(all(file.read_bytes()[:3] == b"\xff\xd8\xff" for file in images.iterdir()))

    def check_page(self, page):
        """It is valid and holds tables."""
        (html,) = page.glob("*.html")
        tidied = subprocess.run(["tidy", "-e", "-q", "-utf8", html], capture_output=True, text=True)
        self.assertEqual((tidied.returncode, tidied.stderr), (0, ""))
        text = html.read_text()
        self.assertGreaterEqual(text.count("<table"), RANGES)
        self.assertIn("Westkai", text)

    def test_of_documents_take_every_format(self):
        for form, parts in (("editable", ("word/charts/", CHARTS)), ("embedded", ("word/embeddings/", ITEMS)),
                            ("linked", ("word/charts/", CHARTS))):
            with self.subTest(format=form):
                document = self.folder / f"{form}.docx"
                page = ("--to", "word", "--to", "html", "--output", self.folder / "page") if form == "editable" else ()
                self.make("--output", document, "--format", form, "--yes", *page)
                if page:
                    self.check_page(self.folder / "page")
                self.assertEqual(faults(document), [])
                names = [name for name in Package(document).names
                         if re.fullmatch(parts[0] + r"[^/]+\.(xml|xlsx)", name) and "/style" not in name
                         and "/colors" not in name]
                self.assertEqual(len(names), parts[1], names)
                tables = len(list(self.body_of(document).iter(W + "tbl")))
                self.assertEqual(tables, RANGES if form == "editable" else 0)


if __name__ == "__main__":
    unittest.main()
