"""Vorlan.exe used by scripting hosts, as scripts/test-windows runs it."""

import json
import os
import re
import shutil
import uuid

import behaviour_script
import pytest
from conftest import BUILD, HERE, LIMIT, windows_path

OWN = uuid.UUID("4bd6c1f2-93a7-4e05-8c1d-7f2ab064e91d")  # the namespace of the server's identifiers
SECTOR_INI = HERE.parents[1] / "examples" / "sector.ini"


@pytest.fixture(scope="session")
def class_names(fresh_machine):
    listed = json.loads(fresh_machine.succeed(BUILD / "bin" / "vorlan-cli.exe", "classes", "--json"))
    return [row["name"] if "." in row["name"] else "Vorlan." + row["name"] for row in listed]


def test_registration_is_undone(fresh_machine):
    # Other servers' names and files, which are left to them.
    fresh_machine.succeed("reg", "add", r"HKLM\Software\Classes\ReadINI.ParameterFunctions\CLSID", "/ve", "/d",
                          "{11111111-2222-3333-4444-555555555555}" + 1100 * " ", "/f")
    fresh_machine.succeed("reg", "add", r"HKLM\Software\Classes\VorlanSim.Security\shell", "/f")
    anothers_file = BUILD / "bin" / "ReadINI.tlb"
    anothers_file.write_text("another's")
    fresh_machine.succeed("reg", "add", r"HKCU\Software\Classes", "/f")  # which every user of Windows has
    before = fresh_machine.registry()
    reader = r"\Software\Classes\ReadINI.ParameterFunctions"
    for root, scope in (("HKLM", []), ("HKCU", ["/user"])):
        fresh_machine.succeed(fresh_machine.server, "/UnregServer", *scope)  # nothing there
        for _ in range(2):
            said = fresh_machine.succeed(fresh_machine.server, "/RegServer", *scope)
            assert re.findall(r"name: (.*)", said) == ["ReadINI.ParameterFunctions", "VorlanSim.Security"]
        fresh_machine.succeed("reg", "query", root + r"\Software\Classes\Vorlan.SB_Sector\CLSID")
        assert scope == [] or fresh_machine.run("reg", "query", "HKCU" + reader).returncode != 0, "it hides the machine's"
        fresh_machine.succeed(fresh_machine.server, "/UnregServer", *scope)
    after = fresh_machine.registry()
    assert after - before == before - after == set()
    left = [*fresh_machine.folder.rglob("Vorlan*.tlb"), *(BUILD / "bin").glob("*.tlb")]
    assert left == [anothers_file] and anothers_file.read_text() == "another's"
    anothers_file.unlink()
    for name in ("ReadINI.ParameterFunctions", "VorlanSim.Security"):
        fresh_machine.succeed("reg", "delete", r"HKLM\Software\Classes" + "\\" + name, "/f")


def test_usage(fresh_machine):
    help_text = fresh_machine.run(fresh_machine.server, "/help")
    assert help_text.returncode == 0 and "/RegServer [/user]" in help_text.stdout
    version = re.match(r"Vorlan (\d+\.\d+\.\d+):", help_text.stdout).group(1)
    asks = 'Equal "version", CreateObject("Scripting.FileSystemObject").GetFileVersion(WScript.Arguments(0)), '
    fresh_machine.cscript("version.vbs", windows_path(fresh_machine.server), text=f'{asks}"{version}.0"')
    for words in ([], ["/nonsense"], ["/RegServer", "/everybody"], ["UnregServer"]):
        done = fresh_machine.run(fresh_machine.server, *words)
        assert done.returncode == 2 and " ".join(words) in done.stderr.splitlines()[0], done


def test_registration_again(machine):
    """A user's registration leaves the machine's alone; one that cannot write its libraries leaves the earlier one."""
    for switch in ("/RegServer", "/UnregServer"):
        machine.succeed(machine.server, switch, "/user")
    library = rf"HKLM\Software\Classes\TypeLib\{{{uuid.uuid5(OWN, 'library Vorlan')}}}\1.0\0\win64"
    machine.succeed("reg", "query", library)
    folder = BUILD / "bin"
    for name, code, place in (("Vorlan.tlb.new", 1, "Vorlan.tlb"), ("Vorlan.tlb", 0, "Vorlan-1.tlb")):
        (folder / name).unlink(missing_ok=True)
        (folder / name / "in the way").mkdir(parents=True)
        try:
            assert machine.run(machine.server, "/RegServer").returncode == code
            assert (folder / place).is_file()
            assert place in machine.succeed("reg", "query", library, "/ve")
            machine.succeed("reg", "query", r"HKLM\Software\Classes\Vorlan.SB_Sector\CLSID")
        finally:
            shutil.rmtree(folder / name)
            machine.succeed(machine.server, "/RegServer")
    assert [file.name for file in folder.glob("Vorlan[-.]*tlb*")] == ["Vorlan.tlb"]


