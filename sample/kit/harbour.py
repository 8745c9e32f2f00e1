"""The sample workbook: the annual review of Harbour Logistics, a company that does not exist."""

import datetime

import xlsxwriter

from . import look, store
from .figures import MONTHS, QUARTERS, TERMINALS, Figures
from .package import edit_package, in_order, replace

CREATED = datetime.datetime(2027, 1, 11, 9, 0, 0)


class Book:
    """The workbook being written, with its cell styles by name."""

    def __init__(self, path):
        self.file = xlsxwriter.Workbook(str(path))
        self.file.set_properties(
            {
                "title": "Annual review 2026",
                "author": "Group Controlling",
                "company": "Harbour Logistics",
                "created": CREATED,
            }
        )
        self._formats = {}

    def style(self, **properties):
        base = {"font_name": look.FONT, "font_size": 13, "font_color": look.INK, "valign": "vcenter"}
        base.update(properties)
        key = tuple(sorted(base.items()))
        if key not in self._formats:
            self._formats[key] = self.file.add_format(base)
        return self._formats[key]

    def head(self, **more):
        return self.style(bold=True, font_color=look.WHITE, bg_color=look.NAVY, **more)

    def body(self, banded=False, **more):
        extra = {"bg_color": look.PALE} if banded else {}
        return self.style(bottom=1, bottom_color=look.LINE, **extra, **more)

    def total(self, **more):
        return self.style(bold=True, font_color=look.NAVY, top=2, top_color=look.NAVY, **more)

    def sheet(self, name, headline, subtitle, tab=look.NAVY, first_column=26, columns=13, column_width=10.5):
        sheet = self.file.add_worksheet(name)
        sheet.hide_gridlines(2)
        sheet.set_zoom(90)
        sheet.set_tab_color(tab)
        sheet.set_landscape()
        sheet.set_paper(9)
        sheet.fit_to_pages(1, 0)
        sheet.set_column(0, 0, 2.5, self.style())
        sheet.set_column(1, 1, first_column, self.style())
        sheet.set_column(2, 1 + columns, column_width, self.style())
        sheet.set_row(0, 10)
        sheet.set_row(1, 34)
        sheet.write(1, 1, headline, self.style(font_size=22, bold=True, font_color=look.NAVY))
        sheet.write(2, 1, subtitle, self.style(font_color=look.GREY, italic=True))
        return sheet

    def chart(self, sheet, row, kind, name, title, described, column=1, subtype=None, combined=None, **dress):
        """A chart at a cell, with the object name that lists and scripts know it by."""
        options = {"type": kind, "name": name}
        if subtype:
            options["subtype"] = subtype
        chart = look.dress(self.file.add_chart(options), title, **dress)
        if combined:
            chart.combine(combined)
        sheet.insert_chart(row, column, chart, {"description": described, "object_position": 1})
        return chart

    def table(self, sheet, row, column, heads, lines, formats, total=None, height=27):
        """Writes a table and returns its last row. `formats` has a cell format for each column."""
        sheet.set_row(row, height + 4)
        for i, text in enumerate(heads):
            sheet.write(row, column + i, text, self.head(**where(formats[i])))
        for line in lines:
            row += 1
            sheet.set_row(row, height)
            for i, value in enumerate(line):
                sheet.write(row, column + i, value, self.body(row % 2 == 0, **formats[i]))
        if total:
            row += 1
            sheet.set_row(row, height + 2)
            for i, value in enumerate(total):
                style = self.total(**formats[i])
                if isinstance(value, tuple):
                    sheet.write_formula(row, column + i, value[0], style, value[1])
                else:
                    sheet.write(row, column + i, value, style)
        return row


def figure(number, align="right", **more):
    """The style of a column of figures; a little air keeps the last one off the edge of a picture."""
    return {"num_format": number, "align": align, **({"indent": 1} if align == "right" else {}), **more}


def where(style):
    return {key: style[key] for key in ("align", "indent") if key in style}


MONEY = figure("#,##0")
EURO = figure('#,##0" k€"')
COUNT = figure("#,##0")
SHARE = figure("0.0%")
RATE = figure("0.0")
WORD = {"indent": 1}


def column_letter(index):
    return xlsxwriter.utility.xl_col_to_name(index)


