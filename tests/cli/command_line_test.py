"""Runs the command line and looks at its exit code, what it prints, and where."""

import json
import os
import subprocess

import pytest

PARAMETER_FILE = os.environ["PARAMETER_FILE"]
ASSIGN = "encode SB_Ses_MsgUATIAssignment --config PARAMETER_FILE "
CLOSE = "encode SB_Ses_MsgSessionClose "
NAK = "encode SB_App_MsgNak "


def vorlan(words):
    words = [PARAMETER_FILE if word == "PARAMETER_FILE" else word for word in words]
    # No environment: neither locale nor settings of the user's may matter.
    return subprocess.run([os.environ["VORLAN"], *words], capture_output=True, text=True, timeout=60, env={})


# Command, then what standard output must contain; blanks are squeezed.
SUCCEEDS = [
    ("--help", ["decode", "Exit codes"]),
    ("classes *uati*request", ["SB_Ses_MsgUATIRequest The access terminal asks for a UATI."]),
    ("classes closE", ["SB_Ses_MsgSessionClose"]),
    ("classes ParameterFunctions", ["ReadINI.ParameterFunctions"]),
    ("describe vorlan.sb_ses_msgsessionclose", [
        "Vorlan.SB_Ses_MsgSessionClose (C.S0024 clause 7.2.6.2.1)",
        "MoreInfo 8 x MoreInfoLen set if MoreInfoLen > 0",
        "PRstr_CloseReason As String get let",
        "CreateMessage(ByRef MessageObject As Object) As Boolean",
        'PRstr_MoreInfo: let of another width "Length of MoreInfo field should be MoreInfo * 8 bits."']),
    # The rule for values: bits of the right width, bits by prefix, numbers widened, two's complement.
    (CLOSE + "CloseReason=00000011 MoreInfoLen=0", ["01 03 00", "protocol configuration failure"]),
    (CLOSE + "CloseReason=0b0000_0101 MoreInfoLen=0", ["01 05 00"]),
    (CLOSE + "CloseReason=101 MoreInfoLen=0", ["01 65 00"]),
    (CLOSE + "CloseReason=-1 MoreInfoLen=0x0000", ["01 FF 00"]),
    # A count is set before what it counts, wherever it stands.
    (CLOSE + "prstr_moreinfo=0x1002 closereason=3 MoreInfoLen=2", ["01 03 02 10 02", "25 0001 0000 0000 0010"]),
    (NAK + "WindowLen[1]=7 FirstErased(0)=0x3FFFFF NakRequests=2",
     ["02 02 3F FF FF 00 00 00 00 00 00 07", "[1] 57 Reserved 57"]),
    (NAK + "FirstErased[0]=1 PRint_NakType=1", ["02 00 00 01 00 00 04 00 00", "RLPFlow"]),
    ("encode SB_Ses_MsgSoftConfigurationComplete AfterTransactionId=0xABC", ["28 bits", "02 00 AB C0"]),
    (ASSIGN, ["176 bits", "UATI104", "UpperOldUATILength 169 0010 2"]),
    (ASSIGN + "SubnetIncluded=0 UATIColorCode=0xAB --sector=SECTOR_4", ["64 bits", "1010 1011"]),
    ("decode SB_Ses_MsgUATIComplete 0x02 0x07", ["(past the end)"]),
    ("decode SB_Ses_MsgUATIRequest 07:01", ["not the MessageID of SB_Ses_MsgUATIRequest"]),
    ("decode SB_Sec_MsgKeyRequest 002A07" + "AB" * 16 + "CDEF0123",
     ["1010 1011 0xABABABAB", "1100 1101 1110 1111 0000 0001 0010 0011 CDEF0123"]),
    ("decode SB_App_MsgNak 02 00000100000400 00 NakType=1", ["FirstErased 33 00 0000 0000 0000 0000 0001 1"]),
    # Attributes and values.
    ("encode SB_Mac_AttrFRABlow AttrValue=5", ["03 FF FD 05"]),
    ("encode SB_Mac_AttrDRCLock DRCLockLength=2 DRCLockPeriod=0", ["03 01 00 40", "DRCLockLength 26 10 16 times"]),
    ("encode SB_Mac_AttrDRCLock ValueRecords=0x00400160", ["05 01 00 40 01 60", "Value 1"]),
    ("encode SB_Con_ValSuppCDMAChannels BandSubClass[0,1]=7 BandClassCount=1 BandClass=3 BandSubClassCount=2",
     ["00 01 18 10 00 38"]),
    ("encode SB_Mac_ValT2PTransitionFunctionNN T2PUpT2PAxis00FRABAxis0=-3", ["-0.75 dB"]),
    ("encode SB_Mac_ValT2PTransitionFunctionNN T2PAxis[1]=4 NumT2PAxisValues=2", ["T2PAxis[1] 24 0000 0100 1 dB"]),
    ("encode SB_Mac_ValBucketFactorNN BucketFactorT2PAxisFRABAxis[0,0]=6", ["1.5 dB"]),
    ("encode SB_TAS_AttrPacketRateMode MaxRate=5", ["03 01 00 05"]),
    ("decode SB_Mac_AttrDRCLock 03 01 02", ["no whole number of value records"]),
    # A set with an octet too many, and a verbose one with PacketSize.
    ("decode SB_App_ValReservationKKQoSReqFwd 010111 94A040A01555 B0560002000400 06080A0D",
     ["[0] 32", "QoSAttribSetProfileID 44 0000 0101 0000 0000 0x0500 Unknown 60 1 0101 0101 0101",
      "[1] 73", "PeakRate 88 0000 0000 0000 0001 1 ", "PacketSize 152 0000 0110 6 DelayVarSensitive 160 1 1"]),
    ("decode SB_App_AttrReservationKKQoSReqRev 0B 08AA 010106 820008028000",
     ["QoSAttribSetLength 56 0000 0 octets (ends the list)", "Rest 60"]),
    ("decode SB_App_ValATSupportedQoSProfiles 0101 02040500 0501", ["0x05000501", "FlowProfileID[1] 49", "0x0501"]),
    ("encode SB_MAC_AttrBucketLevelMaxNN AttrValue=80", ["20 dB"]),
    ("describe SB_Mac_AttrDRCLock",
     ["DRCLockLength 2 01", "PRobj_DRCLockVal(Index As Integer) As Object", "(C.S0024 clause 10.6)",
      'error 9 in SB_Mac_AttrDRCLock.PRobj_DRCLockVal: get beyond the count "Subscript out of range"']),
    ("describe SB_Sec_AttrSessionKeyLength", ["(C.S0024-400-C clause 2.6)"]),
    ("describe SB_TAS_AttrPacketRateMode", ["(C.S0029)"]),
    # Messages that carry them: names depend on the protocol, and where records do not tell, all that fit are shown.
    ("decode SB_MsgConfigurationRequest 50 07 0500140104020 3FE0250 02ABCD --protocol 4",
     ["MaxMACFlows 17 SB_Mac_AttrMaxMACFlows", "BucketLevelMaxNN 65", "Unknown attribute 97", "0xABCD"]),
    ("decode SB_MsgConfigurationRequest 5007 06000400030000 0401100002 --protocol session-configuration",
     ["ProtocolType 17 SB_Ses_AttrProtocolType, reverse-traffic-channel-mac", "AttrValue[1] 57", "PersonalityCount 73"]),
    ("decode SB_MsgConfigurationRequest 50070400150101 --protocol 0x13", ["no whole number of value records"]),
    ("decode SB_MsgConfigurationRequest 5007 0B0014010203040506070809 --protocol 4",
     ["SB_Mac_AttrMaxMACFlows (ambiguous: or SB_Mac_AttrRTCPowerParameters)"]),
    ("decode 5207 03FFFF01 --protocol multi-flow-packet", ["SB_MsgAttributeUpdateRequest", "RANHandoff"]),
    ("decode --protocol route-update 5107020401", ["SB_MsgConfigurationResponse", "Accepted 33 0000 0001 1"]),
    ("encode SB_MsgConfigurationRequest TransactionId=7 AttributeRecords=0x03FFFD05", ["50 07 03 FF FD 05"]),
]