def test_every_class(machine, class_names):
    listing = machine.folder / "classes.txt"
    listing.write_text("\r\n".join(class_names))
    assert len(class_names) > 300
    checked = machine.cscript("every_class.vbs", "classes.txt")
    assert checked.startswith(f"{3 * len(class_names)} checks")


@pytest.mark.parametrize("script, words", [
    ("calls.vbs", []), ("script_objects.vbs", [SECTOR_INI]), ("values.js", []),
])
def test_script(machine, script, words):
    machine.cscript(script, *map(windows_path, words))


def test_behaviour(machine):
    """What all ways in share, and whole sessions among it; each case's last object goes before the next one begins."""
    machine.cscript("behaviour.vbs", text=behaviour_script.script())


def test_objects_come_and_go(machine):
    """Several scripts at once, which let go of their last object right before they create the next: no gap between."""
    scripts = [machine.start_cscript("come_and_go.vbs") for _ in range(2)]
    for script in scripts:
        assert script.communicate(timeout=LIMIT)[0].rstrip().endswith("checks, 0 failed")


def test_the_script_of_the_readme(machine):
    text = (HERE.parents[1] / "README.md").read_text().split("```vb\n")[1].split("```")[0]
    script = machine.folder / "readme.vbs"
    script.write_text(text)
    assert machine.succeed("cscript", "//nologo", windows_path(script)).splitlines() == [
        "16 bits: 01 03", "1 SB_Ses_MsgSessionClose.PRstr_CloseReason", "Length of <CloseReason> field should be 8 bits."]


def test_settings_are_remembered(machine):
    machine.cscript("remember.vbs", "any", 17)
    machine.wait_for_no_server()
    machine.cscript("remember.vbs", 17, 42)


def test_a_blocked_script_stops_nobody_and_leaves_nothing(machine):
    blocked = machine.start_cscript("blocked.vbs")
    try:
        assert blocked.stdout.readline().strip() == "waiting"
        [server] = machine.servers()
        machine.cscript("calls.vbs")
        assert machine.servers() == [server], "both scripts have their objects in one process"
    finally:
        blocked.kill()
        blocked.wait()
    machine.wait_for_no_server()


def resources(server):
    """Memory in KiB, and handles as far as the system below knows them."""
    status = dict(line.split(":", 1) for line in (server / "status").read_text().splitlines())
    return int(status["VmRSS"].split()[0]), len(os.listdir(server / "fd")), int(status["Threads"])


def test_many_objects(machine):
    script = machine.start_cscript("many.vbs")
    try:
        taken = []
        for batch in (1, 2):
            assert script.stdout.readline().strip() == "done"
            [server] = machine.servers()
            taken.append(resources(server))
            (machine.folder / f"seen{batch}").touch()
        script.wait(LIMIT)
    finally:
        script.kill()
        script.wait()
    (memory, handles, threads), (last_memory, last_handles, last_threads) = taken
    print("KiB, handles, threads after 1000 objects, and after 1000 more:", *taken)
    # A thousand objects take 1300 KiB. Threads come and go, each with handles of its own; lost ones would be a thousand.
    assert last_memory - memory < 640 and last_handles - handles <= 40 and last_threads - threads <= 8, taken


def test_from_cpp(machine):
    """What no script of the hosts can do: typed references, named arguments, the type library."""
    assert "0 failed" in machine.succeed(BUILD / "bin" / "vorlan_com_probe.exe")


def test_another_parameter_reader(machine):
    """Where one is registered it is used, whatever process it is in."""
    server = BUILD / "bin" / "vorlan_com_bench.exe"  # whatever is asked for, it answers "00000001"
    least = f"{{{uuid.uuid5(OWN, 'class Vorlan.Bench.Least')}}}"
    least_key = rf"HKLM\Software\Classes\CLSID\{least}"
    reader = r"HKLM\Software\Classes\ReadINI.ParameterFunctions\CLSID"
    machine.succeed(machine.server, "/UnregServer")
    for key, value in ((reader, least), (least_key + r"\LocalServer32", f'"{windows_path(server)}"')):
        machine.succeed("reg", "add", key, "/ve", "/d", value, "/f")
    machine.succeed(machine.server, "/RegServer")
    try:
        machine.cscript("reader.vbs")
    finally:
        machine.succeed(machine.server, "/UnregServer")
        for key in (reader, least_key):
            machine.succeed("reg", "delete", key, "/f")
        machine.succeed(machine.server, "/RegServer")


def test_debugger_output(machine):
    """The system below shows on stderr what a debugger would see."""
    said = machine.run("cscript", "//nologo", machine.script("script_objects.vbs"), windows_path(SECTOR_INI),
                       WINEDEBUG="-all,+debugstr").stderr
    assert '"==========SB_GlobalParameters constructor ===============\\n"' in said


@pytest.mark.skipif("VORLAN_WINDOWS_BENCH" not in os.environ, reason="scripts/test-windows --bench")
def test_speed(machine):
    figures = machine.succeed(BUILD / "bin" / "vorlan_com_bench.exe")
    with open(os.environ["VORLAN_WINDOWS_BENCH"], "w") as out:
        out.write(figures)
