"""vorlan ladder: a trace in JSON lines as text."""

import os
import subprocess

import pytest

FORWARD = '{"time_ms":0,"direction":"forward","protocol":18,"label":"Start","octets":"01"}'
REVERSE = '{"time_ms":20,"direction":"reverse","protocol":5,"octets":"03 2A 80","note":"late"}'


def ladder(path):
    return subprocess.run([os.environ["VORLAN"], "ladder", str(path)], capture_output=True, text=True, timeout=60, env={})


def test_every_line_is_a_rung(tmp_path):
    file = tmp_path / "trace.jsonl"
    file.write_text(f"{FORWARD}\n\n{REVERSE}")
    result = ladder(file)
    assert result.returncode == 0, result.stderr
    text = " ".join(result.stdout.split())
    assert '0.000 s AN --> AT SB_Ses_MsgConfigurationStart session-configuration (18) "Start" 01' in text
    assert "0.020 s AN <-- AT SB_Sec_MsgATKeyComplete key-exchange (5) ! late 03 2A 80" in text and "Result 17 1 verified" in text


@pytest.mark.parametrize("line, fault", [
    ("x", "not JSON"), ("{}", "no direction"), (FORWARD.replace("forward", "up"), "direction is"),
    (FORWARD.replace('"01"', '"0"'), "Type mismatch: an even"), (FORWARD.replace("18", '"18"'), "protocol is of the wrong type")])
def test_a_line_that_is_no_message_is_named(tmp_path, line, fault):
    file = tmp_path / "trace.jsonl"
    file.write_text(f"{FORWARD}\n{line}\n")
    result = ladder(file)
    assert result.returncode == 1 and result.stdout == ""
    assert "error 5 in ladder" in result.stderr
    assert f"trace.jsonl, line 2 is no message of a trace: {fault}" in result.stderr


def test_a_missing_file_is_an_error(tmp_path):
    result = ladder(tmp_path / "none.jsonl")
    assert result.returncode == 1 and "error 53" in result.stderr
