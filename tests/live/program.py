"""Runs murvane-export as a user's script does, in a home of its own, and looks for what it left behind."""

import atexit
import glob
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile
import zlib
from xml.etree import ElementTree

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "support"))

from validator import assert_no_new_faults  # noqa: E402

BUILD = pathlib.Path(os.environ["MURVANE_BUILD"])
SAMPLES = pathlib.Path(os.environ["MURVANE_SAMPLES"])
PROGRAM = BUILD / "bin" / "murvane-export"

NAMESPACES = {
    "a": "http://schemas.openxmlformats.org/drawingml/2006/main",
    "p": "http://schemas.openxmlformats.org/presentationml/2006/main",
    "r": "http://schemas.openxmlformats.org/officeDocument/2006/relationships",
}


def processes_naming(text):
    """Ids of the processes that have the text in their command line, this one aside."""
    found = []
    for path in glob.glob("/proc/[0-9]*/cmdline"):
        try:
            command = pathlib.Path(path).read_bytes().decode(errors="replace")
        except OSError:
            continue
        pid = int(path.split("/")[2])
        if text in command and pid != os.getpid():
            found.append(pid)
    return found


def suite_of(process, cache):
    """The suite that a run has started, once there is one."""
    deadline = time.monotonic() + 30
    while time.monotonic() < deadline and process.poll() is None:
        for path in glob.glob(f"/proc/{process.pid}/task/*/children"):
            try:
                children = pathlib.Path(path).read_text().split()
                suites = [pid for pid in children if str(cache).encode() in pathlib.Path(f"/proc/{pid}/cmdline").read_bytes()]
            except OSError:
                continue
            if suites:
                return int(suites[0])
        time.sleep(0.02)
    return None


# A name for what is made for each destination.
OUTPUTS = {"slides": "x.pptx", "word": "x.docx", "pdf": "x.pdf", "html": "html", "images": "images"}
EVERY_OUTPUT = set(OUTPUTS.values())


def every_output(folder):
    """The options that make something for each destination, into this folder."""
    return [word for destination, name in OUTPUTS.items()
            for word in ("--to", destination, "--output", folder / name)]


class Package:
    """The parts of a package, whose names are the same in capitals, and where their relationships lead."""

    def __init__(self, path):
        self.file = zipfile.ZipFile(path)
        self.names = {name.lower(): name for name in self.file.namelist()}
        self.main = next(part for kind, part in self.related("").values() if kind.endswith("/officeDocument"))

    def read(self, part):
        return self.file.read(self.names[part.lower()])

    def related(self, source):
        """The types and parts of a part's relationships by their ids; of the package's own for ""."""
        folder, name = os.path.split(source)
        rels = ElementTree.fromstring(self.read(os.path.join(folder, "_rels", f"{name}.rels")))

        def part(target):
            return os.path.normpath(os.path.join("/", folder, target)).lower()[1:]
        return {rel.get("Id"): (rel.get("Type"), part(rel.get("Target"))) for rel in rels}

    def compressed(self, part):
        """The bytes of a part as the file holds them."""
        info = self.file.getinfo(self.names[part])
        self.file.fp.seek(info.header_offset + 26)
        begin = info.header_offset + 30 + sum(int.from_bytes(self.file.fp.read(2), "little") for _ in range(2))
        self.file.fp.seek(begin)
        return info.compress_type, self.file.fp.read(info.compress_size)


class Slide:
    """One slide of a saved presentation, as its XML has it."""

    def __init__(self, package, part):
        self.xml, related = ElementTree.fromstring(package.read(part)), package.related(part)
        self.layout = next(part for kind, part in related.values() if kind.endswith("/slideLayout"))
        self.texts = ["".join(t.text or "" for t in shape.iter(f"{{{NAMESPACES['a']}}}t"))
                      for shape in self.xml.iterfind(".//p:sp", NAMESPACES)]
        self.title = next(("".join(t.text or "" for t in shape.iter(f"{{{NAMESPACES['a']}}}t"))
                           for shape in self.xml.iterfind(".//p:sp", NAMESPACES)
                           if shape.find(".//p:ph[@type='title']", NAMESPACES) is not None), None)
        self.pictures = [self._picture(package, related, shape) for shape in self.xml.iter()
                         if shape.find(".//a:blip", NAMESPACES) is not None
                         and shape.tag.split("}")[1] in ("pic", "sp")]

    @staticmethod
    def _picture(package, related, shape):
        blip = shape.find(".//a:blip", NAMESPACES).get(f"{{{NAMESPACES['r']}}}embed")
        properties = shape.find(".//p:cNvPr", NAMESPACES)
        extent = shape.find(".//a:ext[@cx]", NAMESPACES)
        offset = shape.find(".//a:off", NAMESPACES)
        return {
            "description": properties.get("descr", ""),
            "left": int(offset.get("x")) / 12700, "top": int(offset.get("y")) / 12700,
            "width": int(extent.get("cx")) / 12700, "height": int(extent.get("cy")) / 12700,
            "bytes": package.read(related[blip][1]),
        }


