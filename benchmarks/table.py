"""Runs the benchmarks of a build folder and prints each figure beside the yardstick that was measured in the same run.

    python3 table.py BUILD-FOLDER PYTHON
"""

import json
import os
import re
import shutil
import statistics
import subprocess
import sys
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent

# What is measured, the benchmark, its yardstick, and how many times the yardstick it may take.
RATIOS = [
    ("CreateMessage of an initialised UATIAssignment", "CreateUATIAssignment", "YardstickPack", 12),
    ("UATIAssignment: create, Initialize, set, CreateMessage, destroy", "WholeLifeOfUATIAssignment", "YardstickPack", 40),
    ("decode 22 octets, read four fields", "DecodeUATIComplete", "YardstickParse", 15),
    ("CreateMessage of BroadcastRevRateLimit, 63 limits", "CreateBroadcastRevRateLimit", "YardstickPackRateLimits",
     12),
    ("BinStringToMsg of 32,767 random bits", "BinStringToMsg", "BareLoopPack", 2),
    ("MsgToBinString of 32,767 random bits", "MsgToBinString", "BareLoopUnpack", 2),
    ("late-bound property read", "LateBoundProperty", "VirtualCall", 5),
    ("property read from Python", "late-bound read", "bare method call", 3),
    ("request of 12 attribute records, from fields", "BuildRequestFromFields", "YardstickPackRequest", 40),
    ("the same from prepared records", "BuildRequestFromRecords", "YardstickPackRequest", 12),
    ("receive a request, read its last record", "ReceiveAndReadLastRecord", "YardstickWalk", 25),
    ("read 400 records through a getter, against 50", "ReadRecords/400", "ReadRecords/50", 10),
    ("property read over D-Bus, there and back", "D-Bus property", "D-Bus echo", 1.3),
    ("the same from an open session", "D-Bus property, open session", "D-Bus echo", 1.3),
]
# What is measured, the benchmark, and how many nanoseconds it may take.
TIMES = [
    ("Initialize of a sector", "InitializeSector", 5e6),
    ("vorlan describe, start to exit", "Describe", 15e6),
    ("simple attribute, the slowest: build, read back", "BuildAndReadSlowestSimpleAttribute", 300),
    ("a whole session through library and simulator", "WholeSession", 1e6),
    ("the same from Python", "whole session from Python", 3e6),
    ("security of a session, key exchange of 1024 bits", "KeyExchange", 50e6),
    ("T2PTransitionFunctionNN, 4 x 4: build, read back", "BuildAndReadT2PTransitionFunction", 10e3),
]
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def google_benchmarks(build):
    run = subprocess.run(
        [build / "bin" / "vorlan_benchmarks", "--benchmark_format=json", "--benchmark_repetitions=5",
         "--benchmark_min_time=0.2", "--benchmark_enable_random_interleaving=true",
         "--benchmark_report_aggregates_only=true"],
        stdout=subprocess.PIPE, check=True)
    return {row["run_name"]: row["cpu_time"] * NANOSECONDS[row["time_unit"]]
            for row in json.loads(run.stdout)["benchmarks"] if row.get("aggregate_name") == "median"}


def python_benchmarks(build, python):
    measured = {}
    for program in ("python_property.py", "python_session.py"):
        run = subprocess.run([python, "-B", HERE / program], stdout=subprocess.PIPE, text=True,
                             env={"PYTHONPATH": str(build / "python")})
        measured |= {name: float(figure) for name, figure in re.findall(r"^(.+?)\s+([\d.]+) ns$", run.stdout, re.MULTILINE)}
    return measured


def dbus_benchmarks(build):
    """On a private bus, which finds the server of the build folder."""
    program = build / "bin" / "vorlan_dbus_bench"
    if not program.exists() or not shutil.which("dbus-run-session"):
        return {}
    run = subprocess.run(["dbus-run-session", "--", program], stdout=subprocess.PIPE, text=True,
                         env={**os.environ, "XDG_DATA_DIRS": str(build.resolve() / "dbus")})
    return {name: float(figure) for name, figure in re.findall(r"^(.+?)\s+([\d.]+) ns$", run.stdout, re.MULTILINE)}


def describe(build):
    def once():
        before = time.perf_counter_ns()
        subprocess.run([build / "bin" / "vorlan", "describe", "SB_Con_MsgSectorParameters"],
                       stdout=subprocess.DEVNULL, check=True)
        return time.perf_counter_ns() - before

    return {"Describe": statistics.median(once() for _ in range(50))}


def text_of(nanoseconds):
    for unit, scale in (("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= scale:
            return f"{nanoseconds / scale:.2f} {unit}"
    return f"{nanoseconds:.1f} ns"


def main(build, python):
    measured = google_benchmarks(build) | python_benchmarks(build, python) | dbus_benchmarks(build) | describe(build)
    rows = [("", "measured", "yardstick", "ratio", "at most")]
    for what, name, yardstick, limit in RATIOS:
        if name in measured and yardstick in measured:
            rows.append((what, text_of(measured[name]), text_of(measured[yardstick]),
                         f"{measured[name] / measured[yardstick]:.1f}", f"{limit}"))
        else:
            rows.append((what, "not measured", "", "", f"{limit}"))
    for what, name, limit in TIMES:
        rows.append((what, text_of(measured[name]) if name in measured else "not measured", "", "", text_of(limit)))
    known = {name for row in RATIOS for name in row[1:3]} | {row[1] for row in TIMES}
    rows += [(name, text_of(value), "", "", "") for name, value in measured.items() if name not in known]
    widths = [max(len(row[column]) for row in rows) for column in range(5)]
    for row in rows:
        cells = [row[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
        print("  ".join(cells).rstrip())


if __name__ == "__main__":
    main(Path(sys.argv[1]), sys.argv[2])
