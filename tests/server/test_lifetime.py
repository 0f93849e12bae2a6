"""Processes, objects and memory: who may use them, and when they end."""

import json
import os
import signal
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import dbus
import pytest
from client import NULL, AutomationError, Client, Remote, is_gone, processes_of, wait_until
from kill_clients import kill_clients

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
    assert client.worker.get("Objects") >= len(classes)
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
        with pytest.raises(AutomationError) as raised:
            client.call(theirs.service, theirs.path, interface, member, signature, *arguments)
        assert raised.value.name == "org.freedesktop.DBus.Error.AccessDenied"
    with pytest.raises(AutomationError) as raised:
        own.call("CallObject", "(so)sv", theirs.reference, "Echo", 1)
    assert raised.value.number == 440 and "AccessDenied" in raised.value.description
    with pytest.raises(AutomationError) as raised:
        client.call(theirs.service, "/Vorlan", "Vorlan.Worker", "Cancel")
    assert raised.value.name == "org.freedesktop.DBus.Error.AccessDenied"


@pytest.mark.skipif(os.getuid() != 0, reason="only root can become another user")
def test_only_the_user_who_owns_the_bus_gets_in(bus):
    program = f"""
import dbus, os
os.setuid(65534)
bus = dbus.bus.BusConnection({bus.address!r})
for member, arguments in (("Create", ["Probe"]), ("Classes", [])):
    try:
        bus.call_blocking("Vorlan.Server", "/Vorlan", "Vorlan.Server", member, "s" * len(arguments), arguments)
    except dbus.DBusException as error:
        print(error.get_dbus_name())
"""
    output = subprocess.run([sys.executable, "-c", program], stdout=subprocess.PIPE, text=True, check=True).stdout
    assert output.split() == ["org.freedesktop.DBus.Error.AccessDenied"] * 2


def test_workers_end_with_the_front_process_and_the_next_call_starts_another(bus, client):
    client.create("Probe")
    worker = client.worker_process()
    client.start(client.worker.service, client.worker.path, "Vorlan.Worker", "Create", "s", "Probe").wait()
    (front,) = set(processes_of(bus.server, bus.address)) - {worker}
    os.kill(front, signal.SIGKILL)
    wait_until(lambda: is_gone(worker))
    assert client.create("Probe").call("Echo", "v", "again") == "again"
    assert client.worker_process() != worker


def test_an_open_session_serves_every_connection_until_its_process_ends(bus, client, other_client):
    holder = subprocess.Popen(["sleep", "1000"])
    opened = client.call("Vorlan.Server", "/Vorlan", "Vorlan.Server", "OpenSession", "us", dbus.UInt32(holder.pid), "x")
    assert opened == "Vorlan.Session.x"
    client.call(opened, "/Vorlan", "Vorlan.Worker", "Create", "s", "Probe")
    path, members = "/Vorlan/Probe/1", ("Test.Probe", "Echo", "v")
    assert other_client.call(opened, path, *members, dbus.Struct((opened, dbus.ObjectPath(path)), signature="so"))[1] == path
    process = int(client.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                              "GetConnectionUnixProcessID", "s", opened))
    for number, name in ((holder.pid, "x"), (holder.pid, "no name"), (2**31 - 1, "y")):
        with pytest.raises(AutomationError) as raised:
            client.call("Vorlan.Server", "/Vorlan", "Vorlan.Server", "OpenSession", "us", dbus.UInt32(number), name)
        assert raised.value.name == "org.freedesktop.DBus.Error.InvalidArgs"
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


def test_killed_clients_leave_nothing_behind(bus):
    kill_clients(bus.address, bus.server, int(os.environ.get("VORLAN_KILLS", "40")))


