"""A whole session of the simulated test set, from the first channel to the clean-up, with the ladder of its messages.

Run by scripts/demo, or by hand:  PYTHONPATH=build/python python3 examples/session.py [--ladder FILE] [--refuse PROTOCOL]
--refuse has the access terminal refuse a proposal of the access network, to show what a script's author sees then.
"""

import argparse
import subprocess
import sys
import tempfile
from pathlib import Path

import vorlan

EXAMPLES = Path(__file__).resolve().parent
COMMAND_LINE = Path(vorlan.__file__).resolve().parents[1] / "bin" / "vorlan"


def load_configuration(parameter_file, sector_name):
    parameters = vorlan.CreateObject("Vorlan.SB_GlobalParameters")
    parameters.PRstr_FileName = str(parameter_file)
    parameters.Initialize(sector_name)
    return parameters


def connect(test_set, parameters, name="SECTOR 0"):
    """A sector of the test set: every object that it works with is handed to it once."""
    sector = vorlan.CreateObject("Vorlan.SB_Sector")
    sector.PRobj_GlobalParameters = parameters
    sector.PRstr_SectorName = name
    sector.PRobj_TestSet = test_set
    sector.PRobj_TestReport = test_set.TestReport
    sector.PRobj_FChCollection = test_set.ForwardChannels
    sector.PRobj_RCHCollection = test_set.ReverseTrafficChannels
    sector.PRobj_AccChCollection = test_set.AccessChannels
    sector.PRobj_SubType1AccChCollection = test_set.SubType1AccessChannels
    sector.PRobj_SubType2AccChCollection = test_set.SubType2AccessChannels
    sector.PRobj_RevTrafficChannel = test_set.ReverseTrafficChannels.Item(f"RTC_{name}")
    sector.PRobj_EvSignalling = test_set.Signalling
    sector.PRobj_EvProtocolController = test_set.ProtocolController
    sector.PRobj_RadioChannelEmulator = test_set.RadioChannelEmulator
    return sector


def secure(sector):
    """Generic security, a Diffie-Hellman key exchange with 1024 bits, and SHA-1 authentication."""
    parameters = sector.PRobj_GlobalParameters
    parameters.PRint_SecurityType = parameters.PRint_KeyXChangeType = parameters.PRint_AuthenticationType = 1
    parameters.PRint_SKeyLength, parameters.PRlng_AuthKeyLength = 1024, 160
    security = vorlan.CreateObject("Vorlan.SB_Security")
    security.Initialise(sector)
    security.ConfigureSecurity()
    security.ConfigureKeyXChange()
    security.ConfigureAuthentication()
    security.ConfigureEncryption()

    security.PRobj_PROT_GenericSecurity.NegotiateProtocolSubtype()
    exchange = security.PRobj_PROT_DHKeyXChange
    exchange.NegotiateProtocolSubtype()
    exchange.NegotiateSKeyLength(1024)
    exchange.ExecuteDHKeyXChange()
    authentication = security.PRobj_PROT_SHA1Authentication
    authentication.NegotiateProtocolSubtype()
    authentication.NegotiateAuthKeyLength(160)
    security.PRobj_PROT_DefaultEncryption.NegotiateProtocolSubtype()


def run(test_set, sector, secured=True):
    sector.ConfigureFwdAndAccChannel(True, 0)

    # The access network opens the session configuration, the terminal proposes, and both complete.
    sector.StartSessionNegotiationFromAN()
    transaction = vorlan.ByRef(0)
    sector.EndSessionNegotiationFromAN(transaction)
    print(f"Session configured; the terminal's last TransactionID was {transaction.value}.")

    if secured:
        secure(sector)

    sector.AcquireReverseTrafficChannel()
    reverse = vorlan.CreateObject("Vorlan.SB_PROT_RevTrafficChannel")
    reverse.Initialize(sector.PRobj_GlobalParameters, test_set.Signalling, test_set.Signalling.Messages)
    reverse.NegotiateRateParametersAttribute()
    reverse.NegotiatePowerParametersAttribute()

    sector.PRobj_GlobalParameters.PRbln_FadingEnabled = True
    sector.PR_intReferenceVelocity = 30
    sector.PR_intNumPath = 2
    sector.EnableFading()
    sector.SetGainAndDelay(1, -3.0, 0.0)
    sector.SetGainAndDelay(2, -6.0, vorlan.Null)

    # Forward test packets with a fixed DRC value and cover.
    sector.NegotiateFTAP(True, True, False, False)
    sector.EnableFTAPTestPktFlow()
    sector.LowerLevel(10.0, 2)
    sector.RaiseLevel(5.0, 2)
    sector.DisableFTAPTestPktFlow()
    sector.SendFTAPClearStats()

    sector.DestoyFadingObjects()
    sector.CleanUp()


def show(test_set, ladder_file):
    test_set.Trace.WriteJsonLines(str(ladder_file))
    print("\nLadder\n------", flush=True)
    subprocess.run([COMMAND_LINE, "ladder", str(ladder_file)], check=True)
    print("\nTest report\n-----------")
    print(test_set.TestReport.Text, end="")
    print(f"\n{test_set.Time:.1f} s of simulated time.")


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--config", default=EXAMPLES / "sector.ini", metavar="FILE")
    options.add_argument("--sector", default="SECTOR 0", metavar="NAME")
    options.add_argument("--ladder", metavar="FILE", help="keep the trace as JSON lines")
    options.add_argument("--refuse", type=int, metavar="PROTOCOL", help="a protocol type, such as 4")
    given = options.parse_args()

    test_set = vorlan.CreateObject("VorlanSim.TestSet")
    if given.refuse is not None:
        test_set.AccessTerminal.Refuse(given.refuse)
    failed = None
    try:
        run(test_set, connect(test_set, load_configuration(given.config, given.sector), given.sector))
    except vorlan.AutomationError as error:
        failed = f"error {error.number} in {error.source}: {error.description}"
    with tempfile.TemporaryDirectory() as folder:
        show(test_set, given.ladder or Path(folder) / "session.jsonl")
    sys.exit(failed)


if __name__ == "__main__":
    main()
