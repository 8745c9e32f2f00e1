"""Embedded workbooks and links in presentations and documents as files: valid, on their sheet, and nothing handed on that must stay."""

import io
import pathlib
import re
import sys
import unittest
import zipfile

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "sample"))

import xlsxwriter  # noqa: E402
from kit.package import edit_package, replace  # noqa: E402
from program import Package, ProgramTest, slides_of  # noqa: E402
from validator import faults  # noqa: E402

SECRET = "Zebra"
SHOWN = rb'(?<=activeTab=")\d+|(?<=oleSize ref=")[A-Z0-9:]+'
ITEMS = ("Own", "Total", "Whole", "Chart 1", "{Chart Sheet}@Plot")
CHARTS = 2


def write_book(path):
    """A sheet that has much in common with a secret one, and a chart sheet with the secret one's numbers."""
    book = xlsxwriter.Workbook(path)
    book.set_properties({"author": SECRET, "title": SECRET})
    other, own, plot = book.add_worksheet(SECRET), book.add_worksheet("Own data"), book.add_chartsheet("Plot")
    other.write_column("A1", [SECRET, 3, 4, 5], book.add_format({"num_format": f'0 "{SECRET}"'}))
    bold, percent = book.add_format({"bold": True}), book.add_format({"num_format": "0.0 %"})
    own.write_row("B2", ["Item", "Sum", "Share"], bold)
    for row in range(2, 6):
        own.write(row, 1, f"item {row}")
        own.write_formula(row, 2, f"={SECRET}!A{row}*2", None, row * 2)
        own.write_formula(row, 3, f"=C{row + 1}/SUM(C3:C6)", percent, 0.25)
    own.write_array_formula("G3:G4", f"{{=Hidden{SECRET}*2}}", None, 8)
    own.conditional_format("C3:C6", {"type": "data_bar", "data_bar_2010": True})
    own.conditional_format("D3:D6", {"type": "icon_set", "icon_style": "3_arrows"})
    own.conditional_format("C3:C6", {"type": "formula", "criteria": f"={SECRET}!$A$2>1", "format": bold})
    own.data_validation("B3", {"validate": "list", "source": f"={SECRET}!$A$2:$A$4"})
    own.data_validation("B4", {"validate": "list", "source": "=$B$3:$B$6"})
    own.add_sparkline("E3", {"range": f"{SECRET}!A2:A4"})
    own.add_sparkline("E4", {"range": "'Own data'!C3:C6"})
    own.add_table("J2:K4", {"columns": [{"header": "a"}, {"header": "b", "formula": f"={SECRET}!$A$2"}]})
    own.write_comment("B2", "a note")
    own.write_url("B8", f"internal:{SECRET}!A1", string="inside")
    own.write_url("B9", "https://example.org/a", string="outside")
    own.insert_textbox("N2", "linked", {"textlink": f"={SECRET}!$A$1"})
    for sheet, kind in ((own, "column"), (plot, "pie")):
        chart = book.add_chart({"type": kind})
        for source, last in ((SECRET, "D"), ("'Own data'", "C")):
            chart.add_series({"name": f"={source}!$B$2", "categories": f"='Own data'!$B$3:$B$6",
                              "values": f"={source}!$A$2:$A$4" if last == "D" else f"={source}!$C$3:$C$6"})
        sheet.insert_chart("B12", chart) if sheet is own else sheet.set_chart(chart)
    book.define_name("Own", "='Own data'!$B$2:$D$6")
    book.define_name("Whole", "='Own data'!$B:$D")
    book.define_name("Total", "='Own data'!$C$6")
    book.define_name(f"Hidden{SECRET}", f"={SECRET}!$A$2:$A$3")
    own.set_landscape()
    own.print_area("A1:K20")
    book.close()
    # As some programs write a chart sheet.
    edit_package(path, {"xl/drawings/drawing2.xml": replace('<xdr:ext cx="9308969" cy="6078325"/>', '<xdr:ext cx="0" cy="0"/>')})


