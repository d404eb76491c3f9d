"""Judges a soak run of Tindra from what scripts/soak wrote: samples.csv, the log, whether
Tindra was still running at the end, how it ended on SIGTERM ("status N" or what happened
instead) and how many of its helpers were left after that. Prints a summary and the reasons for
a failure.
    soak_judge.py OUT_DIR MINUTES ALIVE(yes|no) [ENDING HELPERS_LEFT]
Exit status 1 when the run failed.

Memory is judged by the slope of a least-squares line through the second half of the samples
(the first half is the warm-up: caches filling, the first track's cover, the JavaScript heap
growing to its working size). Under 20 minutes the slope is printed but never fails: with a
dozen samples a single allocation makes any slope."""
import csv
import re
import sys

# MB per hour over the second half that counts as a leak.
MAX_SLOPE_MB_PER_HOUR = 1.0
MIN_MINUTES_FOR_SLOPE = 20
# Sampled at moments that fall anywhere in the churn: while the sound server is being reconnected
# Tindra holds the old and the new socket for a moment, a file watch is re-made after a rewrite,
# and the player's MPRIS name and the helper's pipe come and go. Four descriptors cover any two of
# those at once.
FD_SLACK = 4
# Qt's thread pool lets an idle thread go after 30 s and makes one again on the next job (a file
# read, an artwork decode), and PulseAudio's threaded main loop is remade with the connection:
# two threads cover one of each in flight.
THREAD_SLACK = 2
MAX_HELPERS = 1

# What Tindra should never log, whatever the churn. The services it follows going away is news it
# logs in its own categories (com.brenvik.tindra.*) as warnings, and is expected here.
FORBIDDEN = [
    re.compile(p)
    for p in (
        r"^\S+ (critical|fatal) ",
        r"TypeError",
        r"ReferenceError",
        r"Binding loop",
        r"QObject::",
        r"QQmlComponent",
        r"QQmlExpression",
        r"Sanitizer",
        r"runtime error:",
        r"Segmentation fault",
        r"terminate called",
        r"Unable to assign",
        r"Cannot read property",
        r"is not a function",
    )
]
TINDRA_CATEGORY = re.compile(r"^\S+ (info|warning|debug) com\.brenvik\.tindra\.")


def forbidden_lines(lines):
    """The log lines (as Tindra writes them under scripts/soak's message pattern, "TIME TYPE
    CATEGORY: MESSAGE") that are errors and not a followed service's news."""
    bad = []
    for line in lines:
        line = line.rstrip("\n")
        if TINDRA_CATEGORY.match(line) and not re.search(r"Sanitizer|runtime error:", line):
            continue
        if any(p.search(line) for p in FORBIDDEN):
            bad.append(line)
    return bad


def slope_per_hour(seconds, values):
    """The least-squares slope of values against seconds, per hour; 0 for fewer than two points
    or a single moment."""
    n = len(seconds)
    if n < 2:
        return 0.0
    mean_x = sum(seconds) / n
    mean_y = sum(values) / n
    sxx = sum((x - mean_x) ** 2 for x in seconds)
    if sxx == 0:
        return 0.0
    sxy = sum((x - mean_x) * (y - mean_y) for x, y in zip(seconds, values))
    return sxy / sxx * 3600


def halves(rows):
    """The first and second half of the samples; the middle one of an odd count goes to the
    second."""
    middle = len(rows) // 2
    return rows[:middle], rows[middle:]


def read_samples(path):
    with open(path, newline="") as f:
        return [{k: float(v) for k, v in row.items()} for row in csv.DictReader(f)]


def judge(samples, minutes, alive, log_lines, ending="status 0", helpers_left=0):
    """Summary lines and failure reasons for a run."""
    summary, failures = [], []
    if not alive:
        failures.append("Tindra crashed or exited during the run")
    elif ending != "status 0":
        failures.append(f"on SIGTERM Tindra ended with {ending}, not status 0")
    if helpers_left:
        failures.append(f"{helpers_left} tindra-mpris-adapter process(es) outlived Tindra")
    summary.append(f"samples: {len(samples)}")
    if len(samples) < 2:
        failures.append("fewer than two samples were taken")
    first, second = halves(samples)
    for column, label in (("rss_kb", "resident"), ("anon_kb", "anonymous")):
        values = [s[column] / 1024 for s in samples]
        if not values:
            continue
        slope = slope_per_hour([s["seconds"] for s in second], [s[column] / 1024 for s in second])
        summary.append(
            f"{label}: min {min(values):.1f} MB, max {max(values):.1f} MB, "
            f"last {values[-1]:.1f} MB; second half {slope:+.2f} MB/h"
        )
        if minutes < MIN_MINUTES_FOR_SLOPE:
            continue
        if slope > MAX_SLOPE_MB_PER_HOUR:
            failures.append(
                f"{label} memory grows {slope:.2f} MB/h over the second half "
                f"(more than {MAX_SLOPE_MB_PER_HOUR:g})"
            )
    if minutes < MIN_MINUTES_FOR_SLOPE:
        summary.append(f"(under {MIN_MINUTES_FOR_SLOPE} minutes the slopes are shown, not judged)")
    for column, label, slack in (("fds", "descriptors", FD_SLACK),
                                 ("threads", "threads", THREAD_SLACK)):
        if not first or not second:
            continue
        early = max(s[column] for s in first)
        late = max(s[column] for s in second)
        summary.append(f"{label}: first-half max {early:.0f}, second-half max {late:.0f}")
        if late > early + slack:
            failures.append(f"{label} grew from {early:.0f} to {late:.0f} (slack {slack})")
    most_helpers = max((s["helpers"] for s in samples), default=0)
    summary.append(f"helper processes: at most {most_helpers:.0f}")
    if most_helpers > MAX_HELPERS:
        failures.append(f"{most_helpers:.0f} tindra-mpris-adapter processes ran at once")
    bad = forbidden_lines(log_lines)
    if bad:
        failures.append(f"{len(bad)} error lines in the log:\n  " + "\n  ".join(bad[:20]))
    summary.append("verdict: " + ("FAIL" if failures else "pass"))
    return summary, failures


def main(argv):
    out, minutes, alive = argv[1], float(argv[2]), argv[3] == "yes"
    ending = argv[4] if len(argv) > 4 else "status 0"
    helpers_left = int(argv[5]) if len(argv) > 5 else 0
    with open(f"{out}/tindra.log", errors="replace") as f:
        log_lines = f.readlines()
    summary, failures = judge(read_samples(f"{out}/samples.csv"), minutes, alive, log_lines,
                              ending, helpers_left)
    print("\n".join(summary))
    for reason in failures:
        print(f"soak: {reason}", file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
