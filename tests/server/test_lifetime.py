"""Processes, objects and memory: who may use them, and when they end."""

import json
import os
import signal
import statistics
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import dbus
import pytest
from client import Client, error_of, is_gone, processes_of, wait_until
from kill_clients import kill_clients
from sessions import run_sessions

EXAMPLES = Path(__file__).resolve().parents[2] / "examples"


def test_the_first_call_starts_the_server_and_it_offers_every_class(plain_bus):
    client = Client(plain_bus.address)
    listed = json.loads(subprocess.run([plain_bus.server, "classes", "--json"], stdout=subprocess.PIPE, check=True).stdout)
    classes = [str(name) for name, _ in client.call("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Classes")]
    assert [name.removeprefix("Vorlan.") for name in classes] == [row["name"] for row in listed]
    for name in classes:
        made = client.create(name)
        shown = ElementTree.fromstring(made.introspect()).find(f"interface[@name='{name}']")
        static = ElementTree.fromstring(client.call("Vorlan.Server", "/Vorlan/" + name.split(".")[1],
                                                    dbus.INTROSPECTABLE_IFACE, "Introspect"))
        assert ElementTree.tostring(shown) == ElementTree.tostring(static.find(f"interface[@name='{name}']"))
        readable = {p.get("name") for p in shown.iter("property") if p.get("access") != "write"}
        assert set(made.start(dbus.PROPERTIES_IFACE, "GetAll", "s", name).wait()) <= readable
    assert client.worker.get("Objects") == len(classes)  # showing an object makes no others known
    client.close()


def test_every_client_has_a_worker_of_its_own_that_ends_with_it(bus, client, other_client):
    for either in (client, other_client):
        either.create("Probe")
        either.create("Probe")
        assert either.worker.get("Objects") == 2
    workers = [either.worker_process() for either in (client, other_client)]
    assert workers[0] != workers[1]
    client.close()
    wait_until(lambda: is_gone(workers[0]))
    assert other_client.worker.get("Objects") == 2


def test_another_client_s_objects_cannot_be_used(client, other_client):
    theirs, own = other_client.create("Probe"), client.create("Probe")
    for interface, member, signature, arguments in [
            ("Test.Probe", "Echo", "v", [1]), ("Vorlan.Object", "Release", "", []),
            (dbus.INTROSPECTABLE_IFACE, "Introspect", "", []),
            (dbus.PROPERTIES_IFACE, "Get", "ss", ["Test.Probe", "Held"])]:
        raised = error_of(lambda: client.call(theirs.service, theirs.path, interface, member, signature, *arguments))
        assert raised.name == "org.freedesktop.DBus.Error.AccessDenied"
    raised = error_of(lambda: own.call("CallObject", "(so)sv", theirs.reference, "Echo", 1))
    assert raised.number == 440 and "AccessDenied" in raised.description
    raised = error_of(lambda: client.call(theirs.service, "/Vorlan", "Vorlan.Worker", "Cancel"))
    assert raised.name == "org.freedesktop.DBus.Error.AccessDenied"


@pytest.mark.skipif(os.getuid() != 0, reason="only root can become another user")
def test_only_the_user_who_owns_the_bus_gets_in(bus, client, holder):
    own, opened = client.create("Probe"), open_session(client, holder.pid, "owners")
    shared = client.call(opened, "/Vorlan", "Vorlan.Worker", "Create", "s", "Probe")[1]
    calls = [("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Create", "s", ["Probe"]),
             ("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Classes", "", []),
             ("Vorlan.Server", "/Vorlan", "Vorlan.Server", "OpenSession", "us", [os.getpid(), "theirs"]),
             *((service, "/Vorlan", "Vorlan.Worker", "Create", "s", ["Probe"]) for service in (own.service, opened)),
             *((service, path, "Vorlan.Object", "Release", "", [])
               for service, path in ((own.service, own.path), (opened, shared)))]
    program = f"""
import dbus, os
os.setuid(65534)
bus = dbus.bus.BusConnection({bus.address!r})
for call in {calls!r}:
    try:
        bus.call_blocking(*call)
    except dbus.DBusException as error:
        print(error.get_dbus_name())
"""
    output = subprocess.run([sys.executable, "-c", program], stdout=subprocess.PIPE, text=True, check=True).stdout
    assert output.split() == ["org.freedesktop.DBus.Error.AccessDenied"] * len(calls)
    assert own.call("Echo", "v", "alive") == "alive"
    assert client.call(opened, shared, "Test.Probe", "Echo", "v", "alive") == "alive"