def overview(book, data):
    sheet = book.sheet(
        "Overview", "Harbour Logistics: the year 2026", "Group figures in thousand euro unless said otherwise",
        first_column=11.5, columns=12, column_width=11.5,
    )
    tiles = [
        ("Revenue", data.total_revenue / 1000, '€0.0" m"', f"{data.growth:+.1%} on 2025", look.NAVY),
        ("EBITDA margin", data.average_margin, "0.0%", f"{data.margin[-1]:.1%} in December", look.TEAL),
        ("Containers", data.total_teu / 1e6, '0.00" m TEU"', f"{data.teu_growth:+.1%} on 2025", look.SLATE),
        ("On time", data.on_time, "0.0%", "Deliveries by road", look.GREEN),
    ]
    for row, height in ((4, 30), (5, 54), (6, 30)):
        sheet.set_row(row, height)
    for i, (label, value, number, note, color) in enumerate(tiles):
        left, right = 1 + 3 * i, 3 + 3 * i
        edge = {"bg_color": color, "font_color": look.WHITE, "indent": 1, "right": 5, "right_color": look.WHITE}
        sheet.merge_range(4, left, 4, right, label, book.style(font_size=13, **edge))
        sheet.merge_range(5, left, 5, right, value,
                          book.style(font_size=30, bold=True, num_format=number, align="left", **edge))
        sheet.merge_range(6, left, 6, right, note, book.style(font_size=12, **edge))

    # The charts of this sheet read the figures of the others, as a dashboard does.
    line = book.file.add_chart({"type": "line"})
    line.add_series({
        "name": "EBITDA margin", "categories": "=Revenue!$C$5:$N$5", "values": "=Revenue!$C$12:$N$12",
        "y2_axis": True, "smooth": False, **look.stroke(2, 3),
        "marker": {"type": "circle", "size": 7, "fill": {"color": look.WHITE},
                   "border": {"color": look.AMBER, "width": 2}},
    })
    line.set_y2_axis(look.axis("EBITDA margin", num_format="0%", min=0.08, max=0.2, line={"none": True}))
    chart = book.chart(sheet, 8, "column", "Revenue and margin", "Revenue and EBITDA margin",
                       "Columns of monthly revenue with a line of the EBITDA margin", combined=line)
    chart.add_series({"name": "Revenue", "categories": "=Revenue!$C$5:$N$5", "values": "=Revenue!$C$11:$N$11",
                      "gap": 55, **look.solid(0)})
    chart.set_x_axis(look.axis())
    chart.set_y_axis(look.value_axis("Revenue in k€", num_format="#,##0", min=0, max=16_000, major_unit=4_000))

    chart = book.chart(sheet, 34, "doughnut", "Revenue by segment", "Where the revenue comes from",
                       "Ring of the revenue by segment", legend="right")
    chart.add_series({
        "name": "Revenue 2026", "categories": "=Revenue!$B$6:$B$10", "values": "=Revenue!$O$6:$O$10",
        "points": [{"fill": {"color": c}, "border": {"color": look.WHITE, "width": 2}} for c in look.SERIES[:5]],
        "data_labels": {"percentage": True, "font": look.text(13, look.WHITE, bold=True)},
    })
    chart.set_hole_size(55)
    look.side_by_side(chart)
    return sheet


