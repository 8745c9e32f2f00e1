"""Whatever happens to the suite or to the program: it ends soon, says why, and leaves nothing behind."""

import os
import signal
import time
import unittest

from program import SAMPLES, ProgramTest, processes_naming, slides_of, suite_of

PATIENCE = 5.0


class AnEndedRun(ProgramTest):
    """Runs a batch of some seconds and strikes at many moments of it."""

    workbook = SAMPLES / "many-charts.xlsx"
    whole_run = None

    def begin(self):
        output = self.folder / "out" / "deck.pptx"
        output.parent.mkdir(exist_ok=True)
        process = self.start(self.workbook, "--titles", "--source", "--output", output)
        return process, output

    def whole_run_seconds(self):
        """How long a run takes that nobody disturbs; measured once."""
        if AnEndedRun.whole_run is None:
            started = time.monotonic()
            process, output = self.begin()
            _, errors = process.communicate(timeout=240)
            self.assertEqual(process.returncode, 0, errors)
            output.unlink()
            AnEndedRun.whole_run = time.monotonic() - started
        return AnEndedRun.whole_run

    def strike_at_many_points(self, strike, points):
        self.whole_run_seconds()
        for point in range(points):
            with self.subTest(point=point):
                # A run that is over first shows that runs are shorter than the one that was measured.
                while not self.struck_at((point + 0.5) / points, strike):
                    AnEndedRun.whole_run *= 0.7
                    self.assertGreater(AnEndedRun.whole_run, 0.5, "no run lasts until it is struck")

    def struck_at(self, share, strike):
        process, output = self.begin()
        started = time.monotonic()
        suite = suite_of(process, self.cache)
        # Up to three quarters: on a busy machine the run must not be over before it is struck.
        time.sleep(max(0.0, AnEndedRun.whole_run * 0.75 * share - (time.monotonic() - started)))
        if process.poll() is not None:
            process.communicate()
            output.unlink()
            return False
        strike(process, suite)
        hit = time.monotonic()
        _, errors = process.communicate(timeout=60)
        self.assertLess(time.monotonic() - hit, PATIENCE)
        if process.returncode == 0:
            # All was done by then.
            self.assertGreater(len(slides_of(output)), 1)
            output.unlink()
            return False
        self.assertGreater(len(errors.strip()), 20, "no report")
        self.assertFalse(output.exists())
        self.assert_nothing_left(output)
        return True

    def test_ends_with_a_report_when_the_suite_is_killed(self):
        def kill_suite(process, suite):
            os.kill(suite, signal.SIGKILL)
        self.strike_at_many_points(kill_suite, points=10)

    def test_ends_with_a_report_on_ctrl_c(self):
        self.strike_at_many_points(lambda process, suite: process.send_signal(signal.SIGINT), points=5)

    def test_ends_with_a_report_when_it_is_told_to_terminate(self):
        self.strike_at_many_points(lambda process, suite: process.send_signal(signal.SIGTERM), points=3)

    def test_takes_the_suite_with_it_when_it_is_killed_itself(self):
        process, _ = self.begin()
        self.assertIsNotNone(suite_of(process, self.cache))
        process.kill()
        process.communicate()
        deadline = time.monotonic() + PATIENCE
        while processes_naming(self.cache) and time.monotonic() < deadline:
            time.sleep(0.05)
        self.assertEqual(processes_naming(self.cache), [])

    def test_two_runs_at_once_keep_out_of_each_others_way(self):
        first, first_output = self.begin()
        second_output = self.folder / "second.pptx"
        second = self.start(self.workbook, "--output", second_output)
        for process in (first, second):
            _, errors = process.communicate(timeout=240)
            self.assertEqual(process.returncode, 0, errors)
        self.assertEqual(len(slides_of(first_output)), len(slides_of(second_output)))
        self.assert_nothing_left()


if __name__ == "__main__":
    unittest.main(verbosity=2)