@pytest.mark.parametrize("number", [signal.SIGKILL, signal.SIGTERM, signal.SIGINT])
def test_workers_end_with_the_front_process_and_the_next_calls_start_another(bus, client, other_client, number):
    client.create("Probe")
    worker, front = client.worker_process(), client.process_of("Vorlan.Server")
    os.kill(front, number)
    wait_until(lambda: is_gone(worker) and is_gone(front))
    started = [one.start("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Create", "s", "Probe")
               for one in (client, other_client)]  # both at once
    assert len({one.wait()[0] for one in started}) == 2
    assert client.create("Probe").call("Echo", "v", "again") == "again"


def test_a_server_started_by_hand(bus, client, other_client, tmp_path):
    client.create("Probe")
    front = client.process_of("Vorlan.Server")
    second = subprocess.run([bus.server, "serve"], env=bus.environment(), stderr=subprocess.PIPE, text=True, timeout=60)
    assert second.returncode == 1 and "there is a server on this bus already" in second.stderr
    os.kill(front, signal.SIGTERM)
    wait_until(lambda: is_gone(front))
    told = tmp_path / "told"
    server = subprocess.Popen([bus.server, "serve"], env=bus.environment(), stderr=told.open("w"))
    try:
        wait_until(lambda: client.call(dbus.BUS_DAEMON_NAME, "/", dbus.BUS_DAEMON_IFACE, "NameHasOwner", "s",
                                       "Vorlan.Server"))
        error_of(other_client.create("Probe").start("Test.Probe", "Crash").wait)
        wait_until(told.read_text)
        assert told.read_text() == f"vorlan: the worker of {other_client.name} was ended by signal 9\n"
        client.create("Probe")
        worker = client.worker_process()
        server.send_signal(signal.SIGINT)
        assert server.wait(60) == 0 and len(told.read_text().splitlines()) == 1
        wait_until(lambda: is_gone(worker))
    finally:
        server.kill()
        server.wait()


@pytest.mark.parametrize("leaves", [False, True])
def test_a_worker_crashes_and_the_front_process_notices_late(bus, client, other_client, leaves):
    def is_known(name):
        return other_client.call(dbus.BUS_DAEMON_NAME, "/", dbus.BUS_DAEMON_IFACE, "NameHasOwner", "s", name)

    other_client.create("Probe")
    client.create("Probe")
    crashed, front = client.worker_process(), client.process_of("Vorlan.Server")
    before = set(processes_of(bus.server, bus.address))
    os.kill(front, signal.SIGSTOP)
    try:
        started = [client.start("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Create", "s", "Probe") for _ in range(5)]
        client.process_of("Vorlan.Server")  # behind the calls: the bus has them now
        os.kill(crashed, signal.SIGKILL)
        wait_until(lambda: not is_known(client.worker.service))
        if leaves:
            client.close()
            wait_until(lambda: not is_known(client.name))
    finally:
        os.kill(front, signal.SIGCONT)
    if leaves:
        # The second answer comes after whatever the front process does about the first of those calls.
        for _ in range(2):
            other_client.create("Probe")
        wait_until(lambda: set(processes_of(bus.server, bus.address)) <= before)
    else:
        assert len({one.wait()[0] for one in started}) == 1
        assert client.create("Probe").call("Echo", "v", "alive") == "alive"


@pytest.fixture
def holder():
    """A process that an open session belongs to."""
    process = subprocess.Popen(["sleep", "1000"])
    yield process
    process.kill()
    process.wait()