def revenue(book, data):
    sheet = book.sheet("Revenue", "Revenue by segment", "Thousand euro, months of 2026", tab=look.TEAL,
                       first_column=24, columns=13, column_width=9)
    last = "N"
    lines = [[name, *months, sum(months)] for name, months in data.segments.items()]
    totals = ["Group"]
    for i, month in enumerate(data.revenue):
        letter = column_letter(2 + i)
        totals.append((f"=SUM({letter}6:{letter}10)", month))
    totals.append(("=SUM(O6:O10)", data.total_revenue))
    row = book.table(sheet, 4, 1, ["Segment", *MONTHS, "2026"], lines, [WORD] + [figure("#,##0", indent=0)] * 13,
                     totals)
    sheet.set_row(row + 1, 27)
    sheet.write(row + 1, 1, "EBITDA margin", book.body(font_color=look.GREY, **WORD))
    for i, margin in enumerate(data.margin):
        sheet.write(row + 1, 2 + i, margin, book.body(font_color=look.GREY, **figure("0.0%", indent=0)))
    sheet.write(row + 1, 14, data.average_margin,
                book.body(bold=True, font_color=look.GREY, **figure("0.0%", indent=0)))

    # Earlier years stand to the right of what people look at.
    for i, (year, months) in enumerate(data.trend.items()):
        sheet.write(4, 17 + i, int(year), book.head(align="right", num_format="0"))
        for m, value in enumerate(months):
            sheet.write(5 + m, 17 + i, value, book.body(m % 2 == 0, **MONEY))
            sheet.write(5 + m, 16, MONTHS[m], book.body(m % 2 == 0))
    sheet.write(4, 16, "Month", book.head())

    chart = book.chart(sheet, 14, "column", "Segment revenue", "Monthly revenue by segment",
                       "Stacked columns of the revenue by segment, a column for each month", subtype="stacked")
    for i in range(5):
        chart.add_series({"name": f"=Revenue!$B${6 + i}", "categories": f"=Revenue!$C$5:${last}$5",
                          "values": f"=Revenue!$C${6 + i}:${last}${6 + i}", "gap": 45, **look.solid(i)})
    chart.set_x_axis(look.axis())
    chart.set_y_axis(look.value_axis("k€", num_format="#,##0"))

    chart = book.chart(sheet, 40, "line", "Trend 2024–2026", "Three years of revenue",
                       "Lines of the monthly revenue of 2024, 2025 and 2026")
    for i, color in enumerate(("#B4C3D1", look.TEAL, look.NAVY)):
        letter = column_letter(17 + i)
        chart.add_series({
            "name": f"=Revenue!${letter}$5", "categories": "=Revenue!$Q$6:$Q$17",
            "values": f"=Revenue!${letter}$6:${letter}$17",
            "line": {"color": color, "width": 3.5 if i == 2 else 2.5},
        })
    chart.set_x_axis(look.axis())
    chart.set_y_axis(look.value_axis("k€ a month", num_format="#,##0", min=6000))
    return sheet


