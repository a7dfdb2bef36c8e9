"""tools/run-windows as programs and users see it: run_windows_test.py folder-of-the-build"""
import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

RUN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "run-windows")
DLL = "Numlab.Sig5d.dll"
BUILD = ""


def run(*arguments, **options):
    return subprocess.run((RUN,) + arguments, capture_output=True, text=True, timeout=300, **options)


def mounts():
    with open("/proc/self/mountinfo") as f:
        return sorted(f)


class RunWindows(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="two words ")
        self.addCleanup(shutil.rmtree, self.folder)

    def put(self, *names):
        os.makedirs(self.folder, exist_ok=True)
        for name in names:
            shutil.copy(os.path.join(BUILD, name), self.folder)
        return os.path.join(self.folder, "first_steps.exe")

    def test_folder_made_anew(self):
        """Programs run from any folder, called from anywhere, and from a folder that replaces a deleted one."""
        for _ in range(2):
            program = self.put("first_steps.exe", DLL)
            for cwd in (self.folder, "/"):
                done = run(program, cwd=cwd)
                self.assertEqual((done.returncode, done.stderr), (0, ""))
                self.assertIn("1 2 1 0 2 4 2 0", done.stdout)
            shutil.rmtree(self.folder)
        self.put()

    def test_streams_and_exit_code_are_the_program_s(self):
        done = run(os.path.join(BUILD, "demo.exe"), cwd=self.folder)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (2, "", "usage: demo recording.wav folder\n"))

    def test_leaves_no_mounts(self):
        before = mounts()
        run(self.put("first_steps.exe", DLL))
        self.assertEqual(mounts(), before)

    def test_what_is_missing_is_named(self):
        done = run(self.put("first_steps.exe"))
        self.assertEqual(done.returncode, 53)
        self.assertRegex(done.stderr, rf"\Arun-windows: .*first_steps\.exe needs {DLL}[^\n]*\n\Z")
        done = run(os.path.join(self.folder, "none.exe"))
        self.assertEqual(done.returncode, 127)
        self.assertRegex(done.stderr, r"\Arun-windows: no program .*none\.exe\n\Z")

    def test_server_about_to_end(self):
        """Whenever the last program's server ends, the next program has its own output only, and at once."""
        program = self.put("first_steps.exe", DLL)
        run(program)  # makes Wine's folder
        cache = os.path.join(os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "numlab-sig5d")
        own = tempfile.mkdtemp(dir=cache)
        self.addCleanup(shutil.rmtree, own)
        wine = os.path.join(own, "numlab-sig5d", "wine")
        shutil.copytree(os.path.join(cache, "wine"), wine, symlinks=True, copy_function=os.link)
        for pause in (0, 0.98, 1.02, 1.05, 1.1, 1.2, 1.5, 2, 2.05):
            time.sleep(pause)
            done = run(program, env={**os.environ, "XDG_CACHE_HOME": own, "SIG5D_WINE_LINGER": "1"})
            self.assertEqual((done.returncode, done.stderr), (0, ""))

    @unittest.skipIf(os.path.exists("/usr/lib/wine/wine"), "the system has a Wine of its own")
    def test_without_wine(self):
        done = run(self.put("first_steps.exe", DLL), env={**os.environ, "SIG5D_WINE_ROOT": self.folder})
        self.assertEqual((done.returncode, done.stdout), (127, ""))
        self.assertEqual(done.stderr, "run-windows: no Wine for 32-bit programs; run tools/setup\n")


if __name__ == "__main__":
    BUILD = os.path.abspath(sys.argv.pop())
    unittest.main()