def whole_session(address, number):
    """A client with a test set of its own: from the first channel to the clean-up."""
    client = Client(address)

    def do(one, member, *arguments):
        return one.invoke(member, "Call", *arguments)[0]

    def part(one, name, *arguments):
        return one.invoke(name, "Get", *arguments)[0]

    test_set, parameters, sector, reverse = (client.create(name) for name in (
        "VorlanSim.TestSet", "SB_GlobalParameters", "SB_Sector", "SB_PROT_RevTrafficChannel"))
    parameters.set("PRstr_FileName", str(EXAMPLES / "sector.ini"))
    do(parameters, "Initialize", "SECTOR 0")
    parameters.set("PRbln_FadingEnabled", True)
    signalling, terminal, report = (Remote(client, *part(test_set, name), None)
                                    for name in ("Signalling", "AccessTerminal", "TestReport"))
    reverse_channels = Remote(client, *part(test_set, "ReverseTrafficChannels"), None)
    for name, reference in (
            ("GlobalParameters", parameters.reference), ("TestSet", test_set.reference),
            ("TestReport", report.reference), ("EvSignalling", signalling.reference),
            ("FChCollection", part(test_set, "ForwardChannels")),
            ("AccChCollection", part(test_set, "AccessChannels")),
            ("RevTrafficChannel", do(reverse_channels, "Item", "RTC_SECTOR 0")),
            ("EvProtocolController", part(test_set, "ProtocolController")),
            ("RadioChannelEmulator", part(test_set, "RadioChannelEmulator"))):
        sector.set("PRobj_" + name, reference)

    do(sector, "ConfigureFwdAndAccChannel", True, 0)
    assert do(sector, "StartSessionNegotiationFromAN")
    assert sector.invoke("EndSessionNegotiationFromAN", "Call", 0) == (True, [4])
    assert do(sector, "AcquireReverseTrafficChannel")
    do(reverse, "Initialize", parameters.reference, signalling.reference, part(signalling, "Messages"))
    assert do(reverse, "NegotiateRateParametersAttribute") and do(reverse, "NegotiatePowerParametersAttribute")
    sector.set("PR_intReferenceVelocity", 30)
    sector.set("PR_intNumPath", 1 + number % 8)
    do(sector, "EnableFading")
    do(sector, "SetGainAndDelay", 1, -3.0, NULL)
    assert do(sector, "NegotiateFTAP", True, True, False, False)
    do(sector, "EnableFTAPTestPktFlow")
    assert do(sector, "LowerLevel", 10.0, 2) and do(sector, "RaiseLevel", 5.0, 2)
    do(sector, "DisableFTAPTestPktFlow")
    do(sector, "DestoyFadingObjects")
    do(sector, "CleanUp")

    assert part(terminal, "State") == "Open" and len(part(terminal, "Complaints")) == 0
    assert part(report, "Count") == 7
    assert part(report, "Line", 3) == f"Configured: {1 + number % 8} path/s for Sector: SECTOR 0"
    assert part(Remote(client, *part(test_set, "Trace"), None), "Count") == 19
    assert part(test_set, "Time") > 6  # the sector has let the test set's time pass, and nobody has waited
    client.close()


def test_fifty_clients_at_once(plain_bus):
    children = []
    for number in range(50):
        child = os.fork()
        if child == 0:
            status = 1
            try:
                whole_session(plain_bus.address, number)
                status = 0
            finally:
                os._exit(status)
        children.append(child)
    assert [os.waitpid(child, 0)[1] for child in children] == [0] * 50


@pytest.mark.parametrize("program, name", [(["bash"], "dbus_session.sh"), ([sys.executable], "dbus_session.py")])
def test_the_sessions_of_the_readme(plain_bus, program, name):
    run = subprocess.run([*program, EXAMPLES / name], env=plain_bus.environment(), stdout=subprocess.PIPE, text=True,
                         check=True)
    assert run.stdout.splitlines()[-1].endswith("00000011" + ("\"" if name.endswith(".sh") else ""))
    readme = (EXAMPLES.parent / "README.md").read_text()
    lines = [line for line in (EXAMPLES / name).read_text().splitlines() if not line.startswith("#")]
    assert "\n".join(lines) in readme