# Command, exit code, what standard error must contain.
FAILS = [
    ("", 2, "subcommand"),
    ("help encode", 2, '"help" is no command'),
    (CLOSE + "--config PARAMETER_FILE", 2, "leave out --config"),
    (CLOSE + "--sector SECTOR_1", 2, "--config"),
    ("decode SB_App_MsgNak 02 NakType=1 nakType=0", 2, "twice"),
    ("decode 0x01 02", 1, "error 429 in decode: ActiveX component can't create object: 0x01 (a CLASS or --protocol is wanted)"),
    ("classes --nonsense", 2, "--nonsense"),
    (CLOSE + "CloseReason", 2, "FIELD=VALUE"),
    (CLOSE + "CloseReason=1 PRstr_closeReason=2", 2, "twice"),
    ("decode SB_Ses_MsgUATIRequest", 2, "no octets given"),
    ("encode SB_Ses_MsgUATIAssignment", 2, "--config"),
    ("describe SessionClose", 1, "error 429 in Vorlan: ActiveX component can't create object: SessionClose "
                                 "(did you mean SB_Ses_MsgSessionClose?)"),
    (CLOSE + "Colour=1", 1, "error 438 in SB_Ses_MsgSessionClose: "),
    (CLOSE + "MessageID=1", 1, "error 438"),
    ("encode SB_GeneralFunctions", 1, "error 438"),
    ("encode SB_Ses_MsgUATIRequest", 1, "only received"),
    ("decode SB_App_MsgNak 02 NakRequests=1", 1, "error 438"),
    (CLOSE + "CloseReason=0b101", 1,
     "error 1 in SB_Ses_MsgSessionClose.PRstr_CloseReason: Length of <CloseReason> field should be 8 bits."),
    (CLOSE + "CloseReason=256", 1, '"256" does not fit into 8 bits'),
    (CLOSE + "CloseReason=-129", 1, "error 6"),
    (CLOSE + "CloseReason=99999999999999999999", 1, "error 6"),
    (CLOSE + "CloseReason=0x", 1, "error 13"),
    (CLOSE + "CloseReason=0b2", 1, "error 13"),
    (CLOSE + "CloseReason=1\x01", 1, "error 13"),
    (CLOSE + "CloseReason[0]=1", 1, "error 450"),
    (NAK + "FirstErased[1]=1", 1, "Index for FirstErased exceeds NakRequests."),
    (NAK + "FirstErased[-1]=1", 1, "Index for FirstErased exceeds NakRequests."),
    (NAK + "FirstErased[x]=1", 1, "error 13"),
    ("encode SB_Ses_MsgUATIAssignment --config /no/such/file", 1, "/no/such/file"),
    (ASSIGN + "--sector SECTOR_9", 1, "error 1 in SB_GlobalParameters: Sector Name: SECTOR 9 is invalid"),
    ("decode SB_Ses_MsgUATIRequest 0G", 1, "error 13"),
    ("decode SB_Ses_MsgUATIRequest 0x0", 1, "odd number"),
    *[(f"decode SB_MsgConfigurationRequest 5007 --protocol {name}", 1, f"no protocol is called {name}")
      for name in ("nonsense", "256", "1.5", "-3", "99999999999")],
    ("decode SB_MsgConfigurationRequest 5007 --protocol mac", 1, "error 5 in decode: Invalid procedure call or argument: mac names a layer"),
    ("decode 5007 --protocol nonsense", 1, "error 5 in decode"),
    ("encode SB_MAC_AttrBucketLevelMaxNN AttrValue=300", 1, "error 6 in SB_MAC_AttrBucketLevelMaxNN.PRstr_AttrValue"),
    ("encode SB_Mac_AttrDRCLock ValueRecords=5", 1, "error 13 in SB_Mac_AttrDRCLock.ValueRecords"),
    ("encode SB_Mac_ValT2PTransitionFunctionNN T2PAxis[4]=1", 1, "error 9"),
    ("decode SB_Ses_MsgUATIRequest 0007 --protocol 16", 2, "not both"),
    ("encode SB_Mac_ValDRCLock DRCLockPeriod=2", 1, '"2" does not fit into 1 bits'),
    ("encode SB_Mac_ValDRCLock DRCLockPeriod=1 PRstr_DRCLockPeriod=0", 2, "twice"),
    ("encode SB_Mac_ValDRCLock Colour=1", 1, "error 438 in SB_Mac_ValDRCLock"),
    ("encode SB_Con_ValPagingMask MaskPurpose[2]=1 MaskCount=2", 1, "error 9"),
]


