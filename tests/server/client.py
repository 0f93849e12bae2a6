"""A client of the server, as a script would write it that offers objects of its own."""

import inspect
import os
import time

import dbus
import dbus.lowlevel
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

PATIENCE = 60  # seconds for what comes at once, but for the slowest of machines
HOUR = 3600  # the bus's own patience, 25 s, is less than some operations take
EMPTY = dbus.Signature("", variant_level=1)
NULL = dbus.Signature("v", variant_level=1)
NOTHING = dbus.Struct(("", dbus.ObjectPath("/")), signature="so")


class AutomationError(dbus.DBusException):
    """An error as it crosses the bus: raised to the script, and raised by the script's own objects."""

    include_traceback = False

    def __init__(self, name, text):
        super().__init__(text, name=name)
        self.name = name
        digits = name.removeprefix("Vorlan.Error.Number")
        self.number = int(digits.replace("Minus", "-")) if digits != name else None
        self.source, _, self.description = text.partition("\n")

    def key(self):
        return self.number, self.source, self.description


def refusal(number, source, description):
    return AutomationError("Vorlan.Error.Number" + str(number).replace("-", "Minus"), f"{source}\n{description}")


def error_of(call):
    """The error that a call raises."""
    try:
        call()
    except AutomationError as error:
        return error
    raise AssertionError("no error was raised")


def raise_error(error):
    raise AutomationError(error.get_dbus_name(), error.get_dbus_message())


def serve_until(condition, what, patience=PATIENCE):
    """Answers calls of the script's objects meanwhile."""
    end = time.monotonic() + patience
    waker = GLib.timeout_add_seconds(1, lambda: True)
    try:
        while not condition():
            assert time.monotonic() < end, f"{what} did not come in {patience} s"
            GLib.MainContext.default().iteration(True)
    finally:
        GLib.source_remove(waker)


class Pending:
    """A call that is under way."""

    def __init__(self, name="", patience=PATIENCE):
        self.name, self.patience = name, patience
        self.result = self.error = None
        self.done = False
        self.then = lambda: None

    def finish(self, *result):
        self.done, self.result = True, result[0] if len(result) == 1 else result or None
        self.then()

    def fail(self, error):
        self.done, self.error = True, error
        self.then()

    def wait(self):
        serve_until(lambda: self.done, f"the answer to {self.name}", self.patience)
        if self.error:
            raise_error(self.error)
        return self.result


class Remote:
    def __init__(self, client, service, path, interface):
        self.client, self.service, self.path, self.interface = client, service, path, interface
        self.reference = dbus.Struct((service, dbus.ObjectPath(path)), signature="so")

    def start(self, interface, member, signature="", *arguments):
        return self.client.start(self.service, self.path, interface, member, signature, *arguments)

    def call(self, member, signature="", *arguments):
        return self.start(self.interface, member, signature, *arguments).wait()

    def get(self, name):
        return self.start(dbus.PROPERTIES_IFACE, "Get", "ss", self.interface, name).wait()

    def set(self, name, value):
        self.start(dbus.PROPERTIES_IFACE, "Set", "ssv", self.interface, name, value).wait()

    def invoke(self, member, access, *arguments):
        return self.start("Vorlan.Object", "Invoke", "ssav", member, access, arguments).wait()

    def introspect(self):
        return self.start(dbus.INTROSPECTABLE_IFACE, "Introspect").wait()

    def release(self):
        self.start("Vorlan.Object", "Release").wait()


class Client:
    patience = PATIENCE

    def __init__(self, address):
        self.bus = dbus.bus.BusConnection(address, mainloop=DBusGMainLoop())
        self.bus.set_exit_on_disconnect(False)
        self.name = self.bus.get_unique_name()
        self.worker = None

    def start(self, service, path, interface, member, signature="", *arguments):
        pending = Pending(member, self.patience)
        self.bus.call_async(service, path, interface, member, signature, arguments, pending.finish, pending.fail, HOUR)
        return pending

    def call(self, service, path, interface, member, signature="", *arguments):
        return self.start(service, path, interface, member, signature, *arguments).wait()

    def create(self, name):
        service, path = self.call("Vorlan.Server", "/Vorlan", "Vorlan.Server", "Create", "s", name)
        self.worker = Remote(self, service, "/Vorlan", "Vorlan.Worker")
        made = Remote(self, service, path, None)
        made.interface = str(made.start(dbus.PROPERTIES_IFACE, "Get", "ss", "Vorlan.Object", "Class").wait())
        return made

    def process_of(self, service):
        return int(self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                             "GetConnectionUnixProcessID", "s", service))

    def worker_process(self):
        return self.process_of(self.worker.service)

    def close(self):
        self.bus.close()


class ScriptObject(dbus.service.Object):
    """An object of the script's own: `answer(member, access, arguments)` gives the result.

    libdbus does not dispatch while it dispatches, so an answer that calls the library must not wait for it: it is a
    generator then, which yields the call that it has started and is sent the result.
    """

    def __init__(self, client, path, answer):
        super().__init__(client.bus, path)
        self.answer = answer
        self.reference = dbus.Struct((client.name, dbus.ObjectPath(path)), signature="so")

    @dbus.service.method("Vorlan.Object", in_signature="ssav", out_signature="vav", async_callbacks=("reply", "fail"))
    def Invoke(self, member, access, arguments, reply, fail):
        try:
            result = self.answer(str(member), str(access), arguments)
        except Exception as error:
            return fail(error)
        if not inspect.isgenerator(result):
            return reply(EMPTY if result is None else result, arguments)

        def go_on(pending=None):
            try:
                started = result.send(pending.wait() if pending else None)
                started.then = lambda: go_on(started)
            except StopIteration as end:
                reply(end.value, arguments)
            except Exception as error:
                fail(error)

        go_on()


def processes_of(program, address=None):
    """The processes that run a program, on a bus."""
    found = []
    for entry in os.listdir("/proc"):
        if not entry.isdigit():
            continue
        try:
            if os.readlink(f"/proc/{entry}/exe") != str(program):
                continue
            with open(f"/proc/{entry}/environ", "rb") as file:
                if address is None or f"DBUS_SESSION_BUS_ADDRESS={address}".encode() in file.read().split(b"\0"):
                    found.append(int(entry))
        except OSError:
            continue
    return found


def wait_until(condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        assert time.monotonic() < end, "it did not happen"
        time.sleep(0.005)


def is_gone(process):
    return not os.path.exists(f"/proc/{process}/exe")
