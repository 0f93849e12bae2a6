"""Kills clients in the middle of what they do, and looks for what they leave behind, and for how long.

    DBUS_SESSION_BUS_ADDRESS=... python3 kill_clients.py SERVER-PROGRAM [COUNT [SEED]]
"""

import os
import random
import select
import signal
import statistics
import sys
import time

from client import Client, ScriptObject, processes_of, wait_until


def work(address, seed):
    """What a client does until it is killed."""
    chance = random.Random(seed)
    client = Client(address)
    script = ScriptObject(client, "/script", lambda *_: None)
    while True:
        message = client.create("SB_Ses_MsgSessionClose")
        message.call("Initialize", "(so)", script.reference)
        message.set("PRstr_CloseReason", "00000011")
        message.start("Vorlan.Object", "Invoke", "ssav", "CreateMessage", "Call", [script.reference])
        if chance.random() < 0.5:
            message.release()


def descriptors(process):
    return len(os.listdir(f"/proc/{process}/fd"))


def watched(processes):
    """Descriptors that become readable when the processes end; none of those that have ended already."""
    opened = []
    for process in processes:
        try:
            opened.append(os.pidfd_open(process))
        except ProcessLookupError:
            pass
    return opened


def kill_clients(address, program, count, seed=0):
    """Kills them at random moments. How many seconds their workers lived on, and the front's open files in the end.

    Every other client is killed once it has a worker, and its end is waited for; the rest at any time, so that the end
    of a worker meets the start of the next.
    """
    chance = random.Random(seed)
    keeper = Client(address)
    keeper.create("SB_Ses_MsgSessionClose")
    front = keeper.process_of("Vorlan.Server")
    before = set(processes_of(program, address))
    files = descriptors(front)
    waits = []
    for number in range(count):
        child = os.fork()
        if child == 0:
            try:
                work(address, chance.random())
            finally:
                os._exit(1)
        time.sleep(chance.expovariate(1 / 0.03))
        workers = []
        if number % 2 == 0:
            wait_until(lambda: set(processes_of(program, address)) - before)
            workers = watched(set(processes_of(program, address)) - before)
        died = time.monotonic()
        os.kill(child, signal.SIGKILL)
        for worker in workers:
            assert select.select([worker], [], [], 60)[0], "a worker did not end"
            os.close(worker)
        if workers:
            waits.append(time.monotonic() - died)
        os.waitpid(child, 0)
        if sys.stdout.isatty():
            print(f"\r{number + 1} killed", end="", flush=True)
    wait_until(lambda: set(processes_of(program, address)) <= before)
    wait_until(lambda: descriptors(front) <= files)
    assert set(processes_of(program, address)) == before, "a client that was not killed lost its worker"
    assert keeper.worker.get("Objects") == 1
    keeper.close()
    return waits, files


if __name__ == "__main__":
    lasted, remain = kill_clients(os.environ["DBUS_SESSION_BUS_ADDRESS"], os.path.realpath(sys.argv[1]),
                                  *map(int, sys.argv[2:]))
    print(f"no worker left; the front process has {remain} open files, as before")
    print(f"workers were gone after {statistics.median(lasted) * 1000:.1f} ms, the slowest of {len(lasted)} after "
          f"{max(lasted) * 1000:.0f} ms")
