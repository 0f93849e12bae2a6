# Objects of the script's own on D-Bus, which the library uses as it uses a test set's. They have a connection and a
# thread to themselves, so that they answer while the script waits for the library.
import threading

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop, threads_init
from gi.repository import GLib

threads_init()
bus = dbus.SessionBus()
own_bus = dbus.SessionBus(private=True, mainloop=DBusGMainLoop())
threading.Thread(target=GLib.MainLoop().run, daemon=True).start()

class Exported(dbus.service.Object):
    """Its attributes and methods are members; a method also serves for a property with arguments."""

    def __init__(self, path):
        super().__init__(own_bus, path)
        self.reference = dbus.Struct((own_bus.get_unique_name(), dbus.ObjectPath(path)), signature="so")

    @dbus.service.method("Vorlan.Object", in_signature="ssav", out_signature="vav")
    def Invoke(self, member, access, arguments):
        result = getattr(self, member)
        if callable(result):
            result = result(*arguments)
        elif access != "Get":
            result = setattr(self, member, *arguments)
        return "" if result is None else result, arguments

class Message(Exported):
    Length = 0

    def __init__(self, path):
        super().__init__(path)
        self.octets = {}

    def Octet(self, index, *value):
        self.octets.update({int(index): int(octet) for octet in value})
        return self.octets[int(index)]

server = dbus.Interface(bus.get_object("Vorlan.Server", "/Vorlan"), "Vorlan.Server")
message = dbus.Interface(bus.get_object(*server.Create("SB_Ses_MsgSessionClose")), "Vorlan.SB_Ses_MsgSessionClose")
message.Initialize(dbus.Struct(("", dbus.ObjectPath("/")), signature="so"), "")
properties = dbus.Interface(message, dbus.PROPERTIES_IFACE)
for name, bits in ("CloseReason", "00000011"), ("MoreInfoLen", "00000001"), ("MoreInfo", "10101010"):
    properties.Set("Vorlan.SB_Ses_MsgSessionClose", "PRstr_" + name, bits)
target = Message("/message")
message.CreateMessage(target.reference, timeout=600)
print(*(f"{target.octets[i]:02X}" for i in range(target.Length // 8)))
