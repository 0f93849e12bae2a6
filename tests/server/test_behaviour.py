"""The behaviour that all ways in share, over D-Bus by the call for dynamic clients."""

from pathlib import Path

import dbus
import pytest
from behaviour import ABSENT, CASES, File, run
from client import EMPTY, NOTHING, AutomationError, Client

PROJECT = Path(__file__).resolve().parents[2]


class OverDBus:
    Error = AutomationError

    def __init__(self, client):
        self.client = client

    def create(self, name):
        return self.client.create(name).reference

    def invoke(self, target, member, access, arguments):
        service, path = target
        result, changed = self.client.call(service, path, "Vorlan.Object", "Invoke", "ssav", member, access,
                                           [sent(a) for a in arguments])
        return received(result), [received(a) for a in changed]


def sent(value):
    if isinstance(value, list):
        return dbus.Array([sent(item) for item in value], signature="v")
    if isinstance(value, File):
        return str(PROJECT / value.path)
    return NOTHING if value is None else EMPTY if value is ABSENT else value


def received(value):
    """As the table has it: in the types of Python itself, but an object stays its service and path."""
    if isinstance(value, dbus.Signature) or value == NOTHING:
        return None
    plain = {dbus.Boolean: bool, dbus.String: str, dbus.Int16: int, dbus.Int32: int, dbus.Double: float}
    return plain.get(type(value), lambda it: it)(value)


@pytest.mark.parametrize("steps", CASES.values(), ids=CASES)
def test_behaviour(plain_bus, steps):
    client = Client(plain_bus.address)
    run(OverDBus(client), steps)
    client.close()
