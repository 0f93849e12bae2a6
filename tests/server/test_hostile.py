"""Calls that no honest client makes: each is answered with an error, and the worker lives on."""

import os
import random
import signal

import dbus
import pytest
from client import EMPTY, AutomationError, ScriptObject, error_of

DBUS_ERROR = "org.freedesktop.DBus.Error."
PROPERTIES = dbus.PROPERTIES_IFACE


def nested(depth):
    value = dbus.Array([], signature="v")
    for _ in range(depth):
        value = dbus.Array([value], signature="v")
    return value


BAD_CALLS = [
    # interface, member, signature, arguments, error
    ("Test.Probe", "Nonsense", "", [], "UnknownMethod"),
    ("Test.Probe", "Echo", "", [], "InvalidArgs"),
    ("Test.Probe", "Echo", "s", ["x"], "InvalidArgs"),
    ("Test.Probe", "Echo", "vv", [1, 2], "InvalidArgs"),
    ("Test.Probe", "Wait", "s", ["soon"], "InvalidArgs"),
    ("Test.Probe", "Element", "", [], "InvalidArgs"),
    ("Test.Probe", "Set_Element", "ns", [1, "x"], "InvalidArgs"),
    ("Test.Probe", "Held", "", [], "UnknownMethod"),
    ("Test.Nobody", "Echo", "v", [1], "UnknownMethod"),
    ("Vorlan.Object", "Invoke", "ss", ["Echo", "Call"], "InvalidArgs"),
    ("Vorlan.Object", "Invoke", "ssav", ["Echo", "Perhaps", []], "InvalidArgs"),
    ("Vorlan.Object", "Release", "s", ["now"], "InvalidArgs"),
    ("Vorlan.Object", "Destroy", "", [], "UnknownMethod"),
    (PROPERTIES, "Get", "ss", ["Test.Probe", "Echo"], "UnknownProperty"),
    (PROPERTIES, "Get", "ss", ["Test.Nobody", "Held"], "UnknownInterface"),
    ("Test.Probe", "Echo", "v", ["\uffff"], "InvalidArgs"),
    (PROPERTIES, "Get", "s", ["Held"], "InvalidArgs"),
    (PROPERTIES, "Set", "ssv", ["Test.Probe", "Octets", "x"], "PropertyReadOnly"),
    (PROPERTIES, "Set", "ssv", ["Vorlan.Object", "Class", "x"], "PropertyReadOnly"),
    (PROPERTIES, "GetAll", "s", ["Test.Nobody"], "UnknownInterface"),
    (dbus.INTROSPECTABLE_IFACE, "Introspect", "s", ["all"], "InvalidArgs"),
    ("Test.Probe", "Echo", "v", [dbus.ObjectPath("/Vorlan/Probe/999")], "UnknownObject"),
    ("Test.Probe", "CallObject", "(so)sv", [("", dbus.ObjectPath("/etc/passwd")), "x", 1], "UnknownObject"),
]


@pytest.mark.parametrize("interface, member, signature, arguments, error", BAD_CALLS)
def test_a_call_that_does_not_fit_is_refused(client, interface, member, signature, arguments, error):
    probe = client.create("Probe")
    raised = error_of(lambda: client.call(probe.service, probe.path, interface, member, signature, *arguments))
    assert raised.name == DBUS_ERROR + error
    assert probe.call("Echo", "v", "alive") == "alive"


@pytest.mark.parametrize("path", ["/", "/Vorlan/Probe", "/Vorlan/Probe/0", "/Vorlan/Probe/1/2", "/Vorlan/SB_Sector/1",
                                  "/Vorlan/Probe/18446744073709551617", "/" + "x" * 60_000], ids=lambda path: path[:20])
def test_a_path_without_an_object_is_refused(client, path):
    probe = client.create("Probe")
    raised = error_of(lambda: client.call(probe.service, path, "Test.Probe", "Echo", "v", 1))
    assert raised.name == DBUS_ERROR + "UnknownObject"


