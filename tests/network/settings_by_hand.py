#!/usr/bin/python3
"""The settings dialog as a user works it: the console in a real window on a virtual screen, and
keys that go through the window system. A page of the dialog is saved, and the console killed as
soon as the store has the last value; a second console has it, saves it again, and is looked
through for the password, which none of its windows, no core file and no file may hold.

usage: settings_by_hand.py BIN-DIRECTORY
Exit status 77 when it can't be done here.
"""

import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

USER = r"LAB\anna"
PASSWORD = "Kestrel-4711-over-the-weir"
PART = 8
PATIENCE = 20


def wait_for(what, look):
    for _ in range(PATIENCE * 20):
        found = look()
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"no {what}")


class Screen:
    def __init__(self):
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "1400x900x24"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.name = ":" + self.server.stdout.readline().decode().strip()

    def xdotool(self, *words):
        return subprocess.run(["xdotool", *words], env={**os.environ, "DISPLAY": self.name},
                              capture_output=True, text=True).stdout.split()

    def keys(self, *keys):
        for key in keys:
            self.xdotool("key", key)
            # As fast as nobody types, so that the window may paint in between.
            time.sleep(0.2)

    def focus(self, process, title):
        """Gives the keys to the process's window of that title, which may be still to come."""
        def give():
            for window in self.xdotool("search", "--all", "--onlyvisible", "--name",
                                       "--pid", str(process.pid), title):
                self.xdotool("windowfocus", "--sync", window)
                if self.xdotool("getwindowfocus") == [window]:
                    return True
            return False
        wait_for(f"window {title}", give)


def values(desk):
    """The stored values by their names; none while the store is still to be made."""
    try:
        with sqlite3.connect(f"file:{desk}/settings.db?mode=ro", uri=True) as store:
            return {name.rsplit("\\", 1)[1]: bytes(data).rstrip(b"\0") if isinstance(data, bytes)
                    else data.rstrip("\0").encode("latin-1")
                    for name, data in store.execute("SELECT name, data FROM value")}
    except sqlite3.OperationalError:
        return {}


def open_credentials(screen, console):
    screen.focus(console, "^Tessarine")
    screen.keys("alt+p", "Up", "Return")
    screen.focus(console, "^Settings$")
    screen.keys("ctrl+Tab")


def look_for_password(content, where):
    for i in range(len(PASSWORD) - PART + 1):
        for encoding in ("cp1252", "utf-16-le"):
            part = PASSWORD[i:i + PART].encode(encoding)
            assert part not in content, f"a part of the password is in {where}"


def look_into(process, scratch):
    """Looks through the process's memory, as a core file has it; its size."""
    core = pathlib.Path(scratch, "core")
    subprocess.run(["gdb", "-nx", "-q", "--batch", "-p", str(process.pid), "-ex", f"gcore {core}"],
                   capture_output=True)
    if not core.exists():
        return 0
    content = core.read_bytes()
    core.unlink()
    assert USER.encode("utf-16-le") in content, "the core lacks what a field shows"
    look_for_password(content, "the memory")
    return len(content)


def work(screen, desk, scratch, start):
    first = start()
    open_credentials(screen, first)
    screen.keys("space", "Tab")
    screen.xdotool("type", "--delay", "40", USER)
    screen.keys("Tab")
    screen.xdotool("type", "--delay", "40", PASSWORD)
    screen.keys("Tab", "space")
    wait_for("saved credentials", lambda: "usealtcred" in values(desk))
    looked = look_into(first, scratch)
    first.kill()
    first.wait()
    saved = values(desk)
    assert saved["altuser"] == USER.encode(), saved
    assert saved["usealtcred"] == b"true", saved
    assert len(saved["altpass"]) == len(PASSWORD), saved

    # The second console has them from the store, and writes what it has.
    with sqlite3.connect(desk / "settings.db") as store:
        store.execute("DELETE FROM value WHERE name LIKE '%usealtcred'")
    store.close()
    second = start()
    open_credentials(screen, second)
    screen.keys("space", "Tab", "Tab", "Tab", "space")
    wait_for("saved credentials", lambda: "usealtcred" in values(desk))
    assert values(desk) == saved, (values(desk), saved)
    looked += look_into(second, scratch)
    second.kill()
    second.wait()
    for file in pathlib.Path(scratch).rglob("*"):
        if file.is_file():
            look_for_password(file.read_bytes(), file)
    print(f"credentials saved, killed and loaded again; no password in {looked} bytes of memory"
          if looked else "credentials saved, killed and loaded again; memory can't be looked at")


def main(binaries):
    for program in ("Xvfb", "xdotool", "gdb"):
        if shutil.which(program) is None:
            print(f"skipped: {program} is missing")
            return 77
    screen = Screen()
    with tempfile.TemporaryDirectory() as scratch:
        environment = {**os.environ, "DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb",
                       "XDG_DATA_HOME": scratch, "XDG_RUNTIME_DIR": scratch, "LC_ALL": "C"}
        environment.pop("WAYLAND_DISPLAY", None)
        consoles = []

        def start():
            consoles.append(subprocess.Popen([f"{binaries}/tessarine"], env=environment))
            return consoles[-1]

        try:
            work(screen, pathlib.Path(scratch, "tessarine"), scratch, start)
        finally:
            for console in consoles:
                console.kill()
            screen.server.kill()
            screen.server.wait()
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