def terminals(book, data):
    sheet = book.sheet("Terminals", "Terminals", "Containers in TEU, occupancy of the yards", tab=look.AMBER,
                       columns=13, column_width=9.5)
    rows = []
    for name, (before, now) in data.throughput.items():
        rows.append([name, before, now, now / before - 1, data.utilisation[name], data.turnaround[name]])
    book.table(sheet, 4, 1, ["Terminal", "2025", "2026", "Change", "Yard use", "Hours"], rows,
               [WORD, COUNT, COUNT, figure("+0.0%;-0.0%"), SHARE, RATE])
    sheet.conditional_format("F6:F11", {
        "type": "data_bar", "bar_color": "#9CC9D0", "bar_solid": True, "min_type": "num", "min_value": 0,
        "max_type": "num", "max_value": 1.9, "data_bar_2010": True,
    })
    sheet.conditional_format("E6:E11", {"type": "cell", "criteria": "<", "value": 0,
                                        "format": book.file.add_format({"font_color": look.CORAL})})

    book.table(sheet, 13, 1, ["Yard occupancy", *MONTHS],
               [[name, *months] for name, months in data.occupancy.items()],
               [WORD] + [figure("0%", "center")] * 12)
    sheet.conditional_format("C15:N20", {
        "type": "3_color_scale", "min_color": "#DDEEF0", "mid_color": "#F8E3BC", "max_color": "#E98A6D",
        "mid_type": "percentile", "mid_value": 55,
    })

    book.table(sheet, 22, 1, ["Flow in TEU", *MONTHS],
               [[name, *months] for name, months in data.flows.items()], [WORD] + [COUNT] * 12)

    chart = book.chart(sheet, 28, "bar", "Throughput by terminal", "Containers by terminal",
                       "Bars of the containers handled by terminal, 2025 and 2026")
    for letter, color in (("C", look.SLATE), ("D", look.NAVY)):
        chart.add_series({
            "name": f"=Terminals!${letter}$5", "categories": "=Terminals!$B$6:$B$11",
            "values": f"=Terminals!${letter}$6:${letter}$11", "gap": 60, "overlap": -5,
            "fill": {"color": color}, "border": {"none": True},
            "data_labels": {"value": True, "font": look.text(11, look.INK), "num_format": "#,##0"},
        })
    chart.set_y_axis(look.axis(reverse=True))
    chart.set_x_axis(look.value_axis(None, num_format="#,##0", visible=True, label_position="high"))

    chart = book.chart(sheet, 54, "area", "Containers over the year", "Containers over the year",
                       "Stacked areas of import, export and transshipment by month", subtype="stacked")
    for i in range(3):
        chart.add_series({"name": f"=Terminals!$B${24 + i}", "categories": "=Terminals!$C$23:$N$23",
                          "values": f"=Terminals!$C${24 + i}:$N${24 + i}", **look.solid(i)})
    chart.set_x_axis(look.axis(position_axis="on_tick"))
    chart.set_y_axis(look.value_axis("TEU a month", num_format="#,##0"))

    # The calls stand to the right; the scatter below reads them.
    for group, (name, calls) in enumerate(data.calls.items()):
        left = 16 + 3 * group
        sheet.write(4, left, f"{name}: TEU", book.head())
        sheet.write(4, left + 1, "Moves an hour", book.head())
        for i, (size, moves) in enumerate(calls):
            sheet.write(5 + i, left, size, book.body(i % 2 == 0, **COUNT))
            sheet.write(5 + i, left + 1, moves, book.body(i % 2 == 0, **RATE))
    sheet.set_column(16, 20, 15, book.style())
    chart = book.chart(sheet, 80, "scatter", "Berth productivity", "Larger ships, faster cranes",
                       "Points of crane moves an hour against the size of the vessel")
    for group, (name, calls) in enumerate(data.calls.items()):
        x, y = column_letter(16 + 3 * group), column_letter(17 + 3 * group)
        color = (look.TEAL, look.CORAL)[group]
        chart.add_series({
            "name": name, "categories": f"=Terminals!${x}$6:${x}${5 + len(calls)}",
            "values": f"=Terminals!${y}$6:${y}${5 + len(calls)}",
            "marker": {"type": "circle", "size": 9, "fill": {"color": color, "transparency": 20},
                       "border": {"color": look.WHITE}},
            "trendline": {"type": "linear", "name": f"Trend, {name.lower()}",
                          "line": {"color": color, "width": 1.5, "dash_type": "dash"}},
        })
    chart.set_x_axis(look.axis("Vessel size in TEU", num_format="#,##0", min=0, max=16_000))
    chart.set_y_axis(look.value_axis("Moves an hour", num_format="0", min=10))
    return sheet


