"""Objects of the script that the library calls back, and calls that wait."""

import dbus
from client import EMPTY, Client, Pending, ScriptObject, error_of, is_gone, serve_until, wait_until


class Message:
    """A message object of the script's own."""

    def __init__(self):
        self.octets = {}
        self.length = 0

    def __call__(self, member, access, arguments):
        if member.lower() == "length":
            if access == "Get":
                return dbus.Int16(self.length)
            self.length = int(arguments[0])
        elif access == "Get":
            return dbus.Int16(self.octets.get(int(arguments[0]), 0))
        else:
            self.octets[int(arguments[0])] = int(arguments[1])
        return None


def close_message(client):
    message = client.create("SB_Ses_MsgSessionClose")
    sector = ScriptObject(client, "/sector", lambda *_: "SECTOR 0")
    message.call("Initialize", "(so)", sector.reference)
    for name, bits in (("PRstr_CloseReason", "00000011"), ("PRstr_MoreInfoLen", "00000001"),
                       ("PRstr_MoreInfo", "10101010")):
        message.set(name, bits)
    return message


def test_a_message_is_built_into_an_object_of_the_script_and_read_from_it(client):
    message, target = close_message(client), Message()
    script = ScriptObject(client, "/message", target)
    assert message.call("CreateMessage", "(so)", script.reference)[0]
    assert target.length == 32
    assert [target.octets[i] for i in range(4)] == [1, 3, 1, 0xAA]
    received = client.create("SB_Ses_MsgSessionClose")
    received.set("PRobj_MessageObject", script.reference)
    assert received.get("PRstr_MoreInfo") == "10101010"


def test_objects_of_one_client_are_handed_to_each_other_under_one_path(client):
    message, target = close_message(client), client.create("VorlanSim.MessageObject")
    message.call("CreateMessage", "(so)", target.reference)
    assert target.get("Length") == 32
    probe = client.create("Probe")
    path = dbus.ObjectPath(target.path)
    for reference in (target.reference, path, dbus.Struct(("", path), signature="so")):
        assert probe.call("Echo", "v", reference) == target.reference
    target.release()
    assert error_of(lambda: target.get("Length")).name == "org.freedesktop.DBus.Error.UnknownObject"


def test_a_script_s_object_calls_the_library_while_it_is_called(client):
    probe = client.create("Probe")
    deepest = 20

    def answer(member, access, arguments):
        depth = int(arguments[0])
        if depth == deepest:
            return "bottom"
        result = yield probe.start("Test.Probe", "CallObject", "(so)sv", script.reference, "Go", dbus.Int16(depth + 1))
        return result + "."

    script = ScriptObject(client, "/script", answer)
    assert probe.call("CallObject", "(so)sv", script.reference, "Go", dbus.Int16(1)) == "bottom" + "." * (deepest - 1)


def test_calls_that_wait_inside_one_another_without_end_are_refused(client):
    probe = client.create("Probe")

    def answer(*_):
        return (yield probe.start("Test.Probe", "CallObject", "(so)sv", script.reference, "Go", EMPTY))

    script = ScriptObject(client, "/script", answer)
    raised = error_of(lambda: probe.call("CallObject", "(so)sv", script.reference, "Go", EMPTY))
    assert "LimitsExceeded" in raised.description
    assert probe.call("Echo", "v", "alive") == "alive"


def test_an_object_that_answers_with_anything_else_is_an_automation_error(client):
    probe = client.create("Probe")

    def answer(*_):
        raise ValueError("no idea")

    released = client.create("Probe")
    released.release()
    references = [
        (ScriptObject(client, "/stale", lambda *_: released.reference).reference, "no object " + released.path),
        (ScriptObject(client, "/failing", answer).reference, "ValueError: no idea"),
        (dbus.Struct((client.name, dbus.ObjectPath("/missing")), signature="so"), "UnknownMethod"),
        (dbus.Struct(("no.such.Service", dbus.ObjectPath("/x")), signature="so"), "ServiceUnknown"),
    ]
    for reference, text in references:
        raised = error_of(lambda: probe.call("CallObject", "(so)sv", reference, "Go", EMPTY))
        assert raised.key()[:2] == (440, f"{reference[1]}.Go") and text in raised.description


