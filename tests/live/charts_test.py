"""Charts of every kind go into a presentation as charts, and look there as they do in their workbook."""

import re
import subprocess
import unittest
import urllib.parse
import zipfile

import xlsxwriter
from program import Package, ProgramTest, slides_of

SUBTYPES = {
    "bar": (None, "stacked", "percent_stacked"), "column": (None, "percent_stacked"), "line": (None, "stacked"),
    "area": (None, "percent_stacked"), "radar": (None, "with_markers", "filled"), "pie": (None,), "doughnut": (None,),
    "scatter": (None, "straight_with_markers", "straight", "smooth_with_markers", "smooth"), "stock": (None,),
}
# What the library has no option for: the kind that it comes from, and what is said instead.
REWRITTEN = {
    "pie of pie": ("pie", [("<c:pieChart>", '<c:ofPieChart><c:ofPieType val="pie"/>'),
                           ('<c:firstSliceAng val="0"/></c:pieChart>', "</c:ofPieChart>")]),
    "bubble": ("scatter", [("scatterChart>", "bubbleChart>"), ('<c:scatterStyle val="lineMarker"/>', ""),
                           (r"<c:spPr>.*?</c:spPr>(<c:xVal>)", r"\1"),
                           (r"<c:yVal>(.*?)</c:yVal>", r"<c:yVal>\1</c:yVal><c:bubbleSize>\1</c:bubbleSize>")]),
    "column in depth": ("column", [("barChart>", "bar3DChart>"),
                                   ("<c:plotArea>", '<c:view3D><c:rotX val="15"/><c:rotY val="20"/></c:view3D><c:plotArea>')]),
    "surface": ("column", [('<c:barChart><c:barDir val="col"/><c:grouping val="clustered"/>', "<c:surface3DChart>"),
                           ("</c:barChart>", '<c:axId val="7"/></c:surface3DChart>'),
                           (r'(<c:axId val="(\d+)"/>.*)</c:plotArea>',
                            r'\1<c:serAx><c:axId val="7"/><c:scaling/><c:axPos val="b"/><c:crossAx val="\2"/></c:serAx>'
                            "</c:plotArea>")]),
}
# The version of a program that a workbook says that it is of.
OLDER, NEWER = "12.0000", "16.0300"
SIGNS = {"png": b"\x89PN", "jpeg": b"\xff\xd8\xff"}
ROWS = 6
SHEET = "'Port O''Call'"


def cells(column):
    return f"={SHEET}!${column}$2:${column}${ROWS + 1}"


def chart(book, kind, name, **looks):
    made = book.add_chart({"type": kind})
    made.add_series({"name": name, "categories": cells("A"), "values": cells("B"), **looks})
    return made


def dressed(book):
    """Charts that have more than their kind."""
    both = chart(book, "column", "two axes")
    line = chart(book, "line", "second", y2_axis=True)
    both.combine(line)
    yield both
    yield chart(book, "column", "errors", y_error_bars={"type": "percentage", "value": 20},
                trendline={"type": "linear", "display_equation": True})
    yield chart(book, "column", "labels", data_labels={"value": True, "custom": [
        {"value": f"={SHEET}!$A${row}"} for row in range(2, ROWS + 2)]})
    yield chart(book, "line", "some labels", data_labels={"series_name": True, "value": True, "custom": [{"delete": True}]})
    yield chart(book, "column", "pattern", pattern={"pattern": "wide_upward_diagonal", "fg_color": "red"},
                points=[None, {"fill": {"color": "green"}}])
    log = chart(book, "line", "logarithm")
    log.set_y_axis({"log_base": 10, "name": "orders", "reverse": True})
    yield log
    empty = book.add_chart({"type": "column"})
    empty.add_series({"name": "empty", "values": cells("E")})
    yield empty
    for axis in ({"date_axis": True}, {"text_axis": True}):
        dates = book.add_chart({"type": "line"})
        dates.add_series({"name": "days", "categories": cells("D"), "values": cells("B")})
        dates.set_x_axis({**axis, "num_format": "d mmm"})
        yield dates