def open_session(client, process, name):
    return client.call("Vorlan.Server", "/Vorlan", "Vorlan.Server", "OpenSession", "us", dbus.UInt32(process), name)


def test_an_open_session_serves_every_connection_until_its_process_ends(client, other_client, holder):
    opened = open_session(client, holder.pid, "x")
    assert opened == "Vorlan.Session.x"
    client.call(opened, "/Vorlan", "Vorlan.Worker", "Create", "s", "Probe")
    path, members = "/Vorlan/Probe/1", ("Test.Probe", "Echo", "v")
    assert other_client.call(opened, path, *members, dbus.Struct((opened, dbus.ObjectPath(path)), signature="so"))[1] == path
    process = client.process_of(opened)
    for number, name in ((holder.pid, "x"), (holder.pid, "no name"), (2**31 - 1, "y"), (2**32 - 1, "y")):
        assert error_of(lambda: open_session(client, number, name)).name == "org.freedesktop.DBus.Error.InvalidArgs"
    for number in range(15):
        open_session(client, holder.pid, f"x{number}")
    for opener in (client, other_client):  # too many of one connection, too many for one process
        raised = error_of(lambda: open_session(opener, os.getpid() if opener is client else holder.pid, "y"))
        assert raised.name == "org.freedesktop.DBus.Error.LimitsExceeded"
    other_client.call("Vorlan.Server", "/Vorlan", "Vorlan.Server", "CloseSession", "s", "x")
    wait_until(lambda: is_gone(process))
    process = client.process_of(open_session(client, holder.pid, "x"))
    holder.kill()
    holder.wait()
    wait_until(lambda: is_gone(process))


def test_objects_created_and_dropped_leave_memory_where_it_was(client):
    def resident():
        with open(f"/proc/{client.worker_process()}/statm") as file:
            return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")

    def create_and_drop(count):
        for _ in range(count // 10):
            made = [client.create("SB_Con_MsgSectorParameters") for _ in range(10)]
            for one in made:
                one.release()

    client.create("Probe")
    create_and_drop(500)
    before = resident()
    create_and_drop(int(os.environ.get("VORLAN_OBJECTS", "2000")))
    assert client.worker.get("Objects") == 1
    assert resident() - before < 1_000_000


def test_killed_clients_leave_nothing_behind_and_their_workers_go_at_once(bus):
    waits, _ = kill_clients(bus.address, bus.server, int(os.environ.get("VORLAN_KILLS", "40")))
    # Half of them, so that a machine which is busy for a moment fails nobody.
    assert statistics.median(waits) < 1


def test_the_service_file_names_the_program_where_it_is_installed(plain_bus, tmp_path):
    subprocess.run(["cmake", "--install", plain_bus.server.parents[1], "--component", "dbus_service", "--prefix", tmp_path],
                   stdout=subprocess.DEVNULL, check=True)
    service = (tmp_path / "share/dbus-1/services/Vorlan.Server.service").read_text()
    assert f"Exec={tmp_path}/bin/vorlan serve\n" in service


def test_fifty_clients_at_once(plain_bus):
    assert len(run_sessions(plain_bus.address, 50)[1]) == 50


EXAMPLE_RUNS = [(["bash"], "dbus_session.sh", 's "00000011"'), ([sys.executable], "dbus_session.py", "00000011"),
                ([sys.executable], "dbus_objects.py", "01 03 01 AA")]


@pytest.mark.parametrize("program, name, last_line", EXAMPLE_RUNS)
def test_examples(plain_bus, program, name, last_line):
    run = subprocess.run([*program, EXAMPLES / name], env=plain_bus.environment(), stdout=subprocess.PIPE, text=True,
                         check=True)
    assert run.stdout.splitlines()[-1] == last_line
    lines = [line for line in (EXAMPLES / name).read_text().splitlines() if not line.startswith("#")]
    assert "session" not in name or "\n".join(lines) in (EXAMPLES.parent / "README.md").read_text()
