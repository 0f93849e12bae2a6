"""Clients that all run a whole session at the same time, each with a simulated test set of its own.

    DBUS_SESSION_BUS_ADDRESS=... python3 sessions.py [COUNT]
"""

import os
import statistics
import sys
import time
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "behaviour"))

from behaviour import SESSION, run
from client import Client
from test_behaviour import OverDBus


def whole_session(address):
    """The worker's memory in KiB: all of it, and its share of what it has in common with others."""
    client = Client(address)
    run(OverDBus(client), SESSION)
    with open(f"/proc/{client.worker_process()}/smaps_rollup") as file:
        memory = {line.split()[0]: int(line.split()[1]) for line in file if line.endswith("kB\n")}
    client.close()
    return memory["Rss:"], memory["Pss:"]


def run_sessions(address, count):
    """Seconds until the last is done, and the memory of each worker; an error if a session failed."""
    read_end, write_end = os.pipe()
    began = time.monotonic()
    children = []
    for _ in range(count):
        child = os.fork()
        if child == 0:
            status = 1
            try:
                os.write(write_end, "{} {}\n".format(*whole_session(address)).encode())
                status = 0
            finally:
                os._exit(status)
        children.append(child)
    os.close(write_end)
    failed = sum(os.waitpid(child, 0)[1] != 0 for child in children)
    seconds = time.monotonic() - began
    with os.fdopen(read_end) as results:
        memory = [tuple(map(int, line.split())) for line in results]
    assert failed == 0, f"{failed} of {count} sessions failed"
    return seconds, memory


if __name__ == "__main__":
    run_sessions(os.environ["DBUS_SESSION_BUS_ADDRESS"], 1)  # starts the server
    took, used = run_sessions(os.environ["DBUS_SESSION_BUS_ADDRESS"], *map(int, sys.argv[1:] or ["50"]))
    resident, share = (statistics.median(column) / 1024 for column in zip(*used))
    print(f"{len(used)} sessions at once: {took:.2f} s; a worker has {resident:.1f} MB, {share:.1f} MB its own share")
