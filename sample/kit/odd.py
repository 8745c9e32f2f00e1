"""Inputs that a user may well have and a program may well stumble over."""

import tempfile
import pathlib

import xlsxwriter

from . import deck, look, store, suite
from .harbour import CREATED
from .package import edit_package, in_order, replace

PASSWORD = "harbour"

ODD_SHEETS = ["..", "<img src=x onerror=alert(1)>", "Quote's \"sheet\"", "🚢 Ships & <b>cargo", "  spaced  ", "x" * 31]
ODD_CHARTS = [
    "../../etc/passwd",
    "a/b\\c:d",
    "<script>alert(1)</script>",
    "Quote's \"chart\" & more",
    "🚢📦",
    "line\nbreak",
    "CON",
    "same name",
    "same name",
    "%s%n{}",
    "n" * 255,
]


def new_book(path):
    book = xlsxwriter.Workbook(str(path))
    book.set_properties({"created": CREATED, "author": "Group Controlling"})
    return book


def figures(sheet):
    sheet.write_row(0, 0, ["Month", "Value"])
    for row, value in enumerate([12, 19, 14, 23, 21, 27], start=1):
        sheet.write_row(row, 0, [f"M{row}", value])


def plain_chart(book, sheet, row, name, reference=None):
    chart = look.dress(book.add_chart({"type": "column", "name": name}), "Values", size=(480, 260))
    quoted = "'" + (reference or sheet.get_name()).replace("'", "''") + "'"
    chart.add_series({"name": "Value", "categories": f"={quoted}!$A$2:$A$7", "values": f"={quoted}!$B$2:$B$7"})
    if row is not None:
        sheet.insert_chart(row, 3, chart)
    return chart


def one_chart(path, name="Values"):
    book = new_book(path)
    sheet = book.add_worksheet("Data")
    figures(sheet)
    plain_chart(book, sheet, 0, name)
    book.define_name("Figures", "=Data!$A$1:$B$7")
    book.close()


def odd_names(path):
    book = new_book(path)
    for name in ODD_SHEETS:
        figures(book.add_worksheet(name))
    first = book.worksheets()[0]
    for i, name in enumerate(ODD_CHARTS):
        plain_chart(book, first, 14 * i, name)
    plain_chart(book, book.worksheets()[3], 0, "🚢📦")

    # The library refuses what it does not know; Excel takes all of these. The fields: name, sheet (-1 is the workbook),
    # content, hidden.
    for name, sheet, target in [
        ("Range.with.dots", -1, "'..'!$A$1:$B$7"),
        ("What?", -1, "'..'!$A$1:$B$3"),
        ("back\\slash", -1, "'..'!$A$2:$B$4"),
        ("_" + "w" * 254, -1, "'..'!$A$1:$B$2"),
        ("Twice", -1, "'..'!$A$1:$B$4"),
        ("Twice", 0, "'..'!$A$1:$B$5"),
        ("Local", 2, "'Quote''s \"sheet\"'!$A$1:$B$7"),
        ("Külső", 3, "'🚢 Ships & <b>cargo'!$A$1:$B$7"),
        ("Elsewhere", -1, "'[other.xlsx]Sheet1'!$A$1:$B$2"),
    ]:
        book.defined_names.append([name, sheet, target, False])
    first.print_area("A1:B7")
    book.close()


def structure_protected(path):
    one_chart(path)
    edit_package(path, {"xl/workbook.xml": replace("<bookViews>", '<workbookProtection lockStructure="1"/><bookViews>')})


def no_items(path):
    book = new_book(path)
    book.add_worksheet("Data").write(0, 0, "nothing to show")
    book.close()


def only_hidden_items(path):
    book = new_book(path)
    book.add_worksheet("Front").write(0, 0, "the chart is on another sheet")
    sheet = book.add_worksheet("Back")
    figures(sheet)
    plain_chart(book, sheet, 0, "Values")
    sheet.hide()
    book.close()


def negative_chart_sheet(path):
    """Some page set-ups make Excel place the chart of a chart sheet above the top of the page."""
    book = new_book(path)
    sheet = book.add_worksheet("Data")
    figures(sheet)
    page = book.add_chartsheet("Chart page")
    page.set_portrait()
    page.set_chart(plain_chart(book, sheet, None, "Values"))
    book.close()


def grouped_chart(path):
    one_chart(path)

    def group(text):
        start, end = text.index("<xdr:graphicFrame"), text.index("</xdr:graphicFrame>") + len("</xdr:graphicFrame>")
        frame = replace(
            '<a:off x="0" y="0"/><a:ext cx="0" cy="0"/>', '<a:off x="0" y="0"/><a:ext cx="4572000" cy="2476500"/>'
        )(text[start:end])
        wrapped = (
            '<xdr:grpSp><xdr:nvGrpSpPr><xdr:cNvPr id="20" name="Group 1"/><xdr:cNvGrpSpPr/></xdr:nvGrpSpPr>'
            '<xdr:grpSpPr><a:xfrm><a:off x="1828800" y="0"/><a:ext cx="4572000" cy="2476500"/>'
            '<a:chOff x="0" y="0"/><a:chExt cx="4572000" cy="2476500"/></a:xfrm></xdr:grpSpPr>'
            f"{frame}</xdr:grpSp>"
        )
        return text[:start] + wrapped + text[end:]

    edit_package(path, {"xl/drawings/drawing1.xml": group})


def keyless_store(path):
    """A store as the earliest versions left it: rows without keys."""
    book = new_book(path)
    sheet = book.add_worksheet("Data")
    figures(sheet)
    plain_chart(book, sheet, 0, "Values")
    old = book.add_worksheet(store.SHEET)
    old.write_row(0, 0, ["Gone", "Data", "", 1, True, "Embedded", ""])
    old.hide()
    book.close()
    edit_package(path, {"xl/workbook.xml": in_order(store.hide_well)})


def write_all(folder):
    """Writes every bad input and returns their paths."""
    writers = {
        "odd-names.xlsx": odd_names,
        "structure-protected.xlsx": structure_protected,
        "empty.xlsx": no_items,
        "hidden-items.xlsx": only_hidden_items,
        "negative-chartsheet.xlsx": negative_chart_sheet,
        "grouped-chart.xlsx": grouped_chart,
        "keyless-store.xlsx": keyless_store,
    }
    for name, writer in writers.items():
        writer(folder / name)

    (folder / "not-a-workbook.xlsx").write_text("Dear all, please find the figures below.\n", encoding="utf-8")
    with tempfile.TemporaryDirectory() as scratch:
        whole = pathlib.Path(scratch) / "whole.xlsx"
        one_chart(whole)
        content = whole.read_bytes()
        (folder / "truncated.xlsx").write_bytes(content[: len(content) * 6 // 10])
        suite.save_with_password(whole, folder / "password.xlsx", PASSWORD)
    deck.write_deck(folder / "no-title-layout.pptx", "Blank", [deck.Slide("Blank")], layouts=("Blank",))
    return sorted(folder.iterdir())