def write(path, version):
    with xlsxwriter.Workbook(path) as book:
        data = book.add_worksheet(SHEET.strip("'").replace("''", "'"))
        data.write_row(0, 0, ["Port", "2025", "2026", "Day"])
        for row in range(1, ROWS + 1):
            data.write_row(row, 0, [f"port {row}", 7 * row % 11 + 1])
            # With no result but 0 in the file, which asks who opens it to calculate.
            data.write_formula(row, 2, f"=MOD(5*{row},7)+2")
            # Cells that are blank, and those that only look so, which count as 0.
            if row % 3 == 2:
                data.write_formula(row, 4, '=""', None, "")
            elif row % 3 == 1:
                data.write(row, 4, row)
            data.write(row, 3, 46000 + row * row, book.add_format({"num_format": "yyyy-mm-dd"}))
        rewrites, charts = {}, []
        # Of an older program one of each kind. Not all that it leaves out shows there: a scatter chart of points has no line
        # to be smooth.
        for kind, subtype, edits in [*((kind, sub, []) for kind, subs in SUBTYPES.items()
                                       for sub in subs[:1 if version == OLDER else None]),
                                     *((kind, None, edits) for kind, edits in REWRITTEN.values())]:
            made = book.add_chart({"type": kind, **({"subtype": subtype} if subtype else {})})
            for column in "BCB" if kind == "stock" else "B" if edits else "BC":
                made.add_series({"name": f"{kind} {column}", "categories": cells("A"), "values": cells(column)})
            charts.append(made)
            rewrites[f"xl/charts/chart{len(charts)}.xml"] = edits
        charts += dressed(book)
        for number, made in enumerate(charts):
            if number % 8 == 0:
                sheet = book.add_worksheet()
            sheet.insert_chart(number % 8 * 16, 0, made)
        book.add_chartsheet("Whole").set_chart(chart(book, "line", "whole"))
    with zipfile.ZipFile(path) as old:
        parts = [(name, old.read(name)) for name in old.namelist()]
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as new:
        for name, content in parts:
            for pattern, text in rewrites.get(name, []):
                edited = re.sub(pattern, text, content.decode(), flags=re.DOTALL).encode()
                assert edited != content, (name, pattern)
                content = edited
            if version != OLDER:
                # As a program leaves a template's charts that fills its cells alone.
                content = re.sub(rb"(?<=<c:v>)[\d.]+(?=</c:v>)", b"9", content)
            new.writestr(name, content.replace(OLDER.encode(), version.encode()))
    return len(charts) + 1


# Where the charts stand, in shares of a slide, and in pixels of a slide that is drawn small.
PLACE = ("--top", "0.1", "--left", "0.09375", "--width", "0.36")
LEFT, TOP, WIDTH, HEIGHT = 50, 30, 192, 115
DOTS_PER_INCH = 40