def fleet(book, data):
    sheet = book.sheet("Fleet", "Road fleet and service", "Depots in December 2026", tab=look.GREEN,
                       first_column=20, columns=10, column_width=14)
    heads = ["Depot", "Trucks", "km a month", "l / 100 km", "On time", "Electric"]
    formats = [WORD, COUNT, COUNT, RATE, SHARE, SHARE]
    last = book.table(sheet, 4, 1, heads, [list(row) for row in data.fleet], formats)
    sheet.add_table(4, 1, last, 6, {"name": "Depots", "style": None, "autofilter": False,
                                    "columns": [{"header": head} for head in heads]})
    for head, style, column in zip(heads, formats, range(1, 7)):  # the table has written its own
        sheet.write(4, column, head, book.head(**where(style)))
    sheet.conditional_format("G6:G11", {"type": "data_bar", "bar_color": "#A9D3AC", "bar_solid": True,
                                        "data_bar_2010": True, "min_type": "num", "min_value": 0,
                                        "max_type": "num", "max_value": 0.6})

    milestones = [
        (datetime.date(2026, 2, 9), "Porto Sul opens its third berth", "done"),
        (datetime.date(2026, 5, 18), "40 electric trucks in Rotterdam", "done"),
        (datetime.date(2026, 9, 1), "Cold chain hub in Gdańsk", "done"),
        (datetime.date(2027, 3, 15), "Shore power at Westkai", "under way"),
        (datetime.date(2027, 10, 4), "Yokohama joins the booking portal", "planned"),
    ]
    row = 13
    sheet.set_row(row, 28)
    sheet.write(row, 1, "Date", book.head(indent=1))
    sheet.merge_range(row, 2, row, 4, "Milestone", book.head())
    sheet.write(row, 5, "State", book.head())
    for day, what, state in milestones:
        row += 1
        sheet.set_row(row, 27)
        banded = row % 2 == 0
        sheet.write_datetime(row, 1, day, book.body(banded, num_format="d mmm yyyy", align="left", indent=1))
        sheet.merge_range(row, 2, row, 4, what, book.body(banded))
        color = {"done": look.GREEN, "under way": look.AMBER, "planned": look.SLATE}[state]
        sheet.write(row, 5, state, book.body(banded, bold=True, font_color=color))

    for i, topic in enumerate(data.service_topics):
        sheet.write(5 + i, 13, topic, book.body(i % 2 == 0))
    for g, (name, marks) in enumerate(data.service.items()):
        sheet.write(4, 14 + g, name, book.head(align="right"))
        for i, mark in enumerate(marks):
            sheet.write(5 + i, 14 + g, mark, book.body(i % 2 == 0, **RATE))
    sheet.write(4, 13, "Topic", book.head())
    sheet.set_column(13, 15, 18, book.style())

    chart = book.chart(sheet, 22, "radar", "Service quality", "What customers say", subtype="with_markers",
                       described="Radar of customers' marks from 1 to 10 on six topics", column=1)
    for g, color in ((1, look.SLATE), (0, look.TEAL)):
        letter = column_letter(14 + g)
        chart.add_series({
            "name": f"=Fleet!${letter}$5", "categories": "=Fleet!$N$6:$N$11",
            "values": f"=Fleet!${letter}$6:${letter}$11",
            "line": {"color": color, "width": 3},
            "marker": {"type": "circle", "size": 7, "fill": {"color": color}, "border": {"color": look.WHITE}},
        })
    chart.set_x_axis({"num_font": look.text(13, look.INK)})
    chart.set_y_axis({"min": 5, "max": 10, "major_unit": 1, "num_font": look.text(10), "line": {"none": True},
                      "major_gridlines": {"visible": True, "line": {"color": look.LINE}}})
    chart.set_plotarea({"layout": {"x": 0.3, "y": 0.19, "width": 0.4, "height": 0.66}})
    return sheet


