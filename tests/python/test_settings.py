"""What is remembered for the user, from one process to the next."""

import os
import subprocess
import sys

REMEMBER = """
import vorlan
sector = vorlan.SB_Sector()
sector.PRobj_GlobalParameters = parameters = vorlan.SB_GlobalParameters()
sector.PRobj_TestSet = test_set = vorlan.CreateObject("VorlanSim.TestSet")
sector.PRobj_EvSignalling = test_set.Signalling
sector.PRobj_TestReport = test_set.TestReport
parameters.PRint_KeyXChangeType = parameters.PRint_AuthenticationType = 1
parameters.PRint_SKeyLength, parameters.PRlng_AuthKeyLength = 1024, 40000
security = vorlan.SB_Security()
security.Initialise(sector)
security.ConfigureKeyXChange()
security.ConfigureAuthentication()
assert security.PRobj_PROT_DHKeyXChange.NegotiateSKeyLength()
"""
RECALL = """
import vorlan
security = vorlan.SB_Security()
print(security.PRint_MRUKeyXChangeType, security.PRint_MRUSKeyLength, security.PRlng_MRUAuthKeyLength)
"""
FORGET = "import vorlan; vorlan.SB_Security().ClearSessionStateInfo()"


def test_security_values_are_remembered_by_another_process(tmp_path):
    environment = dict(os.environ, XDG_CONFIG_HOME=str(tmp_path))

    def run(script):
        command = [sys.executable, "-c", script]
        return subprocess.run(command, env=environment, capture_output=True, text=True, check=True).stdout.split()

    assert run(RECALL) == ["0", "0", "160"]
    run(REMEMBER)
    assert run(RECALL) == ["1", "1024", "40000"]
    run(FORGET)
    assert run(RECALL) == ["0", "0", "160"]
