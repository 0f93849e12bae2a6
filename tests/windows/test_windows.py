"""Vorlan.exe used by scripting hosts, as scripts/test-windows runs it."""

import json
import os

import pytest
from conftest import BUILD, HERE, LIMIT, windows_path

SECTOR_INI = HERE.parents[1] / "examples" / "sector.ini"


@pytest.fixture(scope="session")
def class_names(fresh_machine):
    listed = json.loads(fresh_machine.succeed(BUILD / "bin" / "vorlan-cli.exe", "classes", "--json"))
    return [row["name"] if "." in row["name"] else "Vorlan." + row["name"] for row in listed]


def test_registration_is_undone(fresh_machine):
    # Another server's name, which is left to it.
    fresh_machine.succeed("reg", "add", r"HKLM\Software\Classes\ReadINI.ParameterFunctions\CLSID", "/ve", "/d",
                          "{11111111-2222-3333-4444-555555555555}", "/f")
    fresh_machine.succeed("reg", "add", r"HKCU\Software\Classes", "/f")  # which every user of Windows has
    before = fresh_machine.registry()
    for root, scope in (("HKLM", []), ("HKCU", ["/user"])):
        fresh_machine.succeed(fresh_machine.server, "/UnregServer", *scope)  # nothing there
        for _ in range(2):
            fresh_machine.succeed(fresh_machine.server, "/RegServer", *scope)
        fresh_machine.succeed("reg", "query", root + r"\Software\Classes\Vorlan.SB_Sector\CLSID")
        fresh_machine.succeed(fresh_machine.server, "/UnregServer", *scope)
    after = fresh_machine.registry()
    assert after - before == before - after == set()
    assert not list(fresh_machine.folder.rglob("Vorlan*.tlb")) + list((BUILD / "bin").glob("*.tlb"))
    fresh_machine.succeed("reg", "delete", r"HKLM\Software\Classes\ReadINI.ParameterFunctions", "/f")


def test_usage(fresh_machine):
    help_text = fresh_machine.run(fresh_machine.server, "/help")
    assert help_text.returncode == 0 and "/RegServer [/user]" in help_text.stdout
    for words in ([], ["/nonsense"], ["/RegServer", "/everybody"]):
        assert fresh_machine.run(fresh_machine.server, *words).returncode == 2


def test_every_class(machine, class_names):
    listing = machine.folder / "classes.txt"
    listing.write_text("\r\n".join(class_names))
    assert len(class_names) > 300
    checked = machine.cscript("every_class.vbs", "classes.txt")
    assert checked.startswith(f"{3 * len(class_names)} checks")


@pytest.mark.parametrize("script, words", [
    ("messages.vbs", []), ("script_objects.vbs", [SECTOR_INI]), ("values.js", []), ("session.vbs", [SECTOR_INI]),
])
def test_script(machine, script, words):
    machine.cscript(script, *map(windows_path, words))


def test_settings_are_remembered(machine):
    machine.cscript("remember.vbs", "any", 17)
    machine.wait_for_no_server()
    machine.cscript("remember.vbs", 17, 42)


def test_a_blocked_script_stops_nobody_and_leaves_nothing(machine):
    blocked = machine.start_cscript("blocked.vbs")
    try:
        assert blocked.stdout.readline().strip() == "waiting"
        [server] = machine.servers()
        machine.cscript("messages.vbs")
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
        for i in range(1, 5):
            assert script.stdout.readline().strip() == "done"
            [server] = machine.servers()
            taken.append(resources(server))
            (machine.folder / f"seen{i}").touch()
        script.wait(LIMIT)
    finally:
        script.kill()
        script.wait()
    (memory, handles, threads), (last_memory, last_handles, last_threads) = taken[1], taken[-1]
    assert last_memory - memory < 1024 and abs(last_handles - handles) <= 2 and last_threads <= threads + 2, taken


def test_from_cpp(machine):
    """What no script of the hosts can do: typed references, named arguments, the type library."""
    assert "0 failed" in machine.succeed(BUILD / "bin" / "vorlan_com_probe.exe")


@pytest.mark.skipif("VORLAN_WINDOWS_BENCH" not in os.environ, reason="scripts/test-windows --bench")
def test_speed(machine):
    figures = machine.succeed(BUILD / "bin" / "vorlan_com_bench.exe")
    with open(os.environ["VORLAN_WINDOWS_BENCH"], "w") as out:
        out.write(figures)
