"""Objects of the script, handed in where the library wants an object."""

import pytest
import script_objects as script
import vorlan

CONSTANT_PART = "00000001" "00000101" "0000000" "1" "01101000" + "01" * 16 + "0011" * 8 + "1" * 32 + "0" * 8
ASSIGNMENT = int(CONSTANT_PART + "00000011" + "10" * 12 + "0010" + "0000", 2).to_bytes(22, "big")


@pytest.mark.parametrize("message", [vorlan.MessageObject(), script.ListMessage(), script.MethodMessage()])
def test_a_message_built_from_a_script_s_configuration(message):
    script.assignment(script.Configuration(), message)
    sent = bytes.fromhex(message.Hex) if isinstance(message, vorlan.Object) else message.sent()
    assert sent == ASSIGNMENT


class Octets:
    """Anything with subscripts."""

    def __getitem__(self, index):
        return (1, 0b11, 1, 0xF0)[index]


@pytest.mark.parametrize("message", [script.ListMessage((1, 3, 1, 0xF0)), script.MethodMessage((1, 3, 1, 0xF0))])
def test_a_received_message_of_a_script(message):
    for octets in (None, bytes((1, 3, 1, 0xF0)), {0: 1, 1: 3, 2: 1, 3: 0xF0}, Octets()):
        if octets is not None and hasattr(message, "Octet"):
            message.Octet = octets
        received = vorlan.SB_Ses_MsgSessionClose()
        received.PRobj_MessageObject = message
        assert (received.PRstr_CloseReason, received.PRstr_MoreInfo) == ("00000011", "11110000")


class Bare:
    """No members at all."""


class ReadOnly(script.ListMessage):
    @property
    def Length(self):
        return 8

    @Length.setter
    def Length(self, bits):
        if bits != 8:
            raise ValueError("one octet only")


def sector_without_configuration():
    sector = script.Sector(None)
    del sector.PRobj_GlobalParameters
    vorlan.SB_Ses_MsgUATIAssignment().Initialize(sector, None)


def receive(message):
    vorlan.SB_Ses_MsgSessionClose().PRobj_MessageObject = message


CASES = {
    "a member is missing": (sector_without_configuration, 438, "Sector", "PRobj_GlobalParameters", None),
    "no members": (lambda: receive(Bare()), 438, "Bare", "Length", None),
    "assigned, but missing": (lambda: script.assignment(script.Configuration(), Bare()), 438, "Bare", "Length", None),
    "an exception": (lambda: script.assignment(script.Raising(ValueError("bad thing")), script.ListMessage()), 440,
                     "Raising.PRstr_SubnetMask", "Automation error: ValueError: bad thing", ValueError),
    "within a property": (lambda: script.assignment(script.Hollow(), script.ListMessage()), 440,
                          "Hollow.PRstr_SubnetMask", "no attribute 'nowhere'", AttributeError),
    "within a setter": (lambda: script.assignment(script.Configuration(), ReadOnly((0,))), 440, "ReadOnly.Length",
                        "ValueError: one octet only", ValueError),
    "a bad index": (lambda: script.assignment(script.Configuration(), script.ListMessage(b"0123")), 9,
                    "ListMessage.Octet", "Subscript out of range: IndexError", IndexError),
    "an unknown key": (lambda: script.assignment(script.Configuration(PRstr_ColorCode={}), script.ListMessage()), 9,
                       "Configuration.PRstr_ColorCode", "Subscript out of range: KeyError", KeyError),
    "neither value nor subscript": (
        lambda: script.assignment(script.Configuration(PRstr_SectorID=Bare()), script.ListMessage()), 450,
        "Configuration.PRstr_SectorID", "Wrong number of arguments", None),
    "nothing at all": (lambda: script.assignment(None, script.ListMessage()), 91, None, None, None),
}


@pytest.mark.parametrize("call, number, source, text, cause", CASES.values(), ids=CASES)
def test_what_a_script_s_object_does_wrong_is_one_automation_error(call, number, source, text, cause):
    with pytest.raises(vorlan.AutomationError) as raised:
        call()
    error = raised.value
    assert error.number == number
    assert source is None or error.source == source
    assert text is None or text in error.description
    assert cause is None or type(error.__cause__) is cause


def test_an_automation_error_of_a_script_comes_through_as_it_stands():
    mine = vorlan.AutomationError(5, "Mine.Source", description="text", help_file="help.hlp")
    with pytest.raises(vorlan.AutomationError) as raised:
        script.assignment(script.Raising(mine), script.ListMessage())
    assert raised.value is mine and raised.value.__cause__ is None
    assert raised.traceback[-1].name == "PRstr_SubnetMask"


@pytest.mark.parametrize("exception", [KeyboardInterrupt(), SystemExit(3)])
def test_what_ends_a_script_is_no_automation_error(exception):
    with pytest.raises(type(exception)) as raised:
        script.assignment(script.Raising(exception), script.ListMessage())
    assert raised.value is exception


class Watching:
    """A configuration that answers for every member, and a sector in one."""

    def __init__(self):
        self.seen = []
        self.PRstr_SectorName = "SECTOR 0"

    def __getattr__(self, name):
        def read(*arguments):
            self.seen.append((name, *arguments))
            return "00000001"

        return read

    @property
    def PRobj_GlobalParameters(self):
        return self


def test_members_that_are_made_when_they_are_asked_for():
    watching = Watching()
    built = vorlan.SB_Ses_MsgUATIAssignment()
    built.Initialize(watching, None)
    assert built.CreateMessage(script.ListMessage())
    assert ("PRstr_SubnetMask", "") in watching.seen and ("PRstr_ColorCode", "SECTOR 0") in watching.seen


def test_an_object_of_the_library_is_itself_within_a_script_s_object():
    inner = vorlan.MessageObject()

    class Forwarding:
        """Its members are another object's, index and all."""

        def __init__(self):
            self.Octet = inner.Octet

        Length = property(lambda self: inner.Length, lambda self, bits: setattr(inner, "Length", bits))

    script.assignment(script.Configuration(), Forwarding())
    assert bytes.fromhex(inner.Hex) == ASSIGNMENT
    receive(Forwarding())


def test_a_configuration_that_goes_away_while_it_is_asked():
    sector = vorlan.SB_Sector()

    class Leaving:
        @property
        def PRstr_FileName(self):
            sector.PRobj_GlobalParameters = None
            return "sector.ini"

    sector.PRobj_GlobalParameters = Leaving()
    with pytest.raises(vorlan.AutomationError) as raised:
        sector.ConfigureFwdAndAccChannel(True, 0)
    assert raised.value.number in (1, 91)
