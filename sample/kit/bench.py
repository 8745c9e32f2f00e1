"""A workbook of any number of charts, one table a sheet, and any number of ranges of 60 cells, for measuring."""

from . import look
from .figures import MONTHS
from .odd import new_book

CHARTS_A_SHEET = 20
KINDS = [
    ("column", "stacked"), ("line", None), ("bar", None), ("area", "stacked"), ("pie", None),
    ("column", None), ("scatter", None), ("doughnut", None), ("column", "percent_stacked"), ("radar", None),
]


def write_ranges(book, count):
    """Named ranges of ten rows and six columns each, dressed as reports are."""
    sheet = book.add_worksheet("Ranges")
    head = book.add_format({"bold": True, "bg_color": look.NAVY, "font_color": look.WHITE, "align": "center"})
    label = book.add_format({"font_color": look.INK, "bg_color": look.PALE, "right": 1})
    amount = book.add_format({"num_format": "#,##0.0", "bottom": 4, "bottom_color": look.LINE})
    for number in range(count):
        top = number * 12
        sheet.write_row(top, 0, ["Month", "North", "South", "East", "West", "Overseas"], head)
        for m, month in enumerate(MONTHS[:9]):
            sheet.write(top + 1 + m, 0, month, label)
            sheet.write_row(top + 1 + m, 1, [(number * 37 + m * 91 + i * 53) % 997 + 0.25 for i in range(5)], amount)
        book.define_name(f"Range_{number + 1}", f"='Ranges'!$A${top + 1}:$F${top + 10}")


def write_workbook(path, count, names=0, ranges=0):
    """`count` charts, and that many names of single rows and of ranges of 60 cells beside the names of the tables."""
    book = new_book(path)
    for first in range(0, count, CHARTS_A_SHEET):
        name = f"Sheet {first // CHARTS_A_SHEET + 1}"
        sheet = book.add_worksheet(name)
        sheet.write_row(0, 0, ["Month", "North", "South", "Overseas"])
        for m, month in enumerate(MONTHS):
            sheet.write_row(m + 1, 0, [month, *(400 + 37 * ((m * 7 + s * 5 + first) % 13) for s in range(3))])
        book.define_name(f"Table_{first // CHARTS_A_SHEET + 1}", f"='{name}'!$A$1:$D$13")
        for number in range(first, min(first + CHARTS_A_SHEET, count)):
            kind, subtype = KINDS[number % len(KINDS)]
            chart = book.add_chart({"type": kind, "name": f"Chart {number + 1}",
                                    **({"subtype": subtype} if subtype else {})})
            look.dress(chart, f"Chart {number + 1}", size=(640, 360))
            for i, letter in enumerate("B" if kind in ("pie", "doughnut") else "BCD"):
                series = {"name": f"='{name}'!${letter}$1", "categories": f"='{name}'!$A$2:$A$13",
                          "values": f"='{name}'!${letter}$2:${letter}$13"}
                if kind not in ("pie", "doughnut", "scatter"):
                    series.update(look.stroke(i) if kind in ("line", "radar") else look.solid(i))
                chart.add_series(series)
            place = number - first
            sheet.insert_chart(15 + 19 * (place // 2), 11 * (place % 2), chart)
    for number in range(names):
        book.define_name(f"Row_{number + 1}", f"='Sheet 1'!$A${number + 1}:$D${number + 1}")
    if ranges:
        write_ranges(book, ranges)
    book.close()
