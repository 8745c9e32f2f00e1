"""A screen of its own with a LibreOffice on it, and somebody who uses Murvane there."""

import contextlib
import json
import os
import pathlib
import select
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 60.0


class Refused(Exception):
    """What the hand was told to do cannot be done now."""


def wait_until(holds, patience=PATIENCE, what="that"):
    """Polls; what `holds` returns once it is true. A refusal counts as not yet."""
    deadline = time.monotonic() + patience
    refusal = None
    pause = 0.02
    while time.monotonic() < deadline:
        try:
            seen = holds()
            if seen:
                return seen
        except Refused as refused:
            refusal = refused
        time.sleep(pause)
        # What takes long is seldom asked for: each look costs the one who is waited for some time too.
        pause = min(1.2 * pause, 0.25)
    raise AssertionError(f"waited {patience:.0f} s in vain for {what}" + (f": {refusal}" if refusal else ""))


PREAMBLE = """
import sys, threading, uno, unohelper
from com.sun.star.awt import XCallback
from com.sun.star.beans import PropertyValue

local = uno.getComponentContext()
resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
context = resolver.resolve(f"uno:pipe,name={sys.argv[1]};urp;StarOffice.ComponentContext")
desktop = context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)

SERVICES = {"Presentation": "com.sun.star.presentation.PresentationDocument",
            "Workbook": "com.sun.star.sheet.SpreadsheetDocument",
            "Text": "com.sun.star.text.TextDocument"}

def document(kind):
    return next(each for each in desktop.Components if each.supportsService(SERVICES[kind]))

def filter(name):
    return (PropertyValue("FilterName", 0, name, 0),)

class Closing(unohelper.Base, XCallback):
    def __init__(self, documents):
        self.documents, self.done = documents, threading.Event()

    def notify(self, data):
        try:
            for each in self.documents:
                each.close(True)
        finally:
            self.done.set()

# On the suite's main thread, as a user does. On another one Writer lets calls in while it takes a text down, and crashes.
def close(*documents):
    closing = Closing(documents)
    context.ServiceManager.createInstanceWithContext("com.sun.star.awt.AsyncCallback", context).addCallback(closing, None)
    if not closing.done.wait(60):
        raise TimeoutError("the suite has closed nothing")
"""
# Runs scripts, each as a line of JSON with its arguments, and answers each with a line: what it has printed, and its failure.
RUN_SCRIPTS = """
import contextlib, gc, io, json, traceback
names = dict(globals())
for line in sys.stdin:
    script, sys.argv[2:] = json.loads(line)
    said, failure = io.StringIO(), ""
    try:
        with contextlib.redirect_stdout(said):
            exec(script, dict(names))
    except Exception:
        failure = traceback.format_exc()
    gc.collect()  # lets go of the suite's objects
    print(json.dumps([said.getvalue(), failure]), flush=True)
"""


LOAD = """
for path in sys.argv[2:]:
    desktop.loadComponentFromURL(uno.systemPathToFileUrl(path), "_blank", 0, ())
"""
CLOSE_ALL = "close(*desktop.Components)"


