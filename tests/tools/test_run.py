"""What ./run starts, with which folders, beside programs that only write down how they were called.

Run by: python3 -B -m unittest discover -s tests/tools
"""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]
# They run what stands after their options.
NETWORK = 'while [ "$1" != -- ]; do shift; done; shift; exec "$@"'
SCREEN = 'while [ "$1" != -s ]; do shift; done; shift 2; exec "$@"'


class RunTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.top = pathlib.Path(folder.name) / "checkout"
        (self.top / "tools").mkdir(parents=True)
        shutil.copy(TOP / "run", self.top)
        self.calls = self.top / "calls"
        programs = self.top / "build/release/bin"
        self.script(self.top / "tools/install-packages", "true")
        self.script(self.top / "bin/cmake", "true")
        self.script(self.top / "bin/xvfb-run", SCREEN)
        self.script(programs / "tessarine-sample-network", NETWORK)
        self.script(programs / "tessarine", "true")
        self.script(programs / "tessarine-tour", "true")
        self.script(self.top / "bin/soffice", "true")
        self.script(self.top / "bin/pdftoppm", 'touch "${@: -1}-1.png"')

    def script(self, path, body):
        path.parent.mkdir(parents=True, exist_ok=True)
        name = path.name
        path.write_text(
            f'#!/bin/bash\necho "{name} data=$XDG_DATA_HOME $*" >>"{self.calls}"\n{body}\n')
        path.chmod(0o755)

    def run_it(self, *options, display=":1"):
        environment = dict(os.environ, PATH=f"{self.top}/bin:{os.environ['PATH']}",
                           XDG_DATA_HOME="/the/users/own")
        environment.pop("WAYLAND_DISPLAY", None)
        environment["DISPLAY"] = display
        self.calls.write_text("")
        run = subprocess.run([self.top / "run", *options], cwd=self.top, env=environment,
                             stdin=subprocess.DEVNULL, capture_output=True, text=True)
        calls = self.calls.read_text().splitlines()
        return run, [call for call in calls if call.startswith("tessarine")]

    def test_a_trial_has_data_of_its_own_and_starts_afresh(self):
        old = self.top / "build/desk/old"
        old.mkdir(parents=True)
        run, calls = self.run_it()
        self.assertEqual(run.returncode, 0, run.stderr)
        desk = self.top / "build/desk"
        self.assertEqual(calls, [
            f"tessarine-sample-network data={desk} --desk {desk}/tessarine -- "
            f"{self.top}/build/release/bin/tessarine",
            f"tessarine data={desk} "])
        self.assertFalse(old.exists())

    def test_a_trial_without_a_display_is_a_tour(self):
        run, calls = self.run_it(display="")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn("no display", run.stdout)
        self.assertTrue(calls[1].endswith(f"--out {self.top}/tour"), calls[1])

    def test_own_leaves_the_users_data_alone(self):
        run, calls = self.run_it("--own")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(calls, ["tessarine data=/the/users/own "])

    def test_the_tour_passes_its_options_to_who_knows_them(self):
        (self.top / "events").mkdir()
        (self.top / "names.txt").write_text("PC1\n")
        for display in (":1", ""):
            with self.subTest(display=display):
                run, calls = self.run_it("--tour", "--hosts", "names.txt", "--events", "events",
                                         display=display)
                self.assertEqual(run.returncode, 0, run.stderr)
                self.assertIn(f"--events {self.top}/events -- ", calls[0])
                self.assertTrue(calls[1].endswith(
                    f" --out {self.top}/tour --hosts {self.top}/names.txt"), calls[1])
                self.assertEqual("virtual screen" in run.stdout, display == "")

    def test_the_tours_workbook_becomes_pictures_where_that_works(self):
        pictures = self.top / "tour"
        pictures.mkdir()
        (pictures / "workbook-9.png").touch()
        run, _ = self.run_it("--tour")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual([path.name for path in pictures.iterdir()], ["workbook-1.png"])
        self.script(self.top / "bin/soffice", "echo why; exit 1")
        run, _ = self.run_it("--tour")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn("No pictures of analysis.xlsx:\nwhy\n", run.stdout)

    def test_refusals_start_nothing(self):
        for options, display in ((("--own",), ""), (("--tour", "--hosts"), ":1"),
                                 (("--tour", "--events", "missing"), ":1"), (("--other",), ":1"),
                                 (("--own", "--build"), ":1")):
            with self.subTest(options=options, display=display):
                run, calls = self.run_it(*options, display=display)
                self.assertNotEqual(run.returncode, 0)
                self.assertTrue(run.stderr)
                self.assertEqual(calls, [])

    def test_a_failed_build_starts_nothing(self):
        self.script(self.top / "bin/cmake", "exit 3")
        run, calls = self.run_it()
        self.assertNotEqual(run.returncode, 0)
        self.assertEqual(calls, [])


if __name__ == "__main__":
    unittest.main()
