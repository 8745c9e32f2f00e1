"""The sheet in which Murvane keeps a user's decisions, as a saved session leaves it."""

from dataclasses import dataclass

from .package import replace

SHEET = "kukukukuZichron"
CHART_SHEET = "{Chart Sheet}"
CAPTION_COLUMN = 19
TOP, WIDTH, LEFT = 14, 15, 17


@dataclass
class Item:
    name: str
    sheet: str
    kind: str
    slide: str = ""
    caption: str = ""
    included: bool = True


def write(book, items):
    sheet = book.add_worksheet(SHEET)
    plain, number = book.add_format({"num_format": "@"}), book.add_format({"num_format": "0"})
    sheet.set_column("A:C", None, plain)
    sheet.set_column("D:E", None, number)
    sheet.set_column("F:H", None, plain)
    rank = 0
    for row, item in enumerate(items):
        sheet.write_string(row, 0, item.name, plain)
        sheet.write_string(row, 1, item.sheet, plain)
        if item.slide:
            sheet.write_string(row, 2, item.slide, plain)
        if item.included:
            rank += 1
            sheet.write_number(row, 3, rank, number)
        sheet.write_boolean(row, 4, item.included, number)
        sheet.write_string(row, 5, item.kind, plain)
        sheet.write_string(row, 7, item.name + item.sheet, plain)
        if item.caption:
            sheet.write_string(row, CAPTION_COLUMN, item.caption)
    # A number that is put into a cell of the text format becomes a text.
    sheet.write_string(len(items), 6, str(len(items) + 1), plain)
    for column in (TOP, WIDTH, LEFT):
        sheet.write_string(0, column, "Default")
    sheet.hide()
    book.define_name("MurvaneReservedName01", f"={SHEET}!$A:$H")
    book.define_name("MurvaneReservedName02", f"={SHEET}!$O$23:$V$30")


def hide_well(workbook_xml):
    """The library knows hidden sheets only; this one is to be out of the reach of the menus."""
    start = workbook_xml.index(f'<sheet name="{SHEET}"')
    end = workbook_xml.index("/>", start)
    entry = workbook_xml[start:end]
    return workbook_xml[:start] + replace('state="hidden"', 'state="veryHidden"')(entry) + workbook_xml[end:]