def finance(book, data):
    sheet = book.sheet("Finance", "Finance", "Thousand euro", tab=look.CORAL, columns=8, column_width=13)
    rows, previous = [], None
    ebitda = [round(sum(data.revenue[m] * data.margin[m] for m in range(3 * q, 3 * q + 3))) for q in range(4)]
    depreciation = [round(v * 0.062) for v in data.quarters]
    plan = [
        ("Revenue", data.quarters),
        ("Operating costs", [e - r for e, r in zip(ebitda, data.quarters)]),
        ("EBITDA", ebitda),
        ("Depreciation", [-d for d in depreciation]),
        ("EBIT", [e - d for e, d in zip(ebitda, depreciation)]),
        ("Interest and tax", [-round((e - d) * 0.31) for e, d in zip(ebitda, depreciation)]),
    ]
    profit = [e + t for e, t in zip(plan[4][1], plan[5][1])]
    for name, values in plan:
        rows.append([name, *values, sum(values)])
    accounting = figure("#,##0;(#,##0)")
    totals = ["Profit for the year"]
    for i, value in enumerate([*profit, sum(profit)]):
        letter = column_letter(2 + i)
        totals.append((f"={letter}10+{letter}11", value))
    book.table(sheet, 4, 1, ["Income statement", *QUARTERS, "2026"], rows, [WORD] + [accounting] * 5, totals)

    row = 14
    book.table(sheet, row, 1, ["Costs", "2026", "Share"],
               [[name, value, value / sum(data.costs.values())] for name, value in data.costs.items()],
               [WORD, EURO, SHARE])

    # A bridge is a stack whose lowest part cannot be seen.
    row = 23
    base, level = [], 0
    for i, (_, change) in enumerate(data.bridge):
        base.append(0 if i == 0 else min(level, level + change))
        level += change
    lines = [[name, hidden, change if change > 0 and i else 0, -change if change < 0 else 0, change if i == 0 else 0]
             for i, ((name, change), hidden) in enumerate(zip(data.bridge, base))]
    lines.append(["Closing cash", 0, 0, 0, level])
    book.table(sheet, row, 1, ["Cash bridge", "Base", "In", "Out", "Balance"], lines, [WORD] + [MONEY] * 4)

    headcount = [("Hamburg", 612), ("Rotterdam", 540), ("Gdańsk", 318), ("Le Havre", 274), ("Yokohama", 143)]
    book.table(sheet, 14, 5, ["Site", "People"], [list(line) for line in headcount], [WORD, COUNT])

    start = datetime.date(2026, 7, 3)
    for i, head in enumerate(("Week", "High", "Low", "Close")):
        sheet.write(4, 11 + i, head, book.head())
    for week, high, low, close in data.shares:
        sheet.write_datetime(5 + week, 11, start + datetime.timedelta(weeks=week),
                             book.body(week % 2 == 0, num_format="d mmm yyyy", align="left"))
        for i, value in enumerate((high, low, close)):
            sheet.write(5 + week, 12 + i, value, book.body(week % 2 == 0, num_format="€0.00", align="right"))
    sheet.set_column(11, 14, 12.5, book.style())

    chart = book.chart(sheet, 33, "pie", "Cost breakdown", "Where the money goes",
                       "Pie of the operating costs by kind", legend="right")
    chart.add_series({
        "name": "Costs 2026", "categories": "=Finance!$B$16:$B$21", "values": "=Finance!$C$16:$C$21",
        "points": [{"fill": {"color": c}, "border": {"color": look.WHITE, "width": 1.5}} for c in look.SERIES],
        "data_labels": {"percentage": True, "position": "outside_end", "leader_lines": True,
                        "font": look.text(13, look.INK, bold=True)},
    })
    chart.set_rotation(25)
    look.side_by_side(chart)

    chart = book.chart(sheet, 59, "column", "Cash bridge", "From opening to closing cash", subtype="stacked",
                       described="Steps from the opening to the closing cash", legend=None)
    for letter, color in (("C", None), ("F", look.NAVY), ("D", look.GREEN), ("E", look.CORAL)):
        chart.add_series({
            "name": f"=Finance!${letter}$24", "categories": "=Finance!$B$25:$B$30",
            "values": f"=Finance!${letter}$25:${letter}$30", "gap": 40, "border": {"none": True},
            "fill": {"color": color} if color else {"none": True},
            **({"data_labels": {"value": True, "num_format": '[<1000]"";#,##0', "font": look.text(13, look.WHITE, True)}}
               if color else {}),
        })
    chart.set_x_axis(look.axis(num_font=look.text(13, look.INK)))
    chart.set_y_axis(look.value_axis("k€", num_format="#,##0"))

    chart = book.chart(sheet, 85, "stock", "Share price", "Share price, second half of 2026", legend=None,
                       described="High, low and close of the share by week")
    for letter, marker in (("M", None), ("N", None), ("O", True)):
        series = {"name": f"=Finance!${letter}$5", "categories": "=Finance!$L$6:$L$31",
                  "values": f"=Finance!${letter}$6:${letter}$31"}
        if marker:
            series["marker"] = {"type": "square", "size": 6, "fill": {"color": look.TEAL},
                                "border": {"color": look.TEAL}}
        chart.add_series(series)
    chart.set_high_low_lines({"line": {"color": look.NAVY, "width": 2}})
    chart.set_x_axis(look.axis(text_axis=True, num_format="d mmm", interval_unit=2))
    chart.set_y_axis(look.value_axis("Euro", num_format="0", min=26, max=42, major_unit=4))
    return sheet


