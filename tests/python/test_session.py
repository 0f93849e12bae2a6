"""Whole sessions with the simulated test set: the example as it is run, and one with objects of the script's own."""

import importlib.util
import os
import re
import subprocess
import sys
from pathlib import Path

import pytest
import vorlan

EXAMPLE = Path(__file__).resolve().parents[2] / "examples" / "session.py"
COMMAND_LINE = Path(vorlan.__file__).resolve().parents[1] / "bin" / "vorlan"
RUNG = re.compile(r"^ +\d+\.\d{3} s  AN (-->|<--) AT  (?:SB_\w*Msg)?(\w+)  .*?\"(.*)\"$", re.MULTILINE)

CONFIGURATION = [
    ("-->", "ConfigurationStart", "ConfigStartMessage"),
    *(rung for suffix in ("", "_Stream", "_RTCMAC", "_RouteUpdate") for rung in (
        ("<--", "ConfigurationRequest", "ConfigurationRequestMSG" + suffix),
        ("-->", "ConfigurationResponse", "ConfigurationResponseMSG" + suffix))),
    ("<--", "ConfigurationComplete", "ConfigurationCompleteMSG"),
    ("-->", "ConfigurationComplete", "ConfigCompleteMessageAN"),
]
PROPOSAL = [("-->", "ConfigurationRequest", "ConfigRequestMessage"),
            ("<--", "ConfigurationResponse", "ConfigResponseMessage")]
KEYS = [("-->", "KeyRequest", "KeyRequestMsg"), ("<--", "KeyResponse", "KeyResponseMsg"),
        ("-->", "ANKeyComplete", "ANKeyComplete"), ("<--", "ATKeyComplete", "ATKeyComplete")]
# Subtypes of security, key exchange, authentication and encryption; the lengths of the session and authentication keys.
SECURITY = [*PROPOSAL * 3, *KEYS, *PROPOSAL * 3]
RATES = [("-->", "ConfigurationRequest", "RPConfigRequestMessage"),
         ("<--", "ConfigurationResponse", "RPConfigResponseMessage")]
POWERS = [(arrow, message, label.replace("RP", "PP", 1)) for arrow, message, label in RATES]
CLEARED = [("-->", "FTAPStatsClearRequest", "FTAPClearReq"), ("<--", "FTAPStatsClearResponse", "FTAPClearRes")]
TEST_PACKETS = [("-->", "FTAPParameterAssignment", "FTAPAssign"), ("<--", "FTAPParameterComplete", "FTAPComplete"),
                *CLEARED, *CLEARED]

PREPARED = ["Forward Channel for Master Sector0 configured with Ior = -60", "Access Channel configured.",
            "Generic Security Protocol Initialized.",
            "DH-Key Exchange Protocol initialized with Session Key Length 1024",
            "SHA-1 Authentication Protocol initialized with Authentication Key Length 160",
            "Default Encryption Protocol Initialized.", "Reverse Traffic Channel acquired"]
FADED = ["Configured: 2 path/s for Sector: SECTOR 0", "The Velocity set at the BaseStation is: 30Km/hr ",
         "Fading has been enabled ", "Destroyed: 2 Path/s configured for Sector: SECTOR 0"]


@pytest.fixture
def settings(tmp_path, monkeypatch):
    """What a session remembers for its user stays in the test."""
    monkeypatch.setenv("XDG_CONFIG_HOME", str(tmp_path))


def example(*options):
    environment = {**os.environ, "PYTHONPATH": os.path.dirname(vorlan.__file__)}
    return subprocess.run([sys.executable, EXAMPLE, *options], env=environment, capture_output=True, text=True)


def report_of(output):
    return output.split("Test report\n-----------\n")[1].split("\n\n")[0].splitlines()


@pytest.mark.skipif(not COMMAND_LINE.exists(), reason="the command line, which prints the ladder, has not been built")
@pytest.mark.parametrize("options, rungs, report, error", [
    ([], CONFIGURATION + SECURITY + RATES + POWERS + TEST_PACKETS, PREPARED + FADED, ""),
    (["--refuse", "4"], CONFIGURATION + SECURITY + RATES, PREPARED,
     "error 1 in SB_PROT_RevTrafficChannel.NegotiateRateParametersAttribute: "
     "AT rejected the use of new RateParameter Attribute sentfrom AN\n"),
], ids=["good", "refused"])
def test_the_example(settings, options, rungs, report, error):
    run = example(*options)
    assert run.stderr == error
    assert run.returncode == (1 if error else 0)
    assert "the terminal's last TransactionID was 4." in run.stdout
    assert RUNG.findall(run.stdout) == rungs
    assert report_of(run.stdout) == report


class Report:
    """A test report that is a script's own."""

    def __init__(self, fails_at=None):
        self.lines, self.fails_at = [], fails_at

    def AddText(self, line):
        if line == self.fails_at:
            raise OSError("no room")
        self.lines.append(line)


def test_a_session_that_reports_to_an_object_of_the_script(settings):
    specification = importlib.util.spec_from_file_location("session", EXAMPLE)
    session = importlib.util.module_from_spec(specification)
    specification.loader.exec_module(session)
    test_set = vorlan.CreateObject("VorlanSim.TestSet")
    sector = session.connect(test_set, session.load_configuration(EXAMPLE.parent / "sector.ini", "SECTOR 0"))

    sector.PRobj_TestReport = Report(fails_at=PREPARED[-1])
    with pytest.raises(vorlan.AutomationError, match="no room") as raised:
        session.run(test_set, sector)
    assert (raised.value.number, raised.value.source) == (440, "Report.AddText")
    assert sector.PRobj_TestReport.lines == PREPARED[:-1]

    sector.PRobj_TestReport = report = Report()
    session.run(test_set, sector)
    assert report.lines == PREPARED + FADED
    assert test_set.AccessTerminal.State == "Open" and list(test_set.AccessTerminal.Complaints) == []
    assert sector.PRint_LastTransactionIDFromAT == 9
    assert test_set.TestReport.Count == 0
