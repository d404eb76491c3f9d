"""Tests of soak_judge on made-up samples and logs.
    python3 scripts/soak_judge_test.py"""
import contextlib
import io
import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import soak_judge  # noqa: E402


def samples(count, rss_kb=lambda i: 60000, anon_kb=lambda i: 12000, fds=lambda i: 40,
            threads=lambda i: 12, helpers=lambda i: 1):
    return [{"seconds": 10.0 * (i + 1), "rss_kb": rss_kb(i), "anon_kb": anon_kb(i),
             "fds": fds(i), "threads": threads(i), "cpu_percent": 0.5, "helpers": helpers(i)}
            for i in range(count)]


def failures(rows, minutes=60, alive=True, log=()):
    return soak_judge.judge(rows, minutes, alive, list(log))[1]


class SlopeTest(unittest.TestCase):
    def test_a_megabyte_over_an_hour_is_one_per_hour(self):
        self.assertAlmostEqual(soak_judge.slope_per_hour([0, 1800, 3600], [10, 10.5, 11]), 1.0)

    def test_noise_symmetric_about_a_flat_line_has_no_slope(self):
        self.assertAlmostEqual(soak_judge.slope_per_hour([0, 10, 20, 30], [6, 5, 5, 6]), 0.0)

    def test_too_few_points_or_one_moment_give_none(self):
        self.assertEqual(soak_judge.slope_per_hour([], []), 0.0)
        self.assertEqual(soak_judge.slope_per_hour([5], [7]), 0.0)
        self.assertEqual(soak_judge.slope_per_hour([5, 5], [1, 9]), 0.0)

    def test_the_middle_sample_of_an_odd_count_is_judged_with_the_second_half(self):
        first, second = soak_judge.halves([1, 2, 3, 4, 5])
        self.assertEqual((first, second), ([1, 2], [3, 4, 5]))


class MemoryTest(unittest.TestCase):
    def test_growth_during_the_warm_up_alone_passes(self):
        # Steep in the first half, flat in the second: caches filling, not a leak.
        rows = samples(360, rss_kb=lambda i: 50000 + 100 * min(i, 170))
        self.assertEqual(failures(rows), [])

    def test_anonymous_growth_over_the_limit_fails_even_with_flat_residency(self):
        # 2 MB an hour: 2048 kB over 360 samples of 10 s.
        rows = samples(360, anon_kb=lambda i: 12000 + 2048 * i / 360)
        found = failures(rows)
        self.assertEqual(len(found), 1)
        self.assertIn("anonymous memory grows 2.0", found[0])

    def test_growth_just_under_the_limit_passes(self):
        rows = samples(360, rss_kb=lambda i: 60000 + 0.9 * 1024 * i / 360)
        self.assertEqual(failures(rows), [])

    def test_a_short_run_prints_its_slope_but_never_fails_on_it(self):
        rows = samples(12, rss_kb=lambda i: 60000 + 4000 * i)
        summary, found = soak_judge.judge(rows, 2, True, [])
        self.assertEqual(found, [])
        self.assertTrue(any("resident" in line and "MB/h" in line for line in summary))
        self.assertIn("verdict: pass", summary[-1])


