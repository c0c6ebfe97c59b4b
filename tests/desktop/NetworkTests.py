"""Nothing of it goes over a network: it does all it does where there is none, and asks the kernel for none."""

import os
import re
import shutil
import subprocess
import unittest

from scaffold import DesktopTest

FAST = {"debugFastCycle": True, "idleMode": "off", "enforcementLevel": "casual"}

#: Becomes a process without any network, not even the loop back to itself.
NO_NETWORK = ("unshare", "--net") if os.geteuid() == 0 else ("unshare", "--user", "--map-current-user", "--net")

SOCKET = re.compile(r"socket\((\w+)")
ADDRESS = re.compile(r"sa_family=(\w+)")

#: Sockets between processes of one machine.
LOCAL = {"AF_UNIX"}


def works(*command):
    return shutil.which(command[0]) and subprocess.run(
        [*command, "true"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode == 0


class NetworkTests(DesktopTest):

    def see_a_break(self, program):
        """The settings by hand, and a whole break."""
        program.logs("→ break at")
        program.second_start()
        self.wait_for_popover()
        self.click_button(program, "Settings")
        self.wait_until_told(program, "Work interval")
        self.wait_for_overlays()
        program.logs("break complete (today: 1)")

    @unittest.skipUnless(works(*NO_NETWORK), "this system allows no network namespace of one's own")
    def test_everything_works_without_any_network(self):
        program = self.start(FAST, wrapper=NO_NETWORK)
        interfaces = f"/proc/{program.pid}/net/dev"
        self.see_a_break(program)
        with open(interfaces, encoding="ascii") as stream:
            names = [line.split(":")[0].strip() for line in stream if ":" in line]
        self.assertEqual(names, ["lo"], "the namespace has more than its own loop")
        self.assertNotIn("etwork", program.log)

    @unittest.skipUnless(works("strace", "-qq", "-o", "/dev/null"), "strace is not installed, or not allowed here")
    def test_it_asks_the_kernel_for_sockets_of_this_machine_only(self):
        calls = os.path.join(self.desktop.folder, "network-calls")
        program = self.start(FAST, wrapper=("strace", "-D", "-f", "-qq", "-e", "trace=%network", "-o", calls))
        self.see_a_break(program)
        program.end()
        with open(calls, encoding="utf-8", errors="replace") as stream:
            text = stream.read()
        self.assertIn("AF_UNIX", SOCKET.findall(text), "nothing was traced")
        self.assertEqual(set(SOCKET.findall(text)) - LOCAL, set())
        self.assertEqual(set(ADDRESS.findall(text)) - LOCAL, set())


if __name__ == "__main__":
    unittest.main()
