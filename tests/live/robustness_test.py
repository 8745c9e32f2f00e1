"""Whatever happens to the suite or to the program: it ends soon, says why, and leaves nothing behind."""

import os
import shutil
import signal
import time
import unittest

import rich_decks
from program import EVERY_OUTPUT, OUTPUTS, SAMPLES, ProgramTest, every_output, processes_naming, suite_of

PATIENCE = 5.0

# Pictures go everywhere; what is pasted goes on slides in the suite, which this deck takes, and into a document.
PASTED = ("editable", "embedded", "linked")
DECK = "strict.pptx"


class AnEndedRun(ProgramTest):
    """Runs a batch and strikes at many moments of it: two charts and a table, which pass all that a batch has."""

    workbook = SAMPLES / "few-charts.xlsx"
    form = "pictures"
    whole_runs = {}

    def begin(self):
        outputs = self.folder / "out"
        shutil.rmtree(outputs, ignore_errors=True)
        outputs.mkdir()
        if self.form == "pictures":
            return self.start(self.workbook, "--titles", "--source", *every_output(outputs)), outputs
        rich_decks.write(self.folder, DECK)
        return self.start(self.workbook, "--titles", "--source", "--yes", "--format", self.form,
                          "--to", "slides", "--into", self.folder / DECK, "--output", outputs / OUTPUTS["slides"],
                          "--to", "word", "--output", outputs / OUTPUTS["word"]), outputs

    def every_one(self):
        return EVERY_OUTPUT if self.form == "pictures" else {OUTPUTS["slides"], OUTPUTS["word"]}

    @staticmethod
    def made(outputs):
        """What a user sees of a run."""
        return {path.name for path in outputs.iterdir() if not path.name.startswith(".")}

    def whole_run_seconds(self):
        """How long a run takes that nobody disturbs; measured once for each format."""
        if self.form not in self.whole_runs:
            started = time.monotonic()
            process, outputs = self.begin()
            _, errors = process.communicate(timeout=240)
            self.assertEqual(process.returncode, 0, errors)
            self.assertEqual(self.made(outputs), self.every_one())
            self.whole_runs[self.form] = time.monotonic() - started
        return self.whole_runs[self.form]

    def strike_at_many_points(self, strike, points):
        self.whole_run_seconds()
        for point in range(points):
            with self.subTest(format=self.form, point=point):
                self.until_struck(lambda share=(point + 0.5) / points: self.struck_at(share, strike))

    def until_struck(self, struck):
        """A run that is over first shows that runs are shorter than the one that was measured."""
        while not struck():
            self.whole_runs[self.form] *= 0.7
            self.assertGreater(self.whole_runs[self.form], 0.3, "no run lasts until it is struck")

    def struck_at(self, share, strike):
        process, outputs = self.begin()
        started = time.monotonic()
        suite = suite_of(process, self.cache)
        # Up to three quarters: on a busy machine the run must not be over before it is struck.
        time.sleep(max(0.0, self.whole_runs[self.form] * 0.75 * share - (time.monotonic() - started)))
        if process.poll() is not None:
            process.communicate()
            return False
        strike(process, suite)
        hit = time.monotonic()
        _, errors = process.communicate(timeout=60)
        self.assertLess(time.monotonic() - hit, PATIENCE)
        if process.returncode == 0:
            # All was done by then.
            self.assertEqual(self.made(outputs), self.every_one())
            return False
        self.assertGreater(len(errors.strip()), 20, "no report")
        self.assertEqual(list(outputs.iterdir()), [])
        self.assert_nothing_left()
        return True

    def test_ends_with_a_report_when_the_suite_is_killed(self):
        def kill_suite(process, suite):
            os.kill(suite, signal.SIGKILL)
        self.strike_at_many_points(kill_suite, points=6)
        for self.form in PASTED:
            self.strike_at_many_points(kill_suite, points=2)

    def test_ends_with_a_report_on_ctrl_c(self):
        self.strike_at_many_points(lambda process, suite: process.send_signal(signal.SIGINT), points=3)

    def test_ends_with_a_report_when_it_is_told_to_terminate(self):
        self.strike_at_many_points(lambda process, suite: process.send_signal(signal.SIGTERM), points=1)

    def test_takes_the_suite_with_it_when_it_is_killed_itself_and_leaves_nothing_that_looks_finished(self):
        self.whole_run_seconds()
        for share in (0.1, 0.6):
            self.until_struck(lambda: self.killed_at(share))
        # What was begun goes with the next run beside it.
        outputs = self.folder / "out"
        output = outputs / "next.pptx"
        _, _, errors = self.run_program(self.workbook, "--output", output)
        self.assertEqual(list(outputs.iterdir()), [output], errors)

    def killed_at(self, share):
        process, outputs = self.begin()
        self.assertIsNotNone(suite_of(process, self.cache))
        time.sleep(self.whole_runs[self.form] * share)
        process.kill()
        process.communicate()
        made = self.made(outputs)
        if made:
            # All was done by then, and was getting its names one after the other.
            self.assertLessEqual(made, self.every_one())
            return False
        deadline = time.monotonic() + PATIENCE
        while processes_naming(self.cache) and time.monotonic() < deadline:
            time.sleep(0.05)
        self.assertEqual(processes_naming(self.cache), [])
        return True

    def test_two_runs_at_once_keep_out_of_each_others_way(self):
        first, outputs = self.begin()
        second = self.start(self.workbook, "--titles", "--source", *every_output(self.folder), "--overwrite")
        for process in (first, second):
            _, errors = process.communicate(timeout=240)
            self.assertEqual(process.returncode, 0, errors)
        self.assertEqual(self.made(outputs), EVERY_OUTPUT)
        self.assertLess(EVERY_OUTPUT, self.made(self.folder))
        self.assert_nothing_left()


if __name__ == "__main__":
    unittest.main(verbosity=2)
