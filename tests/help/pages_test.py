"""The pages of help as they are written: nothing that they lead to and nothing that leads to them is missing."""

import html.parser
import pathlib
import re
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
HELP = ROOT / "help"
PAGES = sorted(HELP.glob("*.html"))


class Page(html.parser.HTMLParser):
    def __init__(self, file):
        super().__init__()
        self.links, self.pictures, self.classes, self.sections = set(), {}, set(), set()
        self.feed(file.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.classes.update(values.get("class", "").split())
        self.sections.add(values.get("id"))
        if tag in ("a", "link"):
            self.links.add(values["href"])
        elif tag == "img":
            self.pictures[values["src"]] = values


def size_of(picture):
    header = picture.read_bytes()[16:24]
    return int.from_bytes(header[:4], "big"), int.from_bytes(header[4:], "big")


class Pages(unittest.TestCase):
    def setUp(self):
        self.pages = {file.name: Page(file) for file in PAGES}

    def test_lead_to_files_that_are_there(self):
        for name, page in self.pages.items():
            for link in page.links:
                self.assertTrue((HELP / link).is_file(), f"{name} leads to {link}")

    def test_are_led_to_from_the_list_of_topics(self):
        reached, ahead = set(), ["help_popup.html"]
        while ahead:
            name = ahead.pop()
            if name in self.pages and name not in reached:
                reached.add(name)
                ahead += self.pages[name].links
        self.assertEqual(reached, set(self.pages))

    def test_show_pictures_at_half_their_size_and_in_words(self):
        shown = set()
        for name, page in self.pages.items():
            for source, values in page.pictures.items():
                shown.add(HELP / source)
                width, height = size_of(HELP / source)
                self.assertEqual((int(values["width"]), int(values["height"])), (width // 2, height // 2), name)
                self.assertTrue(values["alt"], name)
        self.assertEqual(shown, set(HELP.glob("pictures/*")))

    def test_have_what_the_reader_looks_for(self):
        for name, page in self.pages.items():
            self.assertLessEqual({"main-header", "popup-container", "content-area", "footer"}, page.classes, name)

    def test_are_there_under_the_names_that_the_program_asks_for(self):
        sources = "".join(file.read_text(encoding="utf-8") for file in (ROOT / "src").rglob("*.cpp"))
        sources += (ROOT / "src/session/web_pages.h").read_text(encoding="utf-8")
        asked = set(re.findall(r'"((?:help_\w+|overview|faq|contact)\.html)"', sources))
        self.assertGreaterEqual(len(asked), 14)
        self.assertLessEqual(asked, set(self.pages))
        sections = set(re.findall(r'optionsHelp, "(\w+)"', sources))
        self.assertGreaterEqual(len(sections), 4)
        self.assertLessEqual(sections, self.pages["help_export_options.html"].sections)

    def test_are_valid(self):
        checked = subprocess.run(["tidy", "-q", "-e", "--warn-proprietary-attributes", "no", *PAGES],
                                 capture_output=True, text=True)
        self.assertEqual((checked.returncode, checked.stderr), (0, ""))


if __name__ == "__main__":
    unittest.main()
