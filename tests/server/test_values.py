"""Values, members and errors as they cross the bus."""

import xml.etree.ElementTree as ElementTree

import dbus
import pytest
from client import EMPTY, NOTHING, NULL, ScriptObject, error_of, refusal

VALUES = [
    # sent, and what comes back with its type
    (dbus.Boolean(True), dbus.Boolean(True)),
    (dbus.Int16(-7), dbus.Int16(-7)),
    (dbus.Int32(-7), dbus.Int32(-7)),
    (dbus.Byte(200), dbus.Int16(200)),
    (dbus.UInt16(40000), dbus.Int32(40000)),
    (dbus.UInt32(4000000000), dbus.Double(4e9)),
    (dbus.Int64(-5), dbus.Int16(-5)),
    (dbus.UInt64(2**40), dbus.Double(2.0**40)),
    (dbus.Double(0.1), dbus.Double(0.1)),
    (dbus.Struct((2.25,), signature="d"), dbus.Struct((2.25,), signature="d")),
    ("mañana 🗼", dbus.String("mañana 🗼")),
    (dbus.ByteArray(b"plain"), dbus.String("plain")),
    (dbus.ByteArray(b"\xff\x00"), dbus.Array([0xFF, 0], signature="y")),
    (EMPTY, dbus.Signature("")),
    (NULL, dbus.Signature("v")),
    (NOTHING, NOTHING),
    (dbus.Array([dbus.Int32(1), dbus.Int32(2)], signature="i"), dbus.Array([1, 2], signature="v")),
    (dbus.Array(["a", dbus.Array([True], signature="v")], signature="v"),
     dbus.Array(["a", dbus.Array([True], signature="v")], signature="v")),
]


@pytest.mark.parametrize("sent, received", VALUES, ids=lambda value: type(value).__name__)
def test_a_value_of_each_type_goes_through_a_place_for_any(client, sent, received):
    probe = client.create("Test.Probe")
    came = probe.call("Echo", "v", sent)
    assert (came, type(came)) == (received, type(received))
    assert probe.invoke("echo", "call", sent)[0] == received
    probe.set("Held", sent)
    assert probe.get("Held") == received


def test_octets_become_a_text_where_the_bus_can_carry_it(client):
    probe = client.create("Probe")
    for text in ("", "\u007f\u0080\u07ff\u0800\ud7ff\ue000\ufdcf\ufdf0\ufffd\U00010000\U0001fffd\U0010fffd"):
        assert probe.call("Echo", "v", dbus.ByteArray(text.encode())) == text
    # Too long, cut off, continued without a start, a surrogate, beyond the last character, no UTF-8 at all, noncharacters.
    for octets in (b"\xc0\x80", b"\xc1\xbf", b"\xe0\x9f\xbf", b"\xf0\x8f\xbf\xbf", b"a\xc3", b"\xe2\x82", b"\xf0\x9f\x97",
                   b"\x80", b"\xed\xa0\x80", b"\xf4\x90\x80\x80", b"\xf5\x80\x80\x80", b"\xfe", b"a\x00b", b"\xc3a",
                   *(character.encode() for character in "\ufdd0\ufdef\ufffe\uffff\U0001fffe\U0010ffff")):
        assert bytes(probe.call("Echo", "v", dbus.ByteArray(octets))) == octets


@pytest.mark.parametrize("sent", [
    dbus.Signature("ii", variant_level=1),
    dbus.Struct(("a", "b"), signature="ss"),
    dbus.Dictionary({"a": 1}, signature="si"),
])
def test_a_value_of_no_automation_type_is_a_type_mismatch(client, sent):
    probe = client.create("Probe")
    for use, member in ((lambda: probe.call("Echo", "v", sent), "Echo"), (lambda: probe.set("Held", sent), "Held"),
                        (lambda: probe.invoke("Echo", "Call", sent), "Echo")):
        assert error_of(use).key()[:2] == (13, "Probe." + member)