def words_of(command):
    return [word.replace("SECTOR_", "SECTOR ") for word in command.split()]


@pytest.mark.parametrize("command, fragments", SUCCEEDS)
def test_succeeds(command, fragments):
    run = vorlan(words_of(command))
    assert (run.returncode, run.stderr) == (0, "")
    squeezed = " ".join(run.stdout.split())
    for fragment in fragments:
        assert fragment in squeezed


@pytest.mark.parametrize("command, code, fragment", FAILS)
def test_fails(command, code, fragment):
    run = vorlan(words_of(command))
    assert (run.returncode, run.stdout) == (code, "")
    assert fragment in run.stderr


def test_field_tree():
    run = vorlan(["decode", "SB_Con_MsgRouteUpdate", "00 01 02 2A 10 12 34 56 78 9A BC DE F0 01"])
    assert run.stdout == """\
SB_Con_MsgRouteUpdate, 112 bits
  00 01 02 2A 10 12 34 56 78 9A BC DE F0 01

  Field                             Bit  Bits                           Value
  MessageID                           1  0000 0000                      0x00
  MessageSequence                     9  0000 0001                      1
  ReferencePilotPN                   17  0 0000 0100                    256 chips
  ReferencePilotStrength             26  01 0101                        -10.5 dB
  ReferenceKeep                      32  0                              0
  NumPilots                          33  0001                           1
  [0]                                37
    PilotPNPhase                     37  000 0000 1001 0001             145 chips (PN 2 + 17 chips)
    ChannelIncluded                  52  1                              1
    Channel                          53  0100 0101 0110 0111 1000 1001  SystemType 69, BandClass 12, ChannelNumber 1929
    PilotStrength                    77  10 1010                        -21 dB
    Keep                             83  1                              1
  ATTotalPilotTransmissionIncluded   84  1                              1
  ATTotalPilotTransmission           85  1100 1101                      -25.5 dBm
  ReferencePilotChannelIncluded      93  1                              1
  ReferencePilotChannel              94  110 1111 0000 0000 0001        454657  (cut off by the end)
"""


def test_json():
    listed = json.loads(vorlan(["classes", "--json"]).stdout)
    assert {"name": "SB_Ses_MsgSessionClose", "summary": "Either side closes the session."} in listed

    described = json.loads(vorlan(["describe", "SB_App_MsgNak", "--json"]).stdout)
    erased = next(member for member in described["members"] if member["name"] == "PRstr_FirstErased")
    assert erased["parameters"] == [{"name": "Index", "type": "Integer", "by_reference": False, "optional": False}]

    built = json.loads(vorlan(words_of(NAK + "FirstErased[0]=1 --json")).stdout)
    assert (built["length"], built["octets"]) == (56, "02 01 00 00 01 00 00")
    assert built["fields"][2]["fields"][1] == {
        "name": "FirstErased", "first": 19, "width": 22, "bits": "0" * 21 + "1", "value": "1"}

    failed = vorlan(["decode", "SB_Nothing", "00", "--json"])
    assert failed.returncode == 1
    assert json.loads(failed.stderr)["error"]["number"] == 429
