"""tools/setup on systems that go wrong, played by stand-ins for apt-get and for the list of what is installed."""
import os
import signal
import subprocess
import tempfile
import time
import unittest

SETUP = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "setup")
INSTALLED = "echo install ok installed"


class Setup(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.root = os.path.join(self.folder, "wine")
        self.calls = os.path.join(self.folder, "calls")
        self.stand_in("id", "echo 0")
        self.stand_in("dpkg", "exit 1")  # such as --add-architecture

    def stand_in(self, name, script):
        path = os.path.join(self.folder, name)
        with open(path, "w") as f:
            f.write(f'#!/bin/sh\necho "{name} $*" >>"{self.calls}"\n{script}\n')
        os.chmod(path, 0o755)

    def start(self, *arguments):
        path = self.folder + os.pathsep + os.environ["PATH"]
        environment = {**os.environ, "PATH": path, "SIG5D_WINE_ROOT": self.root}
        return subprocess.Popen((SETUP,) + arguments, env=environment, stderr=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                text=True, start_new_session=True)

    def run_setup(self, *arguments):
        process = self.start(*arguments)
        errors = process.communicate(timeout=60)[1]
        with open(self.calls) as f:
            return process.returncode, errors, f.read()

    def test_all_is_there(self):
        self.stand_in("dpkg-query", INSTALLED)
        status, errors, calls = self.run_setup("--native")
        self.assertEqual((status, errors), (0, ""))
        self.assertNotIn("apt-get", calls)

    def test_a_list_that_fails_is_a_warning(self):
        self.stand_in("dpkg-query", "exit 1")
        self.stand_in("apt-get", 'case "$*" in *update*) echo "E: Failed to fetch a list" && exit 100 ;; esac')
        status, errors, calls = self.run_setup("--native")
        self.assertEqual(status, 0)
        self.assertIn("E: Failed to fetch a list", errors)
        self.assertRegex(calls, "apt-get .*install .*g[+][+]")
        self.assertNotIn("dpkg ", calls)

    def test_a_failure_says_what_failed(self):
        self.stand_in("dpkg-query", "exit 1")
        self.stand_in("apt-get", 'case "$*" in *install*) echo "E: Unable to locate package" && exit 100 ;; esac')
        status, errors, _ = self.run_setup("--native")
        self.assertEqual(status, 1)
        self.assertRegex(errors, r"\AE: Unable to locate package\nsetup: installing packages failed; [^\n]+\n\Z")

    @unittest.skipIf(os.path.exists("/usr/lib/wine/wine"), "the system has a Wine of its own")
    def test_wine_comes_whole_or_not_at_all(self):
        self.stand_in("dpkg-query", INSTALLED)
        self.stand_in("apt-get", 'case "$*" in *download*) touch half.deb && exit 100 ;; esac')
        status, errors, calls = self.run_setup()
        self.assertEqual(status, 1)
        self.assertIn("setup: fetching Wine failed; ", errors)
        self.assertNotIn("dpkg ", calls)
        self.assertEqual([name for name in os.listdir(self.folder) if name.startswith("wine")], [])

        self.stand_in("apt-get", 'case "$*" in *download*) touch half.deb && sleep 60 ;; esac')
        process = self.start()
        half = os.path.join(self.root + ".new", "half.deb")
        while not os.path.exists(half) and process.poll() is None:
            time.sleep(0.05)
        os.killpg(process.pid, signal.SIGTERM)
        process.communicate(timeout=60)
        self.assertEqual(process.returncode, 1)
        self.assertEqual([name for name in os.listdir(self.folder) if name.startswith("wine")], [])


if __name__ == "__main__":
    unittest.main()
