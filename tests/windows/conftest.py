"""Windows without Windows: Wine with a fresh prefix, and what the tests do in it.

The environment says what to test and where: VORLAN_WINDOWS_BUILD is the build folder with bin/Vorlan.exe, WINEPREFIX a
folder that is made anew.
"""

import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent
BUILD = Path(os.environ["VORLAN_WINDOWS_BUILD"]).resolve()
LIMIT = 120  # seconds for one program: far more than any takes, so that a fault ends the tests all the same
ATTEMPTS = 3  # to have a screen and a system; what runs there has one


class Machine:
    """A Wine prefix. Programs run in it as on a Windows PC of a single user who is administrator."""

    def __init__(self, folder):
        self.folder = folder
        self.server = BUILD / "bin" / "Vorlan.exe"
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith(("WINE", "XDG_"))}
        self.environment |= {"WINEPREFIX": str(folder), "WINEDEBUG": "-all", "HOME": str(folder), "LC_ALL": "C.UTF-8",
                             "TZ": "UTC", "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe="}
        self.keeper = None

    def boot(self):
        """Something that runs all the time keeps the system from going down and coming up again."""
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        self.succeed("wineboot", "--init")
        self.shut_down()  # What it leaves running gets into the way of what runs next.
        self.keep_up()

    def keep_up(self):
        self.keeper = self.start("cmd", "/c", "pause", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def start(self, *words, **options):
        streams = {"stdin": subprocess.PIPE, "stdout": subprocess.PIPE, "stderr": subprocess.DEVNULL, **options}
        return subprocess.Popen(["wine", *map(str, words)], env=self.environment, cwd=self.folder, text=True, **streams)

    def run(self, *words, **variables):
        """Output goes to files: the end of a pipe would have to be waited for until the last process has let go of it."""
        with tempfile.TemporaryFile("w+") as out, tempfile.TemporaryFile("w+", errors="replace") as errors:
            done = subprocess.run(["wine", *map(str, words)], env={**self.environment, **variables}, cwd=self.folder,
                                  stdin=subprocess.DEVNULL, stdout=out, stderr=errors, timeout=LIMIT)
            for file in (out, errors):
                file.seek(0)
            done.stdout, done.stderr = out.read(), errors.read()
            return done

    def succeed(self, *words):
        done = self.run(*words)
        assert done.returncode == 0, f"{words}: {done.returncode}\n{done.stdout}\n{done.stderr}"
        return done.stdout

    def script(self, name, text=None):
        """The script as it runs: what the VBScript tests share stands in front of it."""
        if not name.endswith(".vbs"):
            return windows_path(HERE / name)
        whole = self.folder / name
        text = (HERE / name).read_text() if text is None else text
        whole.write_text("\n".join([(HERE / "check.vbs").read_text(), text, "Finish\n"]))
        return windows_path(whole)

    def cscript(self, name, *words, text=None):
        """A script that an error ends has no last line; the host may call that a success."""
        said = self.succeed("cscript", "//nologo", self.script(name, text), *words)
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
        self.keep_up()
        return lines

    def shut_down(self):
        for switch in ("-k", "-w"):
            subprocess.run(["wineserver", switch], env=self.environment, timeout=LIMIT)
        if self.keeper:
            self.keeper.kill()
            self.keeper.communicate()
            self.keeper = None


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


@pytest.fixture(scope="session")
def display():
    """A screen that nobody sees, for a system that expects one. Its number is whichever is free."""
    for _ in range(ATTEMPTS):
        reading, writing = os.pipe()
        screen = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"], pass_fds=[writing],
                                  stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as chosen:
            number = chosen.readline().strip()
        if number:
            break
        screen.wait()
    else:
        pytest.exit("Xvfb does not start", returncode=1)
    os.environ["DISPLAY"] = ":" + number
    yield
    screen.terminate()
    screen.wait()


@pytest.fixture(scope="session")
def fresh_machine(display):
    machine = Machine(Path(os.environ["WINEPREFIX"]))
    for attempt in range(1, ATTEMPTS + 1):
        try:
            machine.boot()
            break
        except (AssertionError, subprocess.TimeoutExpired) as fault:
            machine.shut_down()
            if attempt == ATTEMPTS:
                pytest.exit(f"Wine does not start: {fault}", returncode=1)
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