class Screen:
    """An X server, or the screen that is there, and a user's LibreOffice with a home of its own.

    Everything lies in one private folder, which `close` removes.
    """

    def __init__(self, build, size="1600x1200", scale=1.0, manager="openbox"):
        self.build = pathlib.Path(build)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="murvane-screen-"))
        self.hands = []
        self.suite = None
        self.scripts = None
        self.server, display = self._start_server(size)
        home = self.folder / "home"
        runtime = self.folder / "runtime"
        temporary = self.folder / "temporary"
        for folder in (home, runtime, temporary):
            folder.mkdir(mode=0o700)
        self.environment = {**os.environ, "HOME": str(home), "XDG_RUNTIME_DIR": str(runtime),
                            "XDG_CONFIG_HOME": str(home / ".config"), "XDG_CACHE_HOME": str(home / ".cache"),
                            "TMPDIR": str(temporary), "DISPLAY": display, "QT_QPA_PLATFORM": "xcb",
                            "QT_SCALE_FACTOR": str(scale), "SAL_USE_VCLPLUGIN": "gen"}
        for name in ("WAYLAND_DISPLAY", "TEMP", "DBUS_SESSION_BUS_ADDRESS"):
            self.environment.pop(name, None)
        # Without one no window is ever the active one, and pages take no keys.
        self.manager = None
        if manager is not None:
            # A program that comes before it takes the screen for one without, and never looks again.
            wait_until(lambda: self._has_manager(manager), 60, "the window manager")

    def _has_manager(self, name):
        # On a busy machine it may find the new server not ready, and ends.
        if self.manager is None or self.manager.poll() is not None:
            self.manager = subprocess.Popen([name, "--sm-disable"], env=self.environment,
                                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return subprocess.run(["xdotool", "get_num_desktops"], env=self.environment,
                              capture_output=True).returncode == 0

    @staticmethod
    def _start_server(size):
        read, write = os.pipe()
        server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
                                  pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            return server, ":" + number.readline().strip()

    def open_in_suite(self, *documents):
        """As a user does who opens them in one go: the suite starts, without a pipe to listen on."""
        profile = self.folder / "home" / ".config" / "libreoffice" / "4" / "user"
        if not profile.exists():
            profile.mkdir(parents=True)
            shutil.copy(pathlib.Path(__file__).parent / "quiet-suite.xcu", profile / "registrymodifications.xcu")
        if self.has_suite():
            try:
                self.in_the_suite(LOAD, *documents)
            except (AssertionError, FileNotFoundError):
                pass  # Nobody has asked this suite for a pipe.
        # LibreOffice now and then comes up without a document that it was started with; a user asks again.
        for patience in (20, 60):
            missing = [each for each in documents if not self.window_named(pathlib.Path(each).name)]
            if not missing:
                return
            process = subprocess.Popen(["soffice", "--nologo", "--norestore", *map(str, missing)],
                                       env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                       start_new_session=True)
            if self.suite is None or self.suite.poll() is not None:
                self.suite = process
            else:
                process.wait(60)  # hands the documents over and ends
            try:
                wait_until(lambda: all(self.window_named(pathlib.Path(each).name) for each in documents), patience,
                           f"the windows of {documents}")
                return
            except AssertionError:
                if patience == 60:
                    raise

    def window_named(self, text):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", text.replace(".", r"\.")],
                               env=self.environment, capture_output=True, text=True)
        return found.stdout.split()

    def press(self, text, key):
        """A key on the window of that name."""
        subprocess.run(["xdotool", "windowfocus", "--sync", self.window_named(text)[-1], "key", key], env=self.environment, check=True)

    def spread(self, text, width, height):
        """Makes the windows of that name as large: the suite brings them up small."""
        for window in self.window_named(text):
            subprocess.run(["xdotool", "windowmove", window, "0", "0", "windowsize", window, str(width), str(height)],
                           env=self.environment, check=True)

    def in_the_suite(self, script, *arguments):
        """Runs a script of the suite's own language binding over the user's suite, by the pipe that Murvane has
        asked it for; what it prints."""
        pipe = (pathlib.Path(self.environment["XDG_RUNTIME_DIR"]) / "murvane" / "suite-pipe").read_text().strip()
        if self.scripts is None or self.scripts.args[-1] != pipe:
            self.end_scripts()
            self.scripts = subprocess.Popen(["/usr/bin/python3", "-c", PREAMBLE + RUN_SCRIPTS, pipe], env=self.environment,
                                            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        said, failure = "", "its program has ended"
        with contextlib.suppress(BrokenPipeError):
            self.scripts.stdin.write(json.dumps([script, [*map(str, arguments)]]) + "\n")
            self.scripts.stdin.flush()
        if not select.select([self.scripts.stdout], [], [], 2 * PATIENCE)[0]:
            failure = "it does not end"
        elif line := self.scripts.stdout.readline():
            said, failure = json.loads(line)
        if failure:
            self.end_scripts()
            raise AssertionError(f"a script in the suite failed: {failure}")
        return said

    def end_scripts(self):
        # The bridge at times crashes a Python that takes itself down in order.
        if self.scripts is not None:
            self.scripts.kill()
            self.scripts.communicate()
            self.scripts = None

    def use(self, code):
        """Starts Murvane with a code; the one at the screen."""
        hand = Hand(self, code)
        self.hands.append(hand)
        return hand

    def picture(self, file):
        """Writes what is on the screen, as a PNG."""
        subprocess.run(["import", "-window", "root", str(file)], env=self.environment, check=True)

    def kill_suite(self):
        os.killpg(self.suite.pid, signal.SIGKILL)
        self.suite.wait()

    def has_suite(self):
        return self.suite is not None and self.suite.poll() is None

    def clear(self):
        """As it was at first, but for the suite: that stays, without documents, where it can be talked to."""
        self.let_go()
        if self.has_suite():
            try:
                self.in_the_suite(CLOSE_ALL)
            except (AssertionError, FileNotFoundError):
                self.kill_suite()
        if not self.has_suite():
            shutil.rmtree(self.folder / "runtime" / "murvane", ignore_errors=True)
        home = self.folder / "home"
        for place, kept in ((home, home / ".config"), (home / ".config", home / ".config" / "libreoffice")):
            for path in place.iterdir() if place.exists() else ():
                if path != kept:
                    shutil.rmtree(path) if path.is_dir() else path.unlink()

    def end_manager(self):
        if self.manager is not None:
            self.manager.terminate()
            self.manager.wait()
            self.manager = None

    def let_go(self):
        for hand in self.hands:
            hand.let_go()
        self.hands = []

    def close(self):
        self.let_go()
        self.end_scripts()
        if self.suite is not None:
            try:
                self.kill_suite()
            except ProcessLookupError:
                pass
        self.end_manager()
        self.server.terminate()
        self.server.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


class Hand:
    """Somebody who uses one run of Murvane."""

    def __init__(self, screen, code):
        self.screen = screen
        self.errors = open(screen.folder / f"errors-{len(screen.hands)}", "w+", encoding="utf-8")
        self.process = subprocess.Popen([screen.build / "bin" / "murvane-by-hand", code], env=screen.environment,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self.errors, text=True)
        self.end = {}

    def do(self, deed, form=None, control=None, **more):
        """Carries out one order; see hand.h for what there is."""
        order = {"do": deed, "form": form, "control": control, **more}
        order = {key: value for key, value in order.items() if value is not None}
        try:
            self.process.stdin.write(json.dumps(order) + "\n")
            self.process.stdin.flush()
        except BrokenPipeError as broken:
            raise AssertionError("the program has ended: " + self.said()) from broken
        while True:
            line = self.process.stdout.readline()
            if not line:
                # What closes the last form ends the program, at times ahead of its answer.
                if deed in ("key", "click", "click-row") and self.end:
                    return None
                raise AssertionError("the program has ended: " + self.said())
            answer = json.loads(line)
            if "seen" in answer:
                return answer["seen"]
            if "refused" in answer:
                raise Refused(answer["refused"])
            self.end.update(answer)

    def wait_for(self, form, patience=PATIENCE):
        """Until the window of the form is open."""
        wait_until(lambda: form in self.do("forms"), patience, form)

    def wait_for_page(self, form, control, element=".wrap, #noticeRoot, body *"):
        """Until a page has come into the browser of the form."""
        wait_until(lambda: self.do("ask", form, control, script=f"!!document.querySelector({json.dumps(element)})"),
                   what=f"the page of {form}")

    def settle(self, form):
        """Until two looks at the form in a row are the same."""
        file = self.screen.folder / "settling.png"
        last = None

        def looks_the_same():
            nonlocal last
            time.sleep(0.15)
            self.do("look", form, file=str(file))
            before, last = last, file.read_bytes()
            return before == last

        wait_until(looks_the_same, what=f"{form} to settle")

    def rows(self):
        """The list of the main form."""
        return self.do("rows", "UserformObj", "listCharts")["rows"]

    def value(self, form, control):
        return self.do("control", form, control).get("value")

    def caption(self, form, control):
        return self.do("control", form, control)["caption"]

    def ended(self, patience=60.0):
        """Waits for the program to end by itself; its exit code."""
        # An order that never reached a program that has ended is still to be written.
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()
        deadline = time.monotonic() + patience
        while self.process.poll() is None and time.monotonic() < deadline:
            time.sleep(0.02)
        assert self.process.poll() is not None, "the program does not end"
        for line in self.process.stdout:  # what came after the last answer
            self.end.update(json.loads(line))
        return self.process.returncode

    def said(self):
        """What the program wrote on its standard error, and what ended it."""
        self.errors.seek(0)
        return self.end.get("unhandled", "") + self.errors.read()

    def let_go(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.process.stdout.close()
        self.errors.close()
