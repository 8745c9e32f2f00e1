"""Runs murvane-export as a user's script does, in a home of its own, and looks for what it left behind."""

import glob
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile
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
        suites = [pid for pid in processes_naming(str(cache)) if pid != process.pid]
        if suites:
            return suites[0]
        time.sleep(0.005)
    return None


class Slide:
    """One slide of a saved presentation, as its XML has it."""

    def __init__(self, package, part):
        self.xml = ElementTree.fromstring(package.read(part))
        rels = ElementTree.fromstring(package.read(re.sub(r"slides/(.*)", r"slides/_rels/\1.rels", part)))
        self.targets = {rel.get("Id"): rel.get("Target") for rel in rels}
        self.texts = ["".join(t.text or "" for t in shape.iter(f"{{{NAMESPACES['a']}}}t"))
                      for shape in self.xml.iterfind(".//p:sp", NAMESPACES)]
        self.title = next(("".join(t.text or "" for t in shape.iter(f"{{{NAMESPACES['a']}}}t"))
                           for shape in self.xml.iterfind(".//p:sp", NAMESPACES)
                           if shape.find(".//p:ph[@type='title']", NAMESPACES) is not None), None)
        self.pictures = [self._picture(package, part, shape) for shape in self.xml.iter()
                         if shape.find(".//a:blip", NAMESPACES) is not None
                         and shape.tag.split("}")[1] in ("pic", "sp")]

    def _picture(self, package, part, shape):
        blip = shape.find(".//a:blip", NAMESPACES).get(f"{{{NAMESPACES['r']}}}embed")
        properties = shape.find(".//p:cNvPr", NAMESPACES)
        extent = shape.find(".//a:ext[@cx]", NAMESPACES)
        offset = shape.find(".//a:off", NAMESPACES)
        media = os.path.normpath(os.path.join(os.path.dirname(part), self.targets[blip]))
        return {
            "description": properties.get("descr", ""),
            "left": int(offset.get("x")) / 12700, "top": int(offset.get("y")) / 12700,
            "width": int(extent.get("cx")) / 12700, "height": int(extent.get("cy")) / 12700,
            "bytes": package.read(media),
        }


def slides_of(path):
    """The slides of a .pptx in their order. It has to be valid, whatever a test wants of it."""
    assert_no_new_faults(path)
    with zipfile.ZipFile(path) as package:
        assert package.testzip() is None
        rels = ElementTree.fromstring(package.read("ppt/_rels/presentation.xml.rels"))
        targets = {rel.get("Id"): rel.get("Target") for rel in rels}
        presentation = ElementTree.fromstring(package.read("ppt/presentation.xml"))
        ids = [entry.get(f"{{{NAMESPACES['r']}}}id")
               for entry in presentation.iterfind(".//p:sldId", NAMESPACES)]
        return [Slide(package, "ppt/" + targets[i]) for i in ids]


def png_size(data):
    """Width and height in pixels."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n", "not a PNG"
    return int.from_bytes(data[16:20], "big"), int.from_bytes(data[20:24], "big")


def colours_of(data):
    """How many colours a picture shows; one means that it is blank."""
    with tempfile.NamedTemporaryFile(suffix=".png") as file:
        file.write(data)
        file.flush()
        return int(subprocess.run(["identify", "-format", "%k", file.name], check=True,
                                  capture_output=True, text=True).stdout)


class ProgramTest(unittest.TestCase):
    """A folder of its own for each test; at its end nothing may be left of the program."""

    cache = None

    @classmethod
    def setUpClass(cls):
        # One profile for all tests of a class: only the first start of the suite is a cold one.
        cls.cache = tempfile.mkdtemp(prefix="murvane-test-cache-")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.cache, ignore_errors=True)

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="murvane-test-"))
        self.temporary = self.folder / "temporary"
        self.temporary.mkdir()
        self.started = []
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

    def assert_nothing_left(self, output=None):
        """No process, no temporary file, no socket, no half-written output."""
        self.assertEqual(processes_naming(self.cache), [])
        # The desktop's settings service keeps a flag of its own in the user's runtime folder.
        left = [p for p in self.temporary.rglob("*")
                if (p.is_file() or p.is_socket()) and p.parent.name != "dconf"]
        self.assertEqual(left, [])
        for pid in self.started:
            self.assertEqual(glob.glob(f"/tmp/OSL_PIPE_*_murvane-{pid}-*"), [])
        self.assertEqual(glob.glob(str(SAMPLES / "**" / ".~lock*"), recursive=True), [])
        if output is not None:
            self.assertEqual([p.name for p in output.parent.iterdir() if p.suffix in (".pptx", ".tmp", ".part")
                              or p.name.startswith(".")], [])


__all__ = ["ProgramTest", "SAMPLES", "BUILD", "slides_of", "png_size", "colours_of", "suite_of",
           "processes_naming", "signal"]
