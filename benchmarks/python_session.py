"""Times the session of examples/session.py, without the key exchange's arithmetic; the settings of the user who measures stay as they are."""

import contextlib
import io
import os
import statistics
import sys
import tempfile
import time
from pathlib import Path

EXAMPLES = Path(__file__).resolve().parents[1] / "examples"
sys.path.insert(0, str(EXAMPLES))
os.environ["XDG_CONFIG_HOME"] = (settings := tempfile.TemporaryDirectory()).name

import session  # noqa: E402
import vorlan  # noqa: E402

parameters = session.load_configuration(EXAMPLES / "sector.ini", "SECTOR 0")


def once():
    before = time.perf_counter_ns()
    test_set = vorlan.CreateObject("VorlanSim.TestSet")
    with contextlib.redirect_stdout(io.StringIO()):
        session.run(test_set, session.connect(test_set, parameters), secured=False)
    return time.perf_counter_ns() - before


once()
print(f"whole session from Python {statistics.median(once() for _ in range(200)):.1f} ns")
