"""Windows without Windows: Wine with a fresh prefix, and what the tests do in it.

The environment says what to test: VORLAN_WINDOWS_BUILD is the build folder with bin/Vorlan.exe.
"""

import os
import shutil
import subprocess
import time
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent
BUILD = Path(os.environ["VORLAN_WINDOWS_BUILD"]).resolve()
LIMIT = 40  # seconds for one program: far more than any takes, so that a fault ends the tests all the same


class Machine:
    """A Wine prefix. Programs run in it as on a Windows PC of a single user who is administrator."""

    def __init__(self, folder):
        self.folder = folder
        self.server = BUILD / "bin" / "Vorlan.exe"
        self.environment = {**os.environ, "WINEPREFIX": str(folder), "WINEDEBUG": "-all", "TZ": "UTC",
                            "WINEDLLOVERRIDES": "mscoree,mshtml="}

    def start(self, *words, **options):
        return subprocess.Popen(["wine", *map(str, words)], env=self.environment, cwd=self.folder, text=True,
                                stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)

    def run(self, *words):
        return subprocess.run(["wine", *map(str, words)], env=self.environment, cwd=self.folder, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=LIMIT)

    def succeed(self, *words):
        done = self.run(*words)
        assert done.returncode == 0, f"{words}: {done.returncode}\n{done.stdout}\n{done.stderr}"
        return done.stdout

    def script(self, name):
        """The script as it runs: what the VBScript tests share stands in front of it."""
        if not name.endswith(".vbs"):
            return windows_path(HERE / name)
        whole = self.folder / name
        whole.write_text("\n".join([(HERE / "check.vbs").read_text(), (HERE / name).read_text(), "Finish\n"]))
        return windows_path(whole)

    def cscript(self, name, *words):
        """A script that an error ends has no last line; the host may call that a success."""
        said = self.succeed("cscript", "//nologo", self.script(name), *words)
        assert said.rstrip().endswith("checks, 0 failed"), said
        return said

    def start_cscript(self, name, *words):
        return self.start("cscript", "//nologo", self.script(name), *words)

    def servers(self):
        """The processes that run our server in this prefix."""
        found = []
        for process in Path("/proc").glob("[0-9]*"):
            try:
                if (b"Vorlan.exe" in (process / "cmdline").read_bytes()
                        and f"WINEPREFIX={self.folder}".encode() in (process / "environ").read_bytes()):
                    found.append(process)
            except OSError:
                pass  # It has ended meanwhile.
        return found

    def wait_for_no_server(self):
        deadline = time.monotonic() + LIMIT
        while self.servers():
            assert time.monotonic() < deadline, "the server did not leave"
            time.sleep(0.05)

    def registry(self):
        """All that programs register themselves under. It is in files when no program runs."""
        self.shut_down()
        lines = set()
        for file in ("system.reg", "user.reg"):
            key = ""
            for line in (self.folder / file).read_text("utf-8", "replace").splitlines():
                if line.startswith("["):
                    key = file + line[:line.rindex("]") + 1]
                if key.startswith(file + r"[Software\\Classes") and not line.startswith("#time"):
                    lines.add(f"{key} {'' if line.startswith('[') else line}")
        return lines

    def shut_down(self):
        for switch in ("-k", "-w"):
            subprocess.run(["wineserver", switch], env=self.environment, timeout=LIMIT)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


@pytest.fixture(scope="session")
def display():
    """A screen that nobody sees, for a system that expects one."""
    if "DISPLAY" in os.environ or not shutil.which("Xvfb"):
        yield
        return
    reading, writing = os.pipe()
    screen = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"], pass_fds=[writing],
                              stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as chosen:
        os.environ["DISPLAY"] = ":" + chosen.readline().strip()
    yield
    screen.terminate()
    screen.wait()


@pytest.fixture(scope="session")
def fresh_machine(display):
    folder = BUILD / "wine"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    machine = Machine(folder)
    machine.succeed("wineboot", "--init")
    yield machine
    machine.shut_down()


@pytest.fixture(scope="session")
def machine(fresh_machine):
    """With the server registered for everybody."""
    fresh_machine.succeed(fresh_machine.server, "/RegServer")
    return fresh_machine


@pytest.fixture(autouse=True)
def nothing_left(fresh_machine):
    yield
    fresh_machine.wait_for_no_server()