def german(book, data):
    sheet = book.sheet("Übersicht", "Übersicht für den Beirat", "Beträge in Tausend Euro", tab=look.SLATE,
                       columns=6, column_width=14)
    lines = [[quarter, data.quarters[q], data.cafe[q], data.quarters[q] / data.total_revenue]
             for q, quarter in enumerate(["1. Quartal", "2. Quartal", "3. Quartal", "4. Quartal"])]
    book.table(sheet, 4, 1, ["Zeitraum", "Erlöse", "Café am Kai", "Anteil"], lines,
               [WORD, MONEY, RATE, SHARE],
               ["Jahr 2026", ("=SUM(C6:C9)", data.total_revenue), ("=SUM(D6:D9)", round(sum(data.cafe), 1)), 1])
    chart = book.chart(sheet, 12, "column", "Erlöse nach Quartal", "Erlöse nach Quartal", legend=None,
                       described="Säulen der Erlöse je Quartal")
    chart.add_series({
        "name": "Erlöse", "categories": "=Übersicht!$B$6:$B$9", "values": "=Übersicht!$C$6:$C$9", "gap": 90,
        **look.solid(1), "data_labels": {"value": True, "num_format": "#,##0", "font": look.text(14, look.INK, True)},
    })
    chart.set_x_axis(look.axis(num_font=look.text(13, look.INK)))
    chart.set_y_axis(look.value_axis("Tausend Euro", num_format="#,##0", min=0))
    return sheet


def japanese(book, data):
    sheet = book.sheet("日本", "日本デスク", "取扱量 (TEU)", tab=look.TEAL, columns=13, column_width=9.5)
    months = [f"{m}月" for m in range(1, 13)]
    book.table(sheet, 4, 1, ["港", *months], [[port, *values] for port, values in data.yokohama.items()],
               [WORD] + [COUNT] * 12)
    chart = book.chart(sheet, 10, "line", "横浜と神戸", "横浜港と神戸港の取扱量", "横浜港と神戸港の月別取扱量の折れ線")
    for i, color in enumerate((look.TEAL, look.AMBER)):
        chart.add_series({
            "name": f"=日本!$B${6 + i}", "categories": "=日本!$C$5:$N$5", "values": f"=日本!$C${6 + i}:$N${6 + i}",
            "line": {"color": color, "width": 3},
            "marker": {"type": "circle", "size": 7, "fill": {"color": look.WHITE}, "border": {"color": color}},
        })
    chart.set_x_axis(look.axis())
    chart.set_y_axis(look.value_axis("TEU", num_format="#,##0", min=0))
    return sheet


def workings(book, data):
    """A sheet that nobody is meant to see: its chart and its name must not travel."""
    sheet = book.sheet("Workings", "Workings", "Not for the board")
    book.table(sheet, 4, 1, ["Month", "Budget"],
               [[month, round(value * 0.97)] for month, value in zip(MONTHS, data.revenue)], [WORD, MONEY])
    chart = book.chart(sheet, 19, "line", "Draft margin", "Draft: budget", "Line of the budget by month")
    chart.add_series({"name": "Budget", "categories": "=Workings!$B$6:$B$17", "values": "=Workings!$C$6:$C$17",
                      **look.stroke(4)})
    sheet.hide()
    return sheet


def chart_sheets(book, data, source):
    """Outlook and Quarter mix: charts that are sheets of their own."""
    source.write(20, 16, "Outlook", book.head())
    source.write(20, 17, 2027, book.head(align="right", num_format="0"))
    for m, value in enumerate(data.outlook):
        source.write(21 + m, 16, MONTHS[m], book.body(m % 2 == 0))
        source.write(21 + m, 17, value, book.body(m % 2 == 0, **MONEY))
    for q, quarter in enumerate(QUARTERS):
        source.write(36, 17 + q, quarter, book.head(align="right"))
    for i, (name, months) in enumerate(data.segments.items()):
        source.write(37 + i, 16, name, book.body(i % 2 == 0))
        for q in range(4):
            source.write(37 + i, 17 + q, sum(months[3 * q:3 * q + 3]), book.body(i % 2 == 0, **MONEY))
    source.write(36, 16, "Quarters", book.head())
    source.set_column(16, 16, 22, book.style())

    outlook = look.dress(book.file.add_chart({"type": "area"}), "Outlook: 2027 against 2026")
    outlook.add_series({"name": "Outlook 2027", "categories": "=Revenue!$Q$22:$Q$33",
                        "values": "=Revenue!$R$22:$R$33",
                        "fill": {"color": look.TEAL, "transparency": 60}, "border": {"color": look.TEAL, "width": 2.5}})
    line = book.file.add_chart({"type": "line"})
    line.add_series({"name": "Actual 2026", "categories": "=Revenue!$Q$22:$Q$33", "values": "=Revenue!$T$6:$T$17",
                     **look.stroke(0, 3)})
    outlook.combine(line)
    outlook.set_x_axis(look.axis())
    outlook.set_y_axis(look.value_axis("k€ a month", num_format="#,##0", min=0))
    book.file.add_chartsheet("Outlook 2027").set_chart(outlook)

    mix = look.dress(book.file.add_chart({"type": "bar", "subtype": "percent_stacked"}), "Segment mix by quarter")
    for i in range(5):
        mix.add_series({
            "name": f"=Revenue!$Q${38 + i}", "categories": "=Revenue!$R$37:$U$37",
            "values": f"=Revenue!$R${38 + i}:$U${38 + i}", "gap": 45, **look.solid(i),
            "data_labels": {"value": True, "num_format": "#,##0", "font": look.text(11, look.WHITE)},
        })
    mix.set_y_axis(look.axis(reverse=True, num_font=look.text(13, look.INK)))
    mix.set_x_axis(look.value_axis(None, num_format="0%", label_position="high"))
    book.file.add_chartsheet("Segment mix").set_chart(mix)


