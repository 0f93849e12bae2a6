"""Calls that no honest client makes: each is answered with an error, and the worker lives on."""

import random

import dbus
import pytest
from client import EMPTY, AutomationError

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
    (PROPERTIES, "Get", "ss", ["Test.Nobody", "Held"], "UnknownProperty"),
    (PROPERTIES, "Get", "s", ["Held"], "InvalidArgs"),
    (PROPERTIES, "Set", "ssv", ["Test.Probe", "Octets", "x"], "PropertyReadOnly"),
    (PROPERTIES, "Set", "ssv", ["Vorlan.Object", "Class", "x"], "UnknownProperty"),
    (PROPERTIES, "GetAll", "s", ["Test.Nobody"], "UnknownInterface"),
    (dbus.INTROSPECTABLE_IFACE, "Introspect", "s", ["all"], "InvalidArgs"),
    ("Test.Probe", "Echo", "v", [dbus.ObjectPath("/Vorlan/Probe/999")], "UnknownObject"),
    ("Test.Probe", "CallObject", "(so)sv", [("", dbus.ObjectPath("/etc/passwd")), "x", 1], "UnknownObject"),
]


@pytest.mark.parametrize("interface, member, signature, arguments, error", BAD_CALLS)
def test_a_call_that_does_not_fit_is_refused(client, interface, member, signature, arguments, error):
    probe = client.create("Probe")
    with pytest.raises(AutomationError) as raised:
        client.call(probe.service, probe.path, interface, member, signature, *arguments)
    assert raised.value.name == DBUS_ERROR + error
    assert probe.call("Echo", "v", "alive") == "alive"


@pytest.mark.parametrize("path", ["/", "/Vorlan/Probe", "/Vorlan/Probe/0", "/Vorlan/Probe/1/2", "/Vorlan/SB_Sector/1",
                                  "/Vorlan/Probe/18446744073709551617", "/" + "x" * 60_000], ids=lambda path: path[:20])
def test_a_path_without_an_object_is_refused(client, path):
    probe = client.create("Probe")
    with pytest.raises(AutomationError) as raised:
        client.call(probe.service, path, "Test.Probe", "Echo", "v", 1)
    assert raised.value.name == DBUS_ERROR + "UnknownObject"


def test_the_front_process_refuses_what_it_does_not_offer(client):
    for path, interface, member, signature, arguments, error in [
            ("/Vorlan", "Vorlan.Server", "Create", "", [], "InvalidArgs"),
            ("/Vorlan", "Vorlan.Server", "Create", "i", [dbus.Int32(1)], "InvalidArgs"),
            ("/Vorlan", "Vorlan.Server", "Destroy", "", [], "UnknownMethod"),
            ("/Vorlan/Probe", "Test.Probe", "Echo", "v", [1], "UnknownMethod"),
            ("/Vorlan/Nobody", dbus.INTROSPECTABLE_IFACE, "Introspect", "", [], "UnknownObject"),
            ("/nowhere", "Vorlan.Server", "Classes", "", [], "UnknownMethod")]:
        with pytest.raises(AutomationError) as raised:
            client.call("Vorlan.Server", path, interface, member, signature, *arguments)
        assert raised.value.name == DBUS_ERROR + error
    for name in ("", ".", "Vorlan.", "SB_\n", "x" * 1_000_000):
        with pytest.raises(AutomationError) as raised:
            client.create(name)
        assert raised.value.number == 429
    assert client.create("Probe").call("Echo", "v", "alive") == "alive"


def test_values_of_any_size_and_depth(client):
    probe = client.create("Probe")
    huge = "1" * 100_000_000
    message = client.create("SB_Ses_MsgSessionClose")
    with pytest.raises(AutomationError) as raised:
        message.set("PRstr_CloseReason", huge)
    assert raised.value.key()[:2] == (1, "SB_Ses_MsgSessionClose.PRstr_CloseReason")
    with pytest.raises(AutomationError) as raised:
        message.invoke(huge[:1_000_000], "Call")
    assert raised.value.number == 438
    assert len(probe.call("Echo", "v", huge[:10_000_000])) == 10_000_000
    assert probe.call("Echo", "v", nested(20)) == nested(20)
    assert len(probe.call("Echo", "v", dbus.Array(range(100_000), signature="i"))) == 100_000
    assert message.get("PRstr_CloseReason") == ""


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