class AnObject(ProgramTest):
    def export(self, form, *arguments):
        book, output = self.folder / "Größe & co.xlsx", self.folder / "decks" / f"{form}{len(arguments)}.pptx"
        output.parent.mkdir(exist_ok=True)
        write_book(book)
        items = [word for item in ITEMS for word in ("--items", item)]
        code, _, errors = self.run_program(book, *items, "--yes", "--format", form, "--output", output, *arguments,
                                           "--output", output.with_suffix(".docx"))
        self.assertEqual(code, 0, errors)
        slides_of(output)
        self.assertEqual(faults(output.with_suffix(".docx")), [])
        package = Package(output)
        books = sorted(name for name in package.names if "/embeddings/" in name)
        books = [zipfile.ZipFile(io.BytesIO(package.read(name))) for name in books]
        # Most differ in nothing but the cells and the sheet that they show.
        different = {frozenset((name, re.sub(SHOWN, b"", book.read(name))) for name in book.namelist()): book
                     for book in books}
        for book in different.values():
            (self.folder / "part.xlsx").write_bytes(book.fp.getvalue())
            self.assertEqual(faults(self.folder / "part.xlsx"), [])
        return package, books

    def parts_of_document(self, form, pattern):
        """How many parts of its name the document has, and how many tables."""
        document = Package(self.folder / "decks" / f"{form}.docx")
        return (len([name for name in document.names if re.fullmatch(pattern, name)]),
                document.read("word/document.xml").count(b"<w:tbl>"))

    def test_holds_a_workbook_each(self):
        _, books = self.export("embedded")
        self.assertEqual(self.parts_of_document("embedded0", r"word/embeddings/[^/]+\.xlsx"), (len(ITEMS), 0))
        mains = [book.read("xl/workbook.xml").decode() for book in books]
        for shown in ('activeTab="1"', 'activeTab="2"', '<oleSize ref="B2:D6"/>', '<oleSize ref="C6"/>'):
            self.assertTrue(any(shown in main for main in mains), shown)
        self.assertEqual(len(books), len(ITEMS))
        (plot,) = [book for book, main in zip(books, mains) if 'activeTab="2"' in main]
        self.assertNotIn(b'cx="0" cy="0"/><xdr:graphicFrame', plot.read("xl/drawings/drawing2.xml"))

    def test_holds_the_sheet_alone_if_it_must(self):
        _, books = self.export("embedded", "--embed-only-sheet")
        self.assertEqual(len(books), len(ITEMS))
        for book in books:
            for name in book.namelist():
                self.assertNotIn(SECRET, name)
                self.assertNotIn(SECRET, book.read(name).decode("utf-8", "replace"), name)
            if "xl/worksheets/sheet2.xml" not in book.namelist():
                continue
            sheet = book.read("xl/worksheets/sheet2.xml").decode()
            for kept in ("C3/SUM(C3:C6)", "<v>4</v>", "x14:dataBar", "iconSet", "$B$3:$B$6", "'Own data'!C3:C6", "tablePart"):
                self.assertIn(kept, sheet)
            self.assertIn("https://example.org/a", book.read("xl/worksheets/_rels/sheet2.xml.rels").decode())

    def test_leads_to_the_cells_from_where_the_deck_is(self):
        # Which is behind a link that bears its name.
        (self.folder / "elsewhere" / "now").mkdir(parents=True)
        (self.folder / "decks").mkdir()
        (self.folder / "decks" / "linked2.pptx").symlink_to("../elsewhere/now/deck.pptx")
        package, books = self.export("linked", "--links", "relative")
        self.assertEqual(books, [])
        self.assertEqual(self.parts_of_document("linked2", r"word/charts/chart[^/]+\.xml"), (CHARTS, 0))
        related = "".join(package.read(name).decode() for name in package.names if "/slides/_rels/" in name)
        for cells in ("R2C2:R6C4", "C2:C4"):
            self.assertIn(f'Target="../../Größe%20%26%20co.xlsx!Own%20data!{cells}" TargetMode="External"', related)


if __name__ == "__main__":
    unittest.main(verbosity=2)