def test_the_front_process_refuses_what_it_does_not_offer(client):
    for path, interface, member, signature, arguments, error in [
            ("/Vorlan", "Vorlan.Server", "Create", "", [], "InvalidArgs"),
            ("/Vorlan", "Vorlan.Server", "Create", "i", [dbus.Int32(1)], "InvalidArgs"),
            ("/Vorlan", "Vorlan.Server", "Destroy", "", [], "UnknownMethod"),
            ("/Vorlan/Probe", "Test.Probe", "Echo", "v", [1], "UnknownMethod"),
            ("/Vorlan", PROPERTIES, "Get", "ss", ["Vorlan.Server", "Name"], "UnknownProperty"),
            ("/Vorlan", "Vorlan.Server", "CloseSession", "s", ["nobody's"], "InvalidArgs"),
            ("/Vorlan/Probe", PROPERTIES, "GetAll", "s", ["Test.Nobody"], "UnknownInterface"),
            ("/Vorlan/Nobody", PROPERTIES, "GetAll", "s", [""], "UnknownObject"),
            ("/Vorlan/Nobody", dbus.INTROSPECTABLE_IFACE, "Introspect", "", [], "UnknownObject"),
            ("/nowhere", "Vorlan.Server", "Classes", "", [], "UnknownMethod")]:
        raised = error_of(lambda: client.call("Vorlan.Server", path, interface, member, signature, *arguments))
        assert raised.name == DBUS_ERROR + error
    for member, arguments, error in [("Get", ["Vorlan.Worker", "Size"], "UnknownProperty"),
                                     ("Set", ["Vorlan.Worker", "Objects", 1], "PropertyReadOnly"),
                                     ("GetAll", ["Test.Nobody"], "UnknownInterface")]:
        client.create("Probe")
        raised = error_of(lambda: client.worker.start(PROPERTIES, member, "ssv"[:len(arguments)], *arguments).wait())
        assert raised.name == DBUS_ERROR + error
    for name in ("", ".", "Vorlan.", "SB_\n", "x" * 1_000_000):
        assert error_of(lambda: client.create(name)).number == 429
    assert client.create("Probe").call("Echo", "v", "alive") == "alive"


def test_values_of_any_size_and_depth(client):
    client.patience = 900  # sanitizers take their time over this
    probe = client.create("Probe")
    huge = "1" * 100_000_000
    report = ScriptObject(client, "/report", lambda *_: None)
    functions = client.create("SB_GeneralFunctions")
    # What the bus does not carry: the answer is too large, an argument returned is, a call of the script's object is.
    for too_large in (lambda: functions.call("ConvertAsctoBinary", "s", huge[:9_000_000]),
                      lambda: probe.invoke("Echo", "Call", huge[:32_000_000]),
                      lambda: probe.call("CallObject", "(so)sv", report.reference, "Go", huge)):
        raised = error_of(too_large)
        assert raised.number == 6 and "more than a message of the bus carries" in raised.description
    assert error_of(lambda: probe.set("Held", nested(30))).number == 13
    probe.set("Held", nested(20))
    assert probe.start(PROPERTIES, "GetAll", "s", "Test.Probe").wait()["Held"] == nested(20)
    probe.set("Held", huge[:32_000_000])
    assert "Held" not in probe.start(PROPERTIES, "GetAll", "s", "Test.Probe").wait()
    message = client.create("SB_Ses_MsgSessionClose")
    raised = error_of(lambda: message.set("PRstr_CloseReason", huge[:10_000_000]))
    assert raised.key()[:2] == (1, "SB_Ses_MsgSessionClose.PRstr_CloseReason")
    assert error_of(lambda: message.invoke(huge[:1_000_000], "Call")).number == 438
    assert len(probe.call("Echo", "v", huge[:10_000_000])) == 10_000_000
    assert len(probe.call("Echo", "v", dbus.Array(range(100_000), signature="i"))) == 100_000
    assert message.get("PRstr_CloseReason") == ""


def test_a_client_whose_worker_does_not_answer_does_not_keep_others_from_theirs(client, other_client):
    client.create("Probe")
    os.kill(client.worker_process(), signal.SIGSTOP)
    started = [client.start("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Create", "s", "Probe") for _ in range(600)]
    assert error_of(started[-1].wait).name == DBUS_ERROR + "LimitsExceeded"
    assert other_client.create("Probe").call("Echo", "v", "alive") == "alive"
    os.kill(client.worker_process(), signal.SIGCONT)
    started[0].wait()
    assert client.create("Probe").call("Echo", "v", "alive") == "alive"


def test_random_calls(client):
    chance = random.Random(1)
    probe = client.create("Probe")
    messages = [client.create(name) for name in
                ("SB_Ses_MsgSessionClose", "SB_GeneralFunctions", "SB_Con_MsgRouteUpdate", "VorlanSim.MessageObject")]
    members = ["PRstr_CloseReason", "CreateMessage", "Initialize", "Octet", "Length", "BinToDec", "AddPadding", "HexToBin",
               "PRobj_MessageObject", "PRstr_MessageString", "", "é", "a.b", "x" * 300]
    values = [1, -1, 2.5, True, "", "01", "x", EMPTY, dbus.Signature("v"), nested(3), dbus.ByteArray(b"\xff"),
              dbus.Struct(("", dbus.ObjectPath("/")), signature="so"), messages[3].reference, probe.reference,
              float("nan"), float("inf"), dbus.Int64(2**62), dbus.Struct((1e300,), signature="d")]
    failed = 0
    for _ in range(1500):
        target = chance.choice(messages)
        arguments = [chance.choice(values) for _ in range(chance.randrange(4))]
        try:
            target.invoke(chance.choice(members), chance.choice(["Get", "Let", "Set", "Call"]), *arguments)
        except AutomationError as error:
            assert error.number is not None, error
            failed += 1
    assert 0 < failed < 1500
    assert probe.call("Echo", "v", "alive") == "alive"
