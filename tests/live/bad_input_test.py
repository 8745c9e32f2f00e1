"""Inputs that a user may well have: each gives a clear message or the right result, and nothing outside its folder."""

import json
import os
import re
import resource
import shutil
import signal
import subprocess
import unittest
import zipfile
from html import unescape
from urllib.parse import unquote
from xml.etree import ElementTree

from program import EVERY_OUTPUT, OUTPUTS, SAMPLES, Package, ProgramTest, every_output, slides_of
from validator import faults

BAD = SAMPLES / "bad-inputs"
BOOK = SAMPLES / "few-charts.xlsx"
LARGE_BOOK = SAMPLES / "Harbour Logistics 2026.xlsx"

DONE, FAILED, USAGE, BLOCKED = 0, 1, 2, 3


class ABadInput(ProgramTest):
    def export(self, *arguments):
        result = self.run_program(*arguments)
        self.assert_nothing_left()
        return result

    def test_is_refused_with_its_reason(self):
        cases = [
            (FAILED, "no-such-file.xlsx", [self.folder / "no-such-file.xlsx"]),
            (FAILED, 'not-a-workbook.xlsx" could not be opened: it is no workbook', [BAD / "not-a-workbook.xlsx"]),
            (FAILED, "truncated.xlsx", [BAD / "truncated.xlsx"]),
            (FAILED, "password", [BAD / "password.xlsx"]),
            (FAILED, 'not-a-workbook.xlsx" could not be opened: it is no presentation', [BOOK, "--into", BAD / "not-a-workbook.xlsx"]),
            (FAILED, 'few-charts.xlsx" could not be opened: it is no presentation', [BOOK, "--into", BOOK]),
            (FAILED, "empty.xlsx has no chart and no named range", [BAD / "empty.xlsx"]),
            (BLOCKED, "protected", [BAD / "structure-protected.xlsx"]),
        ]
        for number, (code, word, arguments) in enumerate(cases):
            with self.subTest(word=word, arguments=arguments):
                output = self.folder / f"{number}.pptx"
                result, _, errors = self.export(*arguments, "--output", output)
                # A file that is missing or of the wrong kind may be found out as wrong usage before anything starts.
                self.assertIn(result, (code, USAGE) if code == FAILED else (code,), errors)
                self.assertIn(word, errors)
                self.assertFalse(output.exists())

    def test_a_workbook_that_may_not_be_written_is_exported_all_the_same(self):
        # A workbook that has no list of Murvane's yet, so that one has to be made.
        source = BAD / "negative-chartsheet.xlsx"
        locked, guarded = (self.folder / f"{name}.xlsx" for name in ("locked", "guarded"))
        # Before a change: for a password as Excel has it now, or whether it is meant and as Excel had it.
        asking = {self.folder / f"{name}.xlsx": sharing for name, sharing in (
            ("secret", b'algorithmName="SHA-512" hashValue="AAAA" saltValue="AAAA" spinCount="100000"'),
            ("secret of old", b'readOnlyRecommended="1" reservationPassword="CC3D"'))}
        for copy in (locked, guarded):
            shutil.copy(source, copy)
        # What another LibreOffice leaves beside a file while it has it open.
        lock = self.folder / ".~lock.locked.xlsx#"
        lock.write_text(f",someone,elsewhere,21.11.2026 09:00,file://{self.folder};")
        for copy, sharing in asking.items():
            with zipfile.ZipFile(source) as old, zipfile.ZipFile(copy, "w") as new:
                for name in old.namelist():
                    data = old.read(name)
                    if name == "xl/workbook.xml":
                        data = re.sub(rb"<workbook[^>]*>(<fileVersion[^>]*>)?",
                                      rb"\g<0><fileSharing " + sharing + rb"/>", data, count=1)
                    new.writestr(name, data)
        guarded.chmod(0o444)
        options = {}
        if os.geteuid() == 0:
            # The superuser may write everything.
            options["user"] = 65534
            for path in (self.folder, *self.folder.rglob("*")):
                os.chown(path, 65534, -1)
            self.environment["XDG_CACHE_HOME"] = str(self.folder)
            os.chown(guarded, 0, 0)
        for book in (locked, *asking, guarded):
            with self.subTest(book=book.name):
                before = book.read_bytes()
                output = self.folder / f"{book.stem}.pptx"
                result, _, errors = self.run_program(book, "--all", "--source", "--output", output, **options)
                self.assertEqual(result, DONE, errors)
                slides = Package(output)
                self.assertTrue(any(str(book).encode() in slides.read(part) for part in slides.names
                                    if part.startswith("ppt/slides/slide")))
                self.assertEqual(book.read_bytes(), before)
        self.assertTrue(lock.exists(), "the other program's lock is its own")

    def test_a_chart_in_a_group_is_found(self):
        result, output, errors = self.export(BAD / "grouped-chart.xlsx", "--list", "--json")
        self.assertEqual(result, DONE, errors)
        self.assertIn("chart", {item["kind"] for item in json.loads(output)["items"]})

    def test_odd_names_arrive_or_are_refused_and_never_leave_their_folder(self):
        result, listing, errors = self.export(BAD / "odd-names.xlsx", "--list", "--json")
        self.assertEqual(result, DONE, errors)
        items = json.loads(listing)["items"]
        self.assertGreater(len(items), 10)
        inside = self.folder / "inside"
        inside.mkdir()
        result, _, errors = self.export(BAD / "odd-names.xlsx", "--all", "--keep-going", *every_output(inside))
        self.assertEqual(result, DONE, errors)
        self.assertEqual({p.name for p in inside.iterdir()}, EVERY_OUTPUT)
        expected = [item["caption"] or (item["sheet"] if item["name"] == "{Chart Sheet}" else item["name"])
                    for item in items if not item["severalAreas"]]
        arrived = [picture["description"] for slide in slides_of(inside / "x.pptx") for picture in slide.pictures]
        self.assertCountEqual(arrived, expected)
        self.assertEqual(faults(inside / "x.docx"), [])
        body = ElementTree.fromstring(Package(inside / "x.docx").read("word/document.xml"))
        self.assertEqual(sorted(each.get("descr") for each in body.iter() if each.tag.endswith("}docPr")),
                         sorted(arrived))
        self.assertEqual(len(list((inside / "images").iterdir())), len(arrived), "a file for each")
        self.assertTrue(all(file.is_file() for file in (inside / "images").iterdir()))
        (page,) = (inside / "html").glob("*.html")
        text = page.read_text()
        self.assertEqual(re.findall("<script|onerror=|javascript:", text), [])
        self.assertTrue(all((inside / "html" / unquote(unescape(picture))).is_file()
                            for picture in re.findall('src="([^"]*)"', text)))
        self.assertEqual(subprocess.run(["tidy", "-e", "-q", "-utf8", page], capture_output=True).stderr, b"")

    def test_a_full_disk_is_told_and_nothing_half_written_stays(self):
        def no_room(kilobytes):
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (kilobytes * 1024,) * 2)
        self.export(BOOK, "--list")  # the suite's profile has to fit
        for destination, kilobytes in [*((each, 150) for each in OUTPUTS), ("slides", 250), ("word", 250)]:
            with self.subTest(destination=destination, kilobytes=kilobytes):
                inside = self.folder / f"{destination}{kilobytes}"
                inside.mkdir()
                result, _, errors = self.run_program(
                    LARGE_BOOK if destination == "pdf" else BOOK, "--all", "--to", destination, "--output", inside / OUTPUTS[destination],
                    restore_signals=False, preexec_fn=lambda room=kilobytes: no_room(room))
                self.assertEqual(result, FAILED, errors)
                # A suite without room for its own files may end over it.
                self.assertRegex(errors, "can't be written|could not be (written|made)|suite has gone")
                self.assertNotIn(".murvane-of", errors)
                self.assertEqual(list(inside.iterdir()), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
