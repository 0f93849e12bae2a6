"""What a script meets alike by whichever way it comes in: the Python module, D-Bus, COM.

One table of cases, each a list of steps; every way in has a small driver that takes the steps.
"""

from dataclasses import dataclass


@dataclass(frozen=True)
class Name:
    """An object that an earlier step has made, as an argument or a result."""
    variable: str


@dataclass(frozen=True)
class File:
    """The path of a file of the project, as the script's system writes it."""
    path: str


ABSENT = object()  # an argument left out
ANY = object()  # a result or a text that is not looked at


@dataclass(frozen=True)
class Step:
    access: str  # Create, Get, Let, Set or Call
    variable: str
    member: str  # the class to be created
    arguments: tuple = ()
    gives: object = ANY
    changed: tuple = None  # the arguments afterwards
    error: tuple = None  # number, source, description
    into: str = None  # the variable that takes the object which comes back


def create(variable, name):
    return Step("Create", variable, name)


def get(variable, member, *arguments, gives=ANY, into=None):
    return Step("Get", variable, member, arguments, gives, into=into)


def let(variable, member, *arguments):
    return Step("Set" if isinstance(arguments[-1], Name) else "Let", variable, member, arguments)


def call(variable, member, *arguments, gives=ANY, changed=None, into=None):
    return Step("Call", variable, member, arguments, gives, changed, into=into)


def fails(step, number, source=ANY, description=ANY):
    return Step(step.access, step.variable, step.member, step.arguments, error=(number, source, description))


def part_of_test_set(name, part):
    return get("testset", part, into=part), let("sector", "PRobj_" + name, Name(part))


CLOSE = "SB_Ses_MsgSessionClose"
WIDTH = (1, CLOSE + ".PRstr_CloseReason", "Length of <CloseReason> field should be 8 bits.")
ARGUMENTS = "Wrong number of arguments or invalid property assignment"
MAX_MAC_FLOWS = "000000010000010000000010"