def names(book):
    define = book.file.define_name
    define("KPI_Overview", "=Overview!$B$5:$M$7")
    define("Segment_Revenue", "=Revenue!$B$5:$O$12")
    define("Terminal_Throughput", "=Terminals!$B$5:$G$11")
    define("Yard_Occupancy", "=Terminals!$B$14:$N$20")
    define("Income_2026", "=Finance!$B$5:$G$12")
    define("Erlöse_Café", "=Übersicht!$B$5:$E$10")
    define("Fleet!Depots_December", "=Fleet!$B$5:$G$11")
    define("Fleet!Milestones", "=Fleet!$B$14:$F$19")
    define("Finance!Headcount", "=Finance!$F$15:$G$20")
    define("日本!取扱量", "=日本!$B$5:$N$7")
    # What looks like an item and is none: several areas, a constant, a formula, a lost reference, a hidden name, and a
    # range of a hidden sheet.
    define("Peak_Months", "=Revenue!$B$5:$B$11,Revenue!$K$5:$M$11")
    define("VAT_Rate", "=0.19")
    define("Total_TEU", "=SUM(Terminals!$D$6:$D$11)")
    define("Old_Tariffs", "=#REF!$A$1:$C$9")
    define("Calc_Scratch", "=Fleet!$N$5:$P$11")
    book.file.defined_names[-1][3] = True
    define("Budget_Draft", "=Workings!$B$5:$C$17")


def stored_items(data):
    """What the user settled in an earlier session, in that session's order."""
    return [
        store.Item("Revenue and margin", "Overview", "Embedded",
                   caption=f"Revenue grew by {data.growth:.0%}, the margin reached {data.margin[-1]:.1%}"),
        store.Item("KPI_Overview", "Overview", "Range", slide="2"),
        store.Item("Segment revenue", "Revenue", "Embedded", slide="3"),
        store.Item(store.CHART_SHEET, "Outlook 2027", "Chart", caption="2027: growth goes on"),
        store.Item("Throughput by terminal", "Terminals", "Embedded",
                   caption=f"{max(TERMINALS, key=lambda t: data.throughput[t][1] / data.throughput[t][0])} "
                           "grew fastest"),
        store.Item("Yard_Occupancy", "Terminals", "Range"),
        store.Item("Share price", "Finance", "Embedded", included=False),
    ]


def write_workbook(path):
    data = Figures()
    book = Book(path)
    overview(book, data).activate()
    source = revenue(book, data)
    terminals(book, data)
    fleet(book, data)
    finance(book, data)
    chart_sheets(book, data, source)
    german(book, data)
    japanese(book, data)
    workings(book, data)
    names(book)
    store.write(book.file, stored_items(data))
    book.file.close()

    drawings = {
        # The size that the charts on the worksheets have; the library's own is that of a sheet of paper.
        f"xl/drawings/drawing{number}.xml": replace(
            '<xdr:ext cx="9308969" cy="6078325"/>',
            f'<xdr:ext cx="{look.WIDTH * 9525}" cy="{look.HEIGHT * 9525}"/>',
        )
        for number in (6, 7)
    }
    edit_package(path, {"xl/workbook.xml": in_order(store.hide_well), **drawings})