def slides_of(path, source=None):
    """The slides of a .pptx in their order. It must have no faults but those of its source, whatever a test wants."""
    assert_no_new_faults(path, source)
    package = Package(path)
    assert package.file.testzip() is None
    related = package.related(package.main)
    ids = [entry.get(f"{{{NAMESPACES['r']}}}id")
           for entry in ElementTree.fromstring(package.read(package.main)).iterfind(".//p:sldId", NAMESPACES)]
    return [Slide(package, related[i][1]) for i in ids]


def png_size(data):
    """Width and height in pixels."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n", "not a PNG"
    return int.from_bytes(data[16:20], "big"), int.from_bytes(data[20:24], "big")


def png_lines(data):
    """How many different lines of pixels a PNG has; up to two where it is blank. Counting its colours takes far longer."""
    height = png_size(data)[1]
    chunks, at = [], 8
    while at < len(data):
        length = int.from_bytes(data[at:at + 4], "big")
        if data[at + 4:at + 8] == b"IDAT":
            chunks.append(data[at + 8:at + 8 + length])
        at += length + 12
    pixels = zlib.decompress(b"".join(chunks))
    line = len(pixels) // height
    return len({pixels[start:start + line] for start in range(0, len(pixels), line)})


class ProgramTest(unittest.TestCase):
    """A folder of its own for each test; at its end nothing may be left of the program."""

    # One profile for all tests of a program: only the first start of the suite is a cold one.
    cache = tempfile.mkdtemp(prefix="murvane-test-cache-")
    atexit.register(shutil.rmtree, cache, ignore_errors=True)

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="murvane-test-"))
        self.temporary = self.folder / "temporary"
        self.temporary.mkdir()
        self.started = []
        self.began = time.time()
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.environment = {**os.environ, "XDG_CACHE_HOME": self.cache, "TMPDIR": str(self.temporary),
                            "XDG_RUNTIME_DIR": str(self.temporary)}
        for name in ("TEMP", "DISPLAY", "WAYLAND_DISPLAY"):
            self.environment.pop(name, None)

    def start(self, *arguments, **options):
        options.setdefault("env", self.environment)
        process = subprocess.Popen([PROGRAM, *map(str, arguments)], stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **options)
        self.started.append(process.pid)
        return process

    def run_program(self, *arguments, **options):
        process = self.start(*arguments, **options)
        output, errors = process.communicate(timeout=240)
        return process.returncode, output, errors

    def as_pdf(self, *files):
        """Has the suite draw the files, on the profile of the runs before, as files beside them."""
        subprocess.run(["soffice", f"-env:UserInstallation=file://{self.cache}/murvane/suite-1", "--headless",
                        "--convert-to", "pdf", "--outdir", self.folder, *files], check=True, capture_output=True,
                       env={**self.environment, "DISPLAY": "none"}, timeout=240)

    def assert_nothing_left(self):
        """No process, no temporary file, no socket."""
        self.assertEqual(processes_naming(self.cache), [])
        # The desktop's settings service keeps a flag of its own in the user's runtime folder.
        left = [p for p in self.temporary.rglob("*")
                if (p.is_file() or p.is_socket()) and p.parent.name != "dconf"]
        self.assertEqual(left, [])
        for pid in self.started:
            # An earlier process of this number may have been killed.
            self.assertEqual([pipe for pipe in glob.glob(f"/tmp/OSL_PIPE_*_murvane-{pid}-*")
                              if os.path.getctime(pipe) > self.began], [])
        self.assertEqual(glob.glob(str(SAMPLES / "**" / ".~lock*"), recursive=True), [])


__all__ = ["EVERY_OUTPUT", "OUTPUTS", "Package", "ProgramTest", "SAMPLES", "BUILD", "slides_of", "png_size", "png_lines", "every_output", "suite_of",
           "processes_naming"]