class GrowthTest(unittest.TestCase):
    def test_descriptors_within_the_slack_pass_and_beyond_it_fail(self):
        self.assertEqual(failures(samples(20, fds=lambda i: 40 + (4 if i == 15 else 0))), [])
        found = failures(samples(20, fds=lambda i: 40 + (5 if i == 15 else 0)))
        self.assertEqual(found, ["descriptors grew from 40 to 45 (slack 4)"])

    def test_threads_that_climb_step_by_step_fail(self):
        found = failures(samples(20, threads=lambda i: 12 + i // 3))
        self.assertEqual(found, ["threads grew from 15 to 18 (slack 2)"])

    def test_a_first_half_peak_lets_the_second_half_stay_below_it(self):
        self.assertEqual(failures(samples(20, fds=lambda i: 60 if i == 2 else 40)), [])

    def test_a_second_helper_fails_the_run(self):
        found = failures(samples(20, helpers=lambda i: 2 if i == 7 else 1))
        self.assertEqual(found, ["2 tindra-mpris-adapter processes ran at once"])

    def test_an_unclean_end_or_a_helper_left_fails_but_a_crash_is_told_once(self):
        rows = samples(20)
        self.assertEqual(soak_judge.judge(rows, 60, True, [], "status 143")[1],
                         ["on SIGTERM Tindra ended with status 143, not status 0"])
        self.assertEqual(soak_judge.judge(rows, 60, True, [], "status 0", 1)[1],
                         ["1 tindra-mpris-adapter process(es) outlived Tindra"])
        self.assertEqual(soak_judge.judge(rows, 60, False, [], "status 139")[1],
                         ["Tindra crashed or exited during the run"])

    def test_a_run_without_samples_or_with_tindra_gone_fails(self):
        self.assertIn("fewer than two samples were taken", failures([]))
        self.assertIn("Tindra crashed or exited during the run", failures(samples(20), alive=False))


class LogTest(unittest.TestCase):
    def test_a_followed_services_news_is_no_error(self):
        log = ["12.5 warning com.brenvik.tindra.battery: UPower is gone: no battery is shown",
               "30.1 info com.brenvik.tindra.now-playing: following mpv",
               "31.0 warning com.brenvik.tindra.levels: the sound server went away"]
        self.assertEqual(soak_judge.forbidden_lines(log), [])

    def test_criticals_qml_errors_and_misuse_are_errors(self):
        log = ["1.0 critical default: QThread: Destroyed while thread is still running",
               "2.0 warning qml: file:///app/qml/Notch.qml:40: TypeError: Cannot read property 'x' of null",
               "3.0 warning qml: file:///app/qml/Panel.qml:12: ReferenceError: track is not defined",
               "4.0 warning default: QObject::connect: No such signal Foo::bar()",
               "5.0 warning qt.qml.binding: QML Item: Binding loop detected for property \"width\"",
               "6.0 fatal default: out of memory"]
        self.assertEqual(soak_judge.forbidden_lines(log), log)

    def test_a_sanitizer_report_is_an_error_whatever_comes_before_it(self):
        log = ["==123==ERROR: AddressSanitizer: heap-use-after-free on address 0x6020",
               "app/x.cpp:12:3: runtime error: signed integer overflow",
               "7.0 warning com.brenvik.tindra.app: runtime error: in a sentence"]
        self.assertEqual(soak_judge.forbidden_lines(log), log)

    def test_other_warnings_of_qt_pass(self):
        log = ["8.0 warning qt.qpa.xcb: QXcbConnection: XCB error: 3 (BadWindow)",
               "9.0 info default: started"]
        self.assertEqual(soak_judge.forbidden_lines(log), [])

    def test_the_offending_lines_are_named_in_the_failure(self):
        found = failures(samples(20), log=["1.0 critical default: broken\n"])
        self.assertEqual(found, ["1 error lines in the log:\n  1.0 critical default: broken"])


class MainTest(unittest.TestCase):
    def test_reads_the_run_folder_and_answers_with_its_status(self):
        with tempfile.TemporaryDirectory() as out:
            with open(f"{out}/samples.csv", "w") as f:
                f.write("seconds,rss_kb,anon_kb,fds,threads,cpu_percent,helpers\n")
                for i in range(1, 13):
                    f.write(f"{10 * i},60000,12000,40,12,0.3,1\n")
            with open(f"{out}/tindra.log", "w") as f:
                f.write("0.1 info com.brenvik.tindra.app: started\n")
            printed, complained = io.StringIO(), io.StringIO()
            with contextlib.redirect_stdout(printed), contextlib.redirect_stderr(complained):
                self.assertEqual(soak_judge.main(["judge", out, "2", "yes"]), 0)
                self.assertEqual(soak_judge.main(["judge", out, "2", "no"]), 1)
            self.assertIn("samples: 12", printed.getvalue())
            self.assertIn("soak: Tindra crashed or exited", complained.getvalue())


if __name__ == "__main__":
    unittest.main()
