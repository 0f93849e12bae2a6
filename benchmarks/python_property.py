"""What a late-bound property costs from Python, beside a bare pybind11 class that holds the same text.

Build with VORLAN_BENCHMARKS and run with PYTHONPATH at the build's python folder. Both sides run in turns, so that a
busy machine slows both; the medians are compared. A read may take at most LIMIT times the bare one.
"""

import statistics
import sys
import timeit

import vorlan
import vorlan_baseline

REPEATS = 15
CALLS = 200_000
LIMIT = 3.0

late = vorlan.CreateObject("Vorlan.SB_Ses_MsgUATIAssignment")
late.PRstr_MessageSequence = "00000001"
bare = vorlan_baseline.Bare()
assert late.PRstr_MessageSequence == bare.PRstr_MessageSequence == bare.get_sequence()

STATEMENTS = {
    "late-bound read": "late.PRstr_MessageSequence",
    "late-bound read, other capitals": "late.prstr_messagesequence",
    "late-bound write": "late.PRstr_MessageSequence = '00000001'",
    "bare property read": "bare.PRstr_MessageSequence",
    "bare method call": "bare.get_sequence()",
    "bare property write": "bare.PRstr_MessageSequence = '00000001'",
}


def main():
    timers = {name: timeit.Timer(statement, globals=globals()) for name, statement in STATEMENTS.items()}
    samples = {name: [] for name in timers}
    for _ in range(REPEATS):
        for name, timer in timers.items():
            samples[name].append(timer.timeit(CALLS) / CALLS * 1e9)
    medians = {name: statistics.median(times) for name, times in samples.items()}
    for name, median in medians.items():
        print(f"{name:32} {median:7.1f} ns")
    reads = min(medians["bare property read"], medians["bare method call"])
    ratio = medians["late-bound read"] / reads
    print(f"{'read, ratio to the faster bare':32} {ratio:7.2f}")
    print(f"{'write, ratio':32} {medians['late-bound write'] / medians['bare property write']:7.2f}")
    return 0 if ratio <= LIMIT else 1


if __name__ == "__main__":
    sys.exit(main())