def test_members_are_offered_with_their_types(client):
    probe = client.create("Probe")
    document = ElementTree.fromstring(probe.introspect())
    interface = document.find("interface[@name='Test.Probe']")
    methods = {method.get("name"): [(a.get("direction"), a.get("name"), a.get("type"), *(n.get("value") for n in a))
                                    for a in method.iter("arg")] for method in interface.iter("method")}
    assert methods["Change"] == [("in", "value", "v"), ("in", "number", "n"), ("in", "text", "s"),
                                 ("out", "value", "v"), ("out", "number", "n"), ("out", "text", "s")]
    assert methods["Element"] == [("in", "index", "n"), ("in", "suffix", "v", "optional, s"), ("out", "result", "s")]
    assert methods["Set_Element"] == [("in", "index", "n"), ("in", "suffix", "v", "optional, s"), ("in", "value", "s")]
    assert methods["Wait"] == [("in", "seconds", "i")]
    properties = {p.get("name"): (p.get("type"), p.get("access")) for p in interface.iter("property")}
    assert properties == {"Held": ("v", "readwrite"), "Octets": ("s", "read"), "Day": ("(d)", "read"),
                          "Count": ("i", "read")}
    marked = interface.findall("property/annotation[@name='org.freedesktop.systemd1.Explicit']/..")
    assert [one.get("name") for one in marked] == ["Count"]
    assert interface.find("method[@name='Wait']/annotation").get("value") == "Waits"
    assert interface.find("annotation").get("value") == "What tests need & <nobody else>."
    assert 'takes "n[v]"' in str(error_of(lambda: probe.call("Element")))


def test_a_call_may_leave_the_interface_away(client):
    probe = client.create("Probe")
    for path, member, signature, *arguments in [
            (probe.path, "Echo", "v", 1), (probe.path, "Get", "ss", "Test.Probe", "Held"), (probe.path, "Introspect", ""),
            ("/Vorlan", "GetAll", "s", "Vorlan.Worker"), ("/Vorlan", "Create", "s", "Probe")]:
        assert client.call(probe.service, path, None, member, signature, *arguments) is not None
    assert "Test.Probe" in client.call("Vorlan.Server", "/Vorlan/Probe", None, "Introspect")


def test_arguments_by_reference_are_results(client):
    probe = client.create("Probe")
    assert probe.call("Change", "vns", dbus.Int32(5), dbus.Int16(6), "text") == ("changed", 7, "text!")
    result, arguments = probe.invoke("Change", "Call", dbus.Int32(5), dbus.Int16(6), "text")
    assert (result, arguments) == ("", ["changed", 7, "text!"])


def test_a_property_with_arguments_is_a_method_that_reads_and_one_that_writes(client):
    probe = client.create("Probe")
    probe.call("Set_Element", "nvs", dbus.Int16(3), "x", "y")
    assert probe.call("Element", "nv", dbus.Int16(1), "z") == "13xyz"
    assert probe.call("Element", "nv", dbus.Int16(1), EMPTY) == "13xy"
    assert probe.call("Element", "n", dbus.Int16(1)) == "13xy"
    assert probe.invoke("element", "get", dbus.Int16(1))[0] == "13xy"
    assert probe.invoke("element", "let", dbus.Int16(1), EMPTY, "w")[0] == EMPTY
    assert probe.invoke("element", "get", dbus.Int16(1))[0] == "11w"


def test_all_is_shown_but_what_is_not_utf8_and_what_reading_changes(client):
    probe = client.create("Probe")
    assert bytes(probe.invoke("Octets", "Get")[0]) == b"a\xff"
    assert error_of(lambda: probe.get("Octets")).number == 13
    assert set(probe.start(dbus.PROPERTIES_IFACE, "GetAll", "s", "Test.Probe").wait()) == {"Held", "Day"}
    assert [probe.get("Count"), probe.get("Count")] == [1, 2]


ERRORS = [
    (1, "Class.Member", "A description.  With blanks, no stop"),
    (438, "", "no source"),
    (-2147467259, "Script", "two\nlines: and a colon"),
    (91, "", ""),
]


@pytest.mark.parametrize("number, source, description", ERRORS)
def test_an_error_carries_number_source_and_description_in_both_directions(client, number, source, description):
    def answer(*_):
        raise refusal(number, source, description)

    probe = client.create("Probe")
    raised = error_of(lambda: probe.call("Fail", "iss", dbus.Int32(number), source, description))
    # An error of the automation rules is given the member as its source if it has none.
    assert raised.key() == (number, source or "Probe.Fail", description)
    script = ScriptObject(client, "/script", answer)
    raised = error_of(lambda: probe.call("CallObject", "(so)sv", script.reference, "Do", 1))
    assert raised.key() == (number, source or "Probe.CallObject", description)