def test_an_object_whose_process_goes_away_in_the_middle_of_a_call(bus, client):
    helper = Client(bus.address)
    probe = client.create("Probe")
    script = ScriptObject(helper, "/script", lambda *_: helper.close())
    pending = probe.start("Test.Probe", "CallObject", "(so)sv", script.reference, "Go", EMPTY)
    assert error_of(pending.wait).number == 440


def test_a_worker_answers_while_an_operation_waits(client):
    waiting, probe = client.create("Probe"), client.create("Probe")
    first = waiting.start("Test.Probe", "Wait", "i", dbus.Int32(10_000))
    second = waiting.start("Test.Probe", "Wait", "i", dbus.Int32(20_000))
    # A call that waits a little is not held up by one that began before it and waits longer, nor the other way round.
    probe.call("Wait", "i", dbus.Int32(1))
    assert probe.get("Held") == EMPTY
    assert "Test.Probe" in waiting.introspect()
    assert waiting.get("Held") == EMPTY
    assert client.create("SB_Ses_MsgSessionClose").get("PRstr_MessageID") == "00000001"
    assert not first.done and not second.done
    assert client.worker.call("Cancel") == 2
    for pending in (first, second):
        assert error_of(pending.wait).key() == (18, "Probe.Wait", "User interrupt occurred")
    assert client.worker.call("Cancel") == 0


def test_waiting_for_a_script_s_object_can_be_cancelled(client):
    probe = client.create("Probe")
    cancelled = []

    def answer(*_):
        cancelled.append((yield client.worker.start("Vorlan.Worker", "Cancel")))
        return "too late"

    script = ScriptObject(client, "/script", answer)
    raised = error_of(lambda: probe.call("CallObject", "(so)sv", script.reference, "Go", EMPTY))
    assert raised.number == 18 and cancelled == [1]
    assert probe.call("Echo", "v", "alive") == "alive"


def test_one_cancel_ends_a_call_whatever_the_library_makes_of_it(client):
    asked = []

    def answer(member, *_):
        asked.append(member)
        yield Pending()

    silent = ScriptObject(client, "/silent", answer)
    sector, configuration = client.create("SB_Sector"), client.create("SB_GlobalParameters")
    for name in ("GlobalParameters", "FChCollection", "AccChCollection", "EvSignalling", "RadioChannelEmulator"):
        sector.set("PRobj_" + name, silent.reference)
    configuration.set("PRobj_IniReader", silent.reference)
    for target, member, access, *arguments in [
            (sector, "CleanUp", "Call"), (sector, "EnableFading", "Call"),
            (configuration, "PRint_SecurityType", "Get", "SECTOR 0"), (configuration, "Initialize", "Call", "SECTOR 0")]:
        asked.clear()
        pending = target.start("Vorlan.Object", "Invoke", "ssav", member, access, arguments)
        serve_until(lambda: asked or pending.done, member)
        assert client.worker.call("Cancel") == 1
        source = target.interface.split(".")[1] + "." + member
        assert error_of(pending.wait).key() == (18, source, "User interrupt occurred")
        assert len(asked) == 1
    # Who looks at an object does not ask the script's, and so never waits.
    shown = sector.start(dbus.PROPERTIES_IFACE, "GetAll", "s", sector.interface).wait()
    assert "PRstr_SectorName" in shown and len(asked) == 1


def test_an_endless_loop_or_crash_of_one_client_does_not_touch_another(bus, client, other_client):
    other = other_client.create("Probe")
    other.set("Held", "kept")
    spinning = client.create("Probe")
    worker = client.worker_process()
    spinning.start("Test.Probe", "Spin")
    assert other.get("Held") == "kept"
    client.close()
    wait_until(lambda: is_gone(worker))
    crashing = Client(bus.address)
    error_of(crashing.create("Probe").start("Test.Probe", "Crash").wait)
    assert other.get("Held") == "kept"
    # The next object gets a new worker.
    assert crashing.create("Probe").call("Echo", "v", "again") == "again"
    crashing.close()


def test_what_the_socket_does_not_take_at_once_is_sent_all_the_same(client):
    # The call that waited goes on in a thread that no longer listens to the bus; its answer is larger than any socket.
    probe, large = client.create("Probe"), "x" * 20_000_000

    def answer(*_):
        yield probe.start("Test.Probe", "Echo", "v", "meanwhile")
        return large

    script = ScriptObject(client, "/script", answer)
    assert probe.call("CallObject", "(so)sv", script.reference, "Go", 1) == large
