"""Slides that are added to presentations of many kinds: all else stays as it was; what cannot be taken is refused."""

import concurrent.futures
import os
import re
import shutil
import unittest

import rich_decks
from program import SAMPLES, Package, ProgramTest, slides_of
from rich_decks import HEAD, PRESENTATION

BOOK = SAMPLES / "few-charts.xlsx"
ENCRYPTED = SAMPLES / "bad-inputs" / "password.xlsx"
ITEMS = ("Chart 1@Sheet 1", "Chart 2@Sheet 1")
CAPTIONS = ("A share of <it>", "The year's bridge")

# The deck, the output, what is said, and whether the suite had to write it anew.
ADDED = [
    ("heavy.pptx", "heavy.pptx", "", False),
    ("masters.pptx", "masters.pptx", "", False),
    ("rich.pptx", "rich.pptx", "", False),
    ("signed.pptm", "signed.pptm", "is signed", False),
    ("bare.potx", "bare.pptx", "", False),
    ("bare.potm", "bare.pptm", "", False),
    ("strict.pptx", "strict.pptx", "strict", True),
]


def made(change):
    """A writer of a deck after a change to it."""
    def write(path):
        deck = rich_decks.Deck(2)
        change(deck)
        deck.write(path)
    return write


def presentation(old, new):
    return made(lambda deck: deck.edit(PRESENTATION, (old, new)))


# What the message says, and what writes the file.
REFUSED = [
    ("password", lambda path: shutil.copy(ENCRYPTED, path)),
    ("bytes", presentation("<p:sldSz", " " * (65 << 20) + "<p:sldSz")),
    ("two parts", made(lambda deck: deck.raw.append((PRESENTATION.upper(), HEAD)))),
    (PRESENTATION, presentation("</p:presentation>", "")),
    ("slide2", made(lambda deck: deck.parts.pop("ppt/slides/slide2.xml"))),
]


def changed_parts(source, output):
    """The parts of the source, in small letters, that the output has in other bytes or not at all."""
    old, new = Package(source), Package(output)
    return {name for name in old.names if name not in new.names or old.compressed(name) != new.compressed(name)}


class ADeck(ProgramTest):
    def export(self, source, output, *arguments):
        captions = self.folder / "captions.csv"
        rows = (f"{item.replace('@', ',')},{caption},{n}\n" for n, (item, caption) in enumerate(zip(ITEMS, CAPTIONS), 2))
        captions.write_text("item,sheet,caption,slide\n" + "".join(rows))
        items = [word for item in ITEMS for word in ("--items", item)]
        return self.run_program(BOOK, "--into", source, "--output", output, "--titles", "--captions", captions, *items,
                                *arguments)

    def make(self, name):
        return rich_decks.write(self.folder, name)

    def expected_changes(self, source):
        main = Package(source).main
        return {main, os.path.join(os.path.dirname(main), "_rels", os.path.basename(main) + ".rels"),
                "[content_types].xml", "docprops/app.xml"}

    def add_to(self, name, output):
        source = self.make(name)
        return source, self.folder / "out" / output, self.export(source, self.folder / "out" / output)

    def test_keeps_every_part_of_its_own_and_gains_the_slides(self):
        (self.folder / "out").mkdir()
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
            done = list(workers.map(lambda row: self.add_to(*row[:2]), ADDED))
            slides = list(workers.map(lambda run: slides_of(run[1], run[0]), done))
        for (name, _, said, is_rewritten), (source, output, (code, _, errors)), found in zip(ADDED, done, slides):
            with self.subTest(deck=name):
                self.assertEqual(code, 0, errors)
                self.assertIn(said, errors)
                if not is_rewritten:
                    self.assertLessEqual(changed_parts(source, output), self.expected_changes(source))
                before = rich_decks.DECKS[name][0]
                self.assertEqual(len(found), before + len(ITEMS))
                self.assertEqual([slide.title for slide in found[before:]], list(CAPTIONS))
                width = 720 if name == "signed.pptm" else 960
                for slide in found[before:]:
                    (picture,) = slide.pictures
                    self.assertAlmostEqual(picture["left"] + picture["width"] / 2, width / 2, delta=0.1)
                    self.assertAlmostEqual(picture["top"] + picture["height"] / 2, 540 / 2, delta=0.1)
                if before and not is_rewritten:
                    self.assertEqual({slide.layout for slide in found[before:]}, {found[before - 1].layout})
        self.assert_nothing_left()
        rich = Package(self.folder / "out" / "rich.pptx")
        in_sections = re.findall(r'<p14:sldId id="(\d+)"', rich.read(PRESENTATION).decode())
        self.assertEqual(in_sections, re.findall(r'<p:sldId id="(\d+)"', rich.read(PRESENTATION).decode()))

    def test_gains_pictures_above_what_its_slides_show(self):
        source, output = self.make("rich.pptx"), self.folder / "out.pptx"
        code, _, errors = self.export(source, output, "--slides", "predefined")
        self.assertEqual(code, 0, errors)
        slides = {f"ppt/slides/slide{n}.xml" for n in (2, 3)}
        related = {f"ppt/slides/_rels/slide{n}.xml.rels" for n in (2, 3)}
        self.assertLessEqual(changed_parts(source, output), self.expected_changes(source) | slides | related)
        for slide in slides_of(output, source)[1:]:
            self.assertTrue(slide.xml[0][-1][-1].tag.endswith("}pic"))
        kept = Package(output).read("ppt/slides/slide2.xml").decode()
        for text in ("<p:timing>", "p14:vortex"):
            self.assertIn(text, kept)

    def test_is_refused_with_its_reason_and_nothing_is_written(self):
        for number, (said, write) in enumerate(REFUSED):
            with self.subTest(said=said):
                source, output = self.folder / f"{number}.pptx", self.folder / f"out-{number}.pptx"
                write(source)
                before = source.read_bytes()
                code, _, errors = self.export(source, output)
                self.assertEqual(code, 1, errors)
                self.assertIn(said, errors)
                self.assertIn(source.name, errors)
                self.assertEqual(source.read_bytes(), before)
                self.assertFalse(output.exists())


if __name__ == "__main__":
    unittest.main(verbosity=2)
