"""A private bus, on which the first call starts the server."""

import os
import subprocess
from pathlib import Path

import pytest
from client import Client, processes_of, wait_until

# With the limits that a session bus has.
CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
 <type>session</type>
 <listen>unix:tmpdir=/tmp</listen>
 <auth>EXTERNAL</auth>
 <servicedir>{folder}</servicedir>
 <policy context="default">
  <allow user="*"/><allow own="*"/><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
 </policy>
 <limit name="max_incoming_bytes">1000000000</limit>
 <limit name="max_outgoing_bytes">1000000000</limit>
 <limit name="max_message_size">1000000000</limit>
 <limit name="max_completed_connections">100000</limit>
 <limit name="max_connections_per_user">100000</limit>
 <limit name="max_replies_per_connection">50000</limit>
</busconfig>
"""


class PrivateBus:
    def __init__(self, folder, server):
        self.server = server
        (folder / "Vorlan.Server.service").write_text(f"[D-BUS Service]\nName=Vorlan.Server\nExec={server} serve\n")
        configuration = folder / "bus.conf"
        configuration.write_text(CONFIGURATION.format(folder=folder))
        self.daemon = subprocess.Popen(
            ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address=1"],
            env={**os.environ, "XDG_CONFIG_HOME": str(folder)},  # what sessions remember for their user stays here
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.address = self.daemon.stdout.readline().strip()

    def environment(self):
        return {**os.environ, "DBUS_SESSION_BUS_ADDRESS": self.address}

    def close(self):
        """Ends the bus, and the server with it."""
        self.daemon.kill()
        self.daemon.wait()
        wait_until(lambda: not processes_of(self.server, self.address))


def start_bus(tmp_path_factory, variable):
    bus = PrivateBus(tmp_path_factory.mktemp("bus"), Path(os.environ[variable]).resolve())
    yield bus
    bus.close()


@pytest.fixture(scope="session")
def bus(tmp_path_factory):
    """A bus with the server that has the probe."""
    yield from start_bus(tmp_path_factory, "VORLAN_PROBE_SERVER")


@pytest.fixture(scope="session")
def plain_bus(tmp_path_factory):
    """A bus with the server as it is installed."""
    yield from start_bus(tmp_path_factory, "VORLAN")


@pytest.fixture
def client(bus):
    client = Client(bus.address)
    yield client
    client.close()


@pytest.fixture
def other_client(bus):
    client = Client(bus.address)
    yield client
    client.close()
