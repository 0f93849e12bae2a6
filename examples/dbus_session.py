# Objects of the server from another process: what one connection creates shares a worker and ends with it.
import dbus

bus = dbus.SessionBus()
server = dbus.Interface(bus.get_object("Vorlan.Server", "/Vorlan"), "Vorlan.Server")

def create(name):
    service, path = server.Create(name)
    return dbus.Interface(bus.get_object(service, path), name), dbus.Struct((service, path), signature="so")

message, _ = create("Vorlan.SB_Ses_MsgSessionClose")
target, target_name = create("VorlanSim.MessageObject")
message.Initialize(target_name, signature="(so)")        # of what is given: the optional argument is left away
properties = dbus.Interface(message, dbus.PROPERTIES_IFACE)
properties.Set("Vorlan.SB_Ses_MsgSessionClose", "PRstr_CloseReason", "00000011")
try:
    dbus.Interface(message, "Vorlan.Object").Invoke("PRstr_CloseReason", "Let", ["11"])
except dbus.DBusException as error:
    number = int(error.get_dbus_name().removeprefix("Vorlan.Error.Number"))
    source, description = error.get_dbus_message().split("\n", 1)
    print(number, source, description)
print(properties.Get("Vorlan.SB_Ses_MsgSessionClose", "PRstr_CloseReason"))
