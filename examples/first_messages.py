"""First messages: a sector's configuration, four messages for the access terminal, two answers taken apart.

Run by scripts/demo, or by hand:  PYTHONPATH=build/python python3 examples/first_messages.py [PARAMETER-FILE [SECTOR]]
"""

import signal
import subprocess
import sys
from pathlib import Path

import vorlan

EXAMPLES = Path(__file__).resolve().parent
COMMAND_LINE = Path(vorlan.__file__).resolve().parents[1] / "bin" / "vorlan"


class Sector:
    """What message classes ask a sector for: its configuration and its name."""

    def __init__(self, parameters, name):
        self.PRobj_GlobalParameters = parameters
        self.PRstr_SectorName = name


def load(parameter_file, name):
    parameters = vorlan.CreateObject("Vorlan.SB_GlobalParameters")
    parameters.PRstr_FileName = str(parameter_file)
    parameters.Initialize(name)
    return Sector(parameters, name)


def heading(text):
    print(f"{text}\n{'-' * len(text)}")


def show_configuration(sector):
    """Bit strings as the messages carry them, and what they stand for. An empty sector name: the loaded values."""
    held = sector.PRobj_GlobalParameters
    functions = vorlan.CreateObject("SB_GeneralFunctions")
    band, channel = held.PRint_BandClass[""], held.PRint_ChannelNumber[""]
    forward = functions.CalculateCentreFrequency(band, channel)
    reverse = functions.CalculateCentreFrequency(band, channel, False)
    parts = ("PRstr_SectorID127_96", "PRstr_SectorID95_64", "PRstr_SectorID63_32", "PRstr_SectorID")
    identifier = ":".join(f"{int(getattr(held, part)[''], 2):08X}" for part in parts)

    def number(member):
        return int(getattr(held, member)[""], 2)

    def degrees(member, bits):  # two's complement, quarters of a second of arc
        value = number(member)
        return (value - (value >> (bits - 1) << bits)) / (4 * 3600)

    rows = [
        ("Carrier", f"band class {band}, channel {channel}: {forward:.3f} MHz forward, {reverse:.3f} MHz reverse"),
        ("Pilot PN", f"{number('PRstr_PilotPN')} (x 64 chips)"),
        ("SectorID", identifier),
        ("Subnet mask", f"{number('PRstr_SubnetMask')} bits"),
        ("Colour code", f"{number('PRstr_ColorCode')}"),
        ("UATI", f"0x{number('PRstr_UATI'):08X}, of which a UATIAssignment carries the last 24 bits"),
        ("Country code", f"{number('PRstr_CountryCode'):03X} (BCD)"),
        ("Position", f"{degrees('PRstr_Latitude', 22):.4f} degrees north, {degrees('PRstr_Longitude', 23):.4f} east"),
        ("Levels", f"Ior {held.PRsin_Ior['']:g} dBm, noise {held.PRsin_AWGNIor['']:g} dBm"),
        ("Subtypes", ", ".join(f"{name} {getattr(held, 'PRint_' + name)['']}" for name in (
            "PhyLaySubType", "MACLayFTCSubType", "MACLayRTCSubType", "IdleStateSubType"))),
    ]
    heading(f"Configuration of {sector.PRstr_SectorName}")
    for name, text in rows:
        print(f"  {name:<14}{text}")
    print()


def build(name, sector=None, **fields):
    """Builds a message into a message object, and shows what the access terminal would receive."""
    message = vorlan.CreateObject(name)
    message.Initialize(*([sector] if sector else []), None, "")
    for field, bits in fields.items():
        setattr(message, field, bits)
    target = vorlan.CreateObject("VorlanSim.MessageObject")
    message.CreateMessage(target)
    # The classes of messages that are only sent take none apart; the command line does.
    subprocess.run([COMMAND_LINE, "decode", name, target.Hex], check=True)
    print()


def take_apart(name, octets):
    """Hands octets, as a test set would have received them, to a message class, which then shows its fields."""
    received = vorlan.CreateObject("VorlanSim.MessageObject")
    received.Hex = octets
    message = vorlan.CreateObject(name)
    message.PRobj_MessageObject = received
    title, _, fields = repr(message).partition("\n")
    print(f"{title}\n  {octets}\n\n{fields}\n")
    return message


def main(parameter_file=EXAMPLES / "sector.ini", sector_name="SECTOR 0"):
    # The command line writes beside us: nothing may stay behind in a buffer.
    sys.stdout.reconfigure(line_buffering=True)
    sector = load(parameter_file, sector_name)
    show_configuration(sector)

    heading("To the access terminal")
    build("SB_Ses_MsgUATIAssignment", sector, PRstr_MessageSequence="00000111")
    build("SB_Ses_MsgConfigurationStart")
    build("SB_Ses_MsgKeepAliveRequest", PRstr_TransactionID="00101010")
    build("SB_Ses_MsgSessionClose", PRstr_CloseReason="00000011", PRstr_MoreInfoLen="00000010",
          PRstr_MoreInfo="0001001000000001")

    heading("From the access terminal")
    take_apart("SB_Ses_MsgUATIComplete", "02 07 02 0A 11")
    hardware = take_apart("SB_Ses_MsgHardwareIDResponse", "04 2A 00 FF FF 07 A1 00 00 01 23 45 67")
    print(f"The field alone: PRstr_HardwareIdType = {hardware.PRstr_HardwareIdType}")


if __name__ == "__main__":
    if hasattr(signal, "SIGPIPE"):
        signal.signal(signal.SIGPIPE, signal.SIG_DFL)  # quiet when a pager is left early
    try:
        main(*sys.argv[1:])
    except vorlan.AutomationError as error:
        sys.exit(f"error {error.number} in {error.source}: {error.description}")
