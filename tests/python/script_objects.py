"""Objects as a script may bring them: messages and a sector without a test set, well-behaved and not."""

import vorlan

SECTOR_ID = {"PRstr_SectorID127_96": "01" * 16, "PRstr_SectorID95_64": "0011" * 8, "PRstr_SectorID63_32": "1" * 32,
             "PRstr_SectorID": "0" * 32}


class ListMessage:
    """A message object whose octets are a plain list."""

    def __init__(self, octets=(0,) * 32):
        self.Length = len(octets) * 8
        self.Octet = list(octets)

    def sent(self):
        return bytes(self.Octet[i] for i in range(self.Length // 8))


class MethodMessage(ListMessage):
    """Octets behind a method, with names in other capitals."""

    def __init__(self, octets=(0,) * 32):
        self.length = len(octets) * 8
        self.octets = list(octets)

    def octet(self, index, value=None):
        if value is None:
            return self.octets[index]
        self.octets[index] = value

    def sent(self):
        return bytes(self.octets[: self.length // 8])


class Configuration:
    """Configuration properties as plain attributes, but for one that knows sectors."""

    PRstr_SubnetMask = "01101000"
    PRstr_UATI = "0" * 104 + "10" * 12

    def __init__(self, **changes):
        self.PRstr_ColorCode = {"SECTOR 0": "00000001", "SECTOR 3": "00000011"}
        for name, value in (SECTOR_ID | changes).items():
            setattr(self, name, value)


class Sector:
    PRstr_SectorName = "SECTOR 4"

    def __init__(self, configuration):
        self.PRobj_GlobalParameters = configuration


class Raising(Configuration):
    """A configuration with a member that raises."""

    def __init__(self, exception):
        super().__init__()
        self.exception = exception

    def PRstr_SubnetMask(self, section):
        raise self.exception


class Hollow(Configuration):
    """A configuration with a property whose own code is at fault."""

    @property
    def PRstr_SubnetMask(self):
        return self.nowhere


def assignment(configuration, message):
    """Builds a UATIAssignment with a script's own objects."""
    built = vorlan.CreateObject("Vorlan.SB_Ses_MsgUATIAssignment")
    built.Initialize(Sector(configuration), None)
    built.PRstr_MessageSequence = "00000101"
    assert built.CreateMessage(message) is True
    return message