class Charts(ProgramTest):
    def export(self, book, count, *arguments):
        deck = self.folder / f"{arguments[0]} {book.name}.pptx"
        code, output, errors = self.run_program(book, "--all", "--to", "slides", "--output", deck, *PLACE,
                                                "--format", *arguments)
        self.assertEqual(code, 0, output + errors)
        self.assertEqual(len(slides_of(deck)), count)
        return deck

    def drawn(self, *decks):
        """For each deck the charts of its slides as small pictures. One suite draws all."""
        self.as_pdf(*decks)
        for deck in decks:
            subprocess.run(["pdftoppm", "-r", f"{DOTS_PER_INCH}", "-x", f"{LEFT}", "-y", f"{TOP}", "-W", f"{WIDTH}",
                            "-H", f"{HEIGHT}", f"{deck.with_suffix('')}.pdf", deck], check=True)
        return [sorted(self.folder.glob(f"{deck.name}-*.ppm")) for deck in decks]

    @staticmethod
    def differences(pictures, charts):
        """How far each of the workbook's pictures is from the chart on a slide."""
        pairs = [["(", "(", picture, "-scale", f"{WIDTH}x", "-crop", f"{WIDTH}x{HEIGHT}+0+0", "+repage", ")", chart,
                  "-blur", "0x2", "-metric", "RMSE", "-compare", "-write", "info:-", "+delete", ")"]
                 for picture, chart in zip(pictures, charts, strict=True)]
        # A picture is read no larger than it is compared: half the time goes into that.
        compared = subprocess.run(["convert", "-define", f"jpeg:size={2 * WIDTH}x", "-format", "%[distortion]\n",
                                   *[word for pair in pairs for word in pair], "xc:", "null:"],
                                  check=True, capture_output=True, text=True)
        return [float(line) for line in compared.stdout.split()]

    def test_look_as_in_their_workbook(self):
        """Whichever program the workbook says that it is of, by which flags that are left out mean other things."""
        decks, counts = {}, {}
        # The older one has fewer charts: a PNG takes longer to read.
        pictures_of = {OLDER: "png", NEWER: "jpeg"}
        for version, kind in pictures_of.items():
            book, images = self.folder / f"It's {version}.xlsx", self.folder / f"images {version}"
            count = write(book, version)
            decks[version] = self.export(book, count, "editable", "--to", "images", "--output", images,
                                         "--file-names", "number", "--image-format", kind)
            counts[version] = count
            self.check_data(Package(decks[version]), "editable", book, count)
        self.check_data(Package(self.export(book, count, "linked")), "linked", book, count)
        for version, charts in zip(decks, self.drawn(*decks.values()), strict=True):
            images = {picture.stem: picture for picture in (self.folder / f"images {version}").iterdir()}
            pictures = [images[str(number + 1)] for number in range(counts[version])]
            self.assertEqual({picture.read_bytes()[:3] for picture in pictures}, {SIGNS[pictures_of[version]]})
            differences = self.differences(pictures, charts)
            self.assertEqual(len(differences), counts[version])
            for number, difference in enumerate(differences):
                with self.subTest(version=version, slide=number + 1):
                    self.assertLess(difference, 0.06)

    def check_data(self, package, kind, book, count):
        """The data of each chart is in a workbook that has the sheets of its formulas, of which each has a copy."""
        charts = [name for name in package.names if re.fullmatch(r"ppt/charts/chart\d+\.xml", name)]
        self.assertEqual(len(charts), count)
        sources = set()
        for chart in charts:
            xml = package.read(chart).decode()
            self.assertEqual(set(re.findall(r"<c:f>('[^!]*')!", xml)), {SHEET})
            days = re.findall(r"<c:cat><c:numRef><c:f>[^<]*</c:f><c:numCache><c:formatCode>([^<]*)", xml)
            self.assertLessEqual(set(days), {"yyyy-mm-dd"}, "the format of the cells")
            for points in re.findall(r"!\$E\$2:.*?<c:numCache>(.*?)</c:numCache>", xml):
                self.assertEqual(re.findall(r'idx="(\d)"><c:v>(\d)</c:v>', points),
                                 [("0", "1"), ("1", "0"), ("3", "4"), ("4", "0")])
            where = re.search(r'<c:externalData [^>]*r:id="(\w+)"', xml).group(1)
            rels = package.read(re.sub(r"charts/(.*)", r"charts/_rels/\1.rels", chart)).decode()
            sources.add(re.search(rf'Id="{where}"[^>]*Target="([^"]*)"', rels).group(1))
        if kind == "editable":
            self.assertEqual(len(sources), count)
            for copy in sources:
                self.assertEqual(package.read(copy.replace("../", "ppt/")), book.read_bytes())
        elif kind == "linked":
            (link,) = sources
            self.assertEqual(urllib.parse.unquote(link), f"file://{book}")


if __name__ == "__main__":
    unittest.main()
