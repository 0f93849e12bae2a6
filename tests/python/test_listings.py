"""What a script's author sees: dir(), help(), completion, signatures, stubs."""

import ast
import inspect
import pathlib
import pydoc
import rlcompleter
import subprocess
import sys

import pytest
import vorlan

STUBS = pathlib.Path(vorlan.__file__).with_name("vorlan.pyi")


def test_every_class_and_member_is_listed_everywhere():
    stubs = {node.name: node for node in ast.parse(STUBS.read_text()).body if isinstance(node, ast.ClassDef)}
    names = vorlan.classes()
    assert len(names) == len(set(names)) > 50 and set(names) <= set(dir(vorlan)) and names == sorted(names, key=str.lower)
    for name in names:
        cls = getattr(vorlan, name)
        members = {member for member in vars(cls) if not member.startswith("__")}
        listed = [node for node in stubs[name].body if not isinstance(node, ast.Expr)]
        assert members and members == {getattr(node, "name", None) or node.target.id for node in listed}, name
        assert type(vorlan.CreateObject(name)) is cls and members <= set(dir(cls()))
        assert cls.__doc__
        for member in members:
            assert getattr(cls, member).__doc__, f"{name}.{member} has no text"
            if not isinstance(vars(cls)[member], property):
                inspect.signature(getattr(cls, member))


def test_help_signature_and_completion():
    text = pydoc.plain(pydoc.render_doc(vorlan.SB_Ses_MsgSessionClose))
    assert "Either side closes the session." in text and "PRstr_MoreInfo: 8 x MoreInfoLen, if MoreInfoLen > 0" in text
    close = vorlan.SB_Ses_MsgSessionClose()
    assert "CreateMessage(MessageObject)" in pydoc.plain(pydoc.render_doc(close.CreateMessage))
    assert list(inspect.signature(close.initialize).parameters) == ["TestSet", "EncoderString"]
    assert repr(close.Initialize) == "<method SB_Ses_MsgSessionClose.Initialize>"
    assert vorlan.MessageObject().Octet.__doc__ == vorlan.MessageObject.Octet.__doc__
    # A property that raises must not stop completion.
    completer = rlcompleter.Completer({"request": vorlan.SB_Ses_MsgUATIRequest()})
    assert completer.complete("request.PRstr_T", 0) == "request.PRstr_TransactionId"


TYPED = """
import vorlan
close = vorlan.CreateObject("Vorlan.SB_Ses_MsgSessionClose")
close.PRstr_CloseReason = "00000000"
length: int = vorlan.MessageObject().Octet[0] + vorlan.MessageObject().Length
vorlan.SB_GeneralFunctions().LongToBin(vorlan.ByRef(5), 8).startswith("0")
other = vorlan.CreateObject("".join(("SB_", "Other"))).anything
held = vorlan.SB_GlobalParameters()
held.PRint_SecurityType = held.PRint_KeyXChangeType = 1
held.PRint_MACIndex = held.PRint_SecurityType
length = held.PRint_MACIndex() + held.PRint_MACIndex["SECTOR 1"] + int(held.PRdbl_CCDataRate)
vorlan.SB_GeneralFunctions().LongToBin(held.PRint_MACIndex, 8)
faded: bool = held.PRint_MACIndex == 5 or held.PRdbl_CCDataRate < length
vorlan.SB_MsgConfigurationRequest().PRobj_AttrFlowNNReservationFwd[0].Anything
held.PRint_SecurityType = "1"  # wrong
length = held.PRint_MACIndex  # wrong
faded = vorlan.MessageObject().Octet == 5  # wrong
close.PRstr_CloseReason = 5  # wrong
close.PRstr_CloseReasons  # wrong
close.PRstr_MessageID = "00000000"  # wrong
vorlan.MessageObject().Octet["0"] = 1  # wrong
vorlan.SB_GeneralFunctions().LongToBin("5")  # wrong
"""


def test_a_type_checker_takes_the_stubs_and_finds_mistakes(tmp_path):
    pytest.importorskip("mypy")
    script = tmp_path / "script.py"
    script.write_text(TYPED)
    command = [sys.executable, "-m", "mypy", "--strict", f"--cache-dir={tmp_path}", str(STUBS), str(script)]
    output = subprocess.run(command, capture_output=True, text=True, cwd=tmp_path).stdout
    found = {int(line.split(":")[1]) for line in output.splitlines() if ": error:" in line and "script.py" in line}
    assert found == {number for number, line in enumerate(TYPED.splitlines(), 1) if line.endswith("# wrong")}, output
    assert "vorlan.pyi" not in output