CASES = {
    "a message goes out and comes back": [
        create("sent", "Vorlan.SB_Ses_MsgSessionClose"),
        create("message", "VorlanSim.MessageObject"),
        call("sent", "Initialize", None),
        get("sent", "PRstr_MessageID", gives="00000001"),
        get("sent", "PRstr_CloseReason", gives=""),
        let("sent", "PRstr_CloseReason", "00000011"),
        let("sent", "prstr_MOREINFOLEN", "00000001"),
        let("sent", "PRstr_MoreInfo", "11110000"),
        call("sent", "CreateMessage", Name("message"), gives=True),
        get("message", "Hex", gives="01 03 01 F0"),
        get("message", "Length", gives=32),
        create("received", "Vorlan.SB_Ses_MsgSessionClose"),
        let("received", "PRobj_MessageObject", Name("message")),
        get("received", "PRstr_MoreInfo", gives="11110000"),
        get("received", "PRstr_MessageString", gives="00000001000000110000000111110000"),
    ],
    "a wrong width leaves the object as it was": [
        create("message", "Vorlan.SB_Ses_MsgSessionClose"),
        let("message", "PRstr_CloseReason", "00000011"),
        fails(let("message", "PRstr_CloseReason", "11"), *WIDTH),
        fails(let("message", "PRstr_CloseReason", "0000000011"), *WIDTH),
        get("message", "PRstr_CloseReason", gives="00000011"),
    ],
    "properties with an index": [
        create("message", "VorlanSim.MessageObject"),
        let("message", "Octet", 2, 7),
        get("message", "octet", 2, gives=7),
        get("message", "Octet", 1, gives=0),
        fails(get("message", "Octet", -1), 9, "MessageObject.Octet", "Subscript out of range"),
        create("request", "Vorlan.SB_Con_MsgRouteUpdateRequest"),
        let("request", "PRstr_SectorCount", "00010"),
        let("request", "PRstr_SectorPilotPN", 1, "010101010"),
        get("request", "PRstr_SectorPilotPN", 0, gives="000000000"),
        get("request", "PRstr_SectorPilotPN", 1, gives="010101010"),
    ],
    "arguments by reference": [
        create("functions", "Vorlan.SB_GeneralFunctions"),
        call("functions", "LongToBin", -5, 8, gives="1" * 29 + "011", changed=(-5, 7)),
        call("functions", "AddPadding", "101", gives="10100000", changed=("10100000",)),
    ],
    "arguments that may be left out": [
        create("functions", "Vorlan.SB_GeneralFunctions"),
        call("functions", "CalculateCentreFrequency", 0, 384, gives=881.52),
        call("functions", "CalculateCentreFrequency", 0, 384, False, gives=836.52),
        create("testset", "VorlanSim.TestSet"),
        get("testset", "TestReport", into="report"),
        call("functions", "LogScriptHeader", Name("report"), "Script", "What it does", ABSENT, "SECTOR 0"),
        call("functions", "LogScriptSpecificParameters", Name("report"), ["One", "Two"], [1, "2"]),
    ],
    "values of every kind": [
        create("functions", "Vorlan.SB_GeneralFunctions"),
        call("functions", "BinToLong", "101", gives=5),
        call("functions", "BinToDouble", "1" + "0" * 40, gives=2.0**40),
        call("functions", "ConvertAsctoBinary", "ä", gives="11100100"),
        call("functions", "IsValidNumber", "12", True, 12, True, 0, gives=True),
        create("sector", "Vorlan.SB_Sector"),
        get("sector", "PRobj_TestReport", gives=None),
    ],
    "an object comes back as itself": [
        create("sector", "Vorlan.SB_Sector"),
        create("testset", "VorlanSim.TestSet"),
        let("sector", "PRobj_TestSet", Name("testset")),
        get("sector", "PRobj_TestSet", gives=Name("testset")),
        get("testset", "ForwardChannels", into="channels"),
        call("channels", "Item", "FC_SECTOR 0", into="channel"),
        call("channels", "Item", "FC_SECTOR 0", gives=Name("channel")),
        fails(call("channels", "Item", "no such key"), 9),
    ],
    "errors by number": [
        create("message", "Vorlan.SB_Ses_MsgSessionClose"),
        create("functions", "Vorlan.SB_GeneralFunctions"),
        fails(let("message", "PRstr_MessageID", "00000001"), 438),
        fails(call("message", "Nonsense"), 438),
        fails(get("message", "PRobj_MessageObject"), 438),
        fails(create("nonsense", "Vorlan.SB_Nonsense"), 429),
        fails(call("functions", "LongToBin", 5), 450, "SB_GeneralFunctions.LongToBin", ARGUMENTS),
        fails(call("functions", "BinToDec", "1" * 19), 6),
        fails(call("functions", "MsgToBinString", 5), 13, "SB_GeneralFunctions.MsgToBinString", "Type mismatch"),
        create("request", "Vorlan.SB_Ses_MsgUATIRequest"),
        fails(get("request", "PRstr_TransactionId"), 1, "SB_Ses_MsgUATIRequest.PRstr_TransactionId",
              "UATIRequest Message object set to nothing. Please set <PRobj_MessageObject> property first."),
    ],
    "an attribute, its value, and the message that carries it": [
        create("value", "Vorlan.SB_Mac_ValMaxMACFlows"),
        let("value", "PRstr_ValueId", "00000001"),
        let("value", "PRstr_MaxNumMACFlows", "00000100"),
        let("value", "PRstr_MaxNumActiveMACFlows", "00000010"),
        call("value", "BuildValueRecord", gives=MAX_MAC_FLOWS),
        create("attribute", "Vorlan.SB_Mac_AttrMaxMACFlows"),
        call("attribute", "BuildAttribute", MAX_MAC_FLOWS, gives="000001010000000000010100" + MAX_MAC_FLOWS),
        create("request", "Vorlan.SB_MsgConfigurationRequest"),
        create("message", "VorlanSim.MessageObject"),
        call("request", "Initialize", Name("message")),
        let("request", "PRstr_TransactionId", "00000111"),
        call("request", "CreateMessage", Name("message"), "000001010000000000010100" + MAX_MAC_FLOWS, gives=True),
        get("message", "Hex", gives="50 07 05 00 14 01 04 02"),
        create("received", "Vorlan.SB_MsgConfigurationRequest"),
        let("received", "PRobj_MessageObject", Name("message")),
        get("received", "PRobj_AttrMaxMACFlows", 0, into="flows"),
        get("flows", "PRint_AttrMaxMACFlowsCount", gives=1),
        get("flows", "PRobj_MaxMACFlowsVal", 0, into="first"),
        get("first", "PRstr_MaxNumMACFlows", gives="00000100"),
    ],
    "a session from the first channel to the clean-up": [
        create("testset", "VorlanSim.TestSet"),
        create("parameters", "Vorlan.SB_GlobalParameters"),
        let("parameters", "PRstr_FileName", File("examples/sector.ini")),
        call("parameters", "Initialize", "SECTOR 0"),
        let("parameters", "PRbln_FadingEnabled", True),
        create("sector", "Vorlan.SB_Sector"),
        let("sector", "PRobj_GlobalParameters", Name("parameters")),
        let("sector", "PRobj_TestSet", Name("testset")),
        *part_of_test_set("TestReport", "TestReport"),
        *part_of_test_set("EvSignalling", "Signalling"),
        *part_of_test_set("FChCollection", "ForwardChannels"),
        *part_of_test_set("AccChCollection", "AccessChannels"),
        *part_of_test_set("EvProtocolController", "ProtocolController"),
        *part_of_test_set("RadioChannelEmulator", "RadioChannelEmulator"),
        get("testset", "ReverseTrafficChannels", into="channels"),
        call("channels", "Item", "RTC_SECTOR 0", into="channel"),
        let("sector", "PRobj_RevTrafficChannel", Name("channel")),
        call("sector", "ConfigureFwdAndAccChannel", True, 0),
        call("sector", "StartSessionNegotiationFromAN", gives=True),
        call("sector", "EndSessionNegotiationFromAN", 0, gives=True, changed=(4,)),
        call("sector", "AcquireReverseTrafficChannel", gives=True),
        create("reverse", "Vorlan.SB_PROT_RevTrafficChannel"),
        get("Signalling", "Messages", into="messages"),
        call("reverse", "Initialize", Name("parameters"), Name("Signalling"), Name("messages")),
        call("reverse", "NegotiateRateParametersAttribute", gives=True),
        call("reverse", "NegotiatePowerParametersAttribute", gives=True),
        let("sector", "PR_intReferenceVelocity", 30),
        let("sector", "PR_intNumPath", 2),
        call("sector", "EnableFading"),
        call("sector", "SetGainAndDelay", 1, -3.0, 0.0),
        call("sector", "NegotiateFTAP", True, True, False, False, gives=True),
        call("sector", "EnableFTAPTestPktFlow"),
        call("sector", "LowerLevel", 10.0, 20, gives=True),
        call("sector", "RaiseLevel", 5.0, 20, gives=True),
        call("sector", "DisableFTAPTestPktFlow"),
        call("sector", "DestoyFadingObjects"),
        call("sector", "CleanUp"),
        get("testset", "AccessTerminal", into="terminal"),
        get("terminal", "State", gives="Open"),
        get("testset", "Trace", into="trace"),
        get("trace", "Count", gives=19),
        get("TestReport", "Count", gives=7),
        get("TestReport", "Line", 3, gives="Configured: 2 path/s for Sector: SECTOR 0"),
    ],
}
SESSION = CASES["a session from the first channel to the clean-up"]


def run(driver, steps):
    """Takes the steps. A driver creates objects, invokes members and knows what an AutomationError is there."""
    variables = {}

    def plain(argument):
        return variables[argument.variable] if isinstance(argument, Name) else argument

    for step in steps:
        try:
            if step.access == "Create":
                variables[step.variable] = driver.create(step.member)
                continue
            result, changed = driver.invoke(variables[step.variable], step.member, step.access,
                                            [plain(argument) for argument in step.arguments])
        except driver.Error as error:
            assert step.error, f"{step}: {error}"
            told = (error.number, error.source, error.description)
            assert all(due in (ANY, is_) for due, is_ in zip(step.error, told)), f"{step}: {told}"
            continue
        assert not step.error, f"{step} raises nothing"
        if step.into:
            variables[step.into] = result
        elif step.gives is not ANY:
            assert type(result) is type(plain(step.gives)) and result == plain(step.gives), f"{step}: {result!r}"
        if step.changed is not None:
            assert tuple(changed) == step.changed, f"{step}: {changed!r}"
