"""Kills clients in the middle of what they do, and looks for what they leave behind.

    DBUS_SESSION_BUS_ADDRESS=... python3 kill_clients.py SERVER-PROGRAM [COUNT [SEED]]
"""

import os
import random
import signal
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


def kill_clients(address, program, count, seed=0):
    """The front's open files before and after."""
    chance = random.Random(seed)
    keeper = Client(address)
    keeper.create("SB_Ses_MsgSessionClose")
    front = int(keeper.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                            "GetConnectionUnixProcessID", "s", "Vorlan.Server"))
    before = set(processes_of(program, address))
    files = descriptors(front)
    for number in range(count):
        child = os.fork()
        if child == 0:
            try:
                work(address, chance.random())
            finally:
                os._exit(1)
        time.sleep(chance.expovariate(1 / 0.03))
        os.kill(child, signal.SIGKILL)
        os.waitpid(child, 0)
        if sys.stdout.isatty():
            print(f"\r{number + 1} killed", end="", flush=True)
    wait_until(lambda: set(processes_of(program, address)) <= before)
    wait_until(lambda: descriptors(front) <= files)
    assert set(processes_of(program, address)) == before, "a client that was not killed lost its worker"
    assert keeper.worker.get("Objects") == 1
    keeper.close()
    return files, descriptors(front)


if __name__ == "__main__":
    was, remains = kill_clients(os.environ["DBUS_SESSION_BUS_ADDRESS"], os.path.realpath(sys.argv[1]),
                                *map(int, sys.argv[2:]))
    print(f"no worker left; the front process has {remains} open files, as before ({was})")
