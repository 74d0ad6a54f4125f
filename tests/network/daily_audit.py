#!/usr/bin/python3
"""The daily audit with nobody at the window: a settings store that is written by hand sets it to
the present minute, and the console that is started on it audits sample hosts, reports and mails.

What comes out is compared with a count of its own over the stored files, and the mail with the
report.

usage: daily_audit.py BIN-DIRECTORY
Exit status 77 when it can't be done here.
"""

import datetime
import email
import email.policy
import os
import pathlib
import sqlite3
import subprocess
import sys
import tempfile
import time

HOSTS = ["berlin01", "NOTEBOOK23", "VAULT01", "kiosk07"]
CODES = ["4625", "7034", "1000"]
PASSWORD = b"Kestrel-4711-over-the-weir"
PATIENCE = 120


def write_settings(database, settings):
    with sqlite3.connect(database) as store:
        key = next(name for name, in store.execute("SELECT name FROM value")
                   if name.endswith("\\altuser")).removesuffix("altuser")
        kind, = store.execute("SELECT type FROM value").fetchone()
        for name, text in settings.items():
            store.execute("REPLACE INTO value (name, type, data) VALUES (?, ?, ?)",
                          (key + name, kind, text.encode("cp1252") + b"\0"))
    store.close()


def prepare(desk):
    (desk / "hosts-of-the-day.txt").write_text("\n".join(HOSTS) + "\n")
    (desk / "alertpatterns.txt").write_bytes("".join(f"{c}\r\n\r\n" for c in CODES).encode())
    # The run needs its folder, which the first audit would make.
    (desk / "Logs").mkdir()
    now = datetime.datetime.now()
    if now.second > 30:
        now += datetime.timedelta(minutes=1)
    write_settings(desk / "settings.db", {
        "autoauditat": f"{now:%H:%M}", "autohostlist": str(desk / "hosts-of-the-day.txt"),
        "autosendmail": "true", "enscheaudit": "true", "autoretlogsolderthan": "0",
        "LogPath": f"{desk}/", "AuditOpt": "overwrite",
        "mailto": "one@sample.example;two@sample.example"})


def await_mail(folder, console):
    for _ in range(PATIENCE * 10):
        mails = list(folder.glob("*"))
        if mails:
            return mails
        assert console.poll() is None, "the console has ended"
        time.sleep(0.1)
    raise AssertionError("no mail")


def expected_report(desk):
    lines = []
    for host in (name.upper() for name in HOSTS):
        lines += ["#############", " "]
        if host == "NOTEBOOK23":
            lines.append(f"{host}  - Error: Host Down or Remote Port Blocked")
            continue
        if host == "VAULT01":
            lines.append(f"{host}  - Error: Audit Error - ")
            continue
        lines.append(f"{host}  - Ok: Audit Success")
        for log, begin, before_host in (("system", "Sys", "  "), ("application", "App", "  "),
                                        ("security", "Sec", "   ")):
            for line in (desk / "Data" / f"{host}_{log}.log").read_bytes().splitlines():
                field = line.decode("cp1252").split("|")
                if field[4] in CODES:
                    lines.append(f"{begin} Event {field[1]} {field[2]}  >>Event:{field[4]}"
                                 f"{before_host}>>Host: {field[6]}")
    return lines


def check(desk, mails):
    report, = (desk / "Logs").glob("*_AutoAudit.log")
    lines = report.read_bytes().decode("cp1252").split("\r\n")
    assert lines.pop() == "", "the report doesn't end in a line end"
    expected = expected_report(desk)
    assert len(lines) == len(expected), (len(lines), len(expected))
    for line, begin in zip(lines, expected):
        assert line == begin or ("Audit Error" in begin and line.startswith(begin)), (line, begin)
    alerts = sum(" Event " in line for line in expected)
    assert alerts > 0, "no alert to look for"

    mail_file, = mails
    mail = email.message_from_bytes(mail_file.read_bytes(), policy=email.policy.default)
    assert mail["Subject"] == "Tessarine-Pattern Match Alert", mail["Subject"]
    assert mail["X-RcptTo"] == "one@sample.example, two@sample.example", mail["X-RcptTo"]
    attachment, = mail.iter_attachments()
    assert attachment.get_filename() == report.name
    assert attachment.get_payload(decode=True) == report.read_bytes()
    assert mail.get_body().get_content().startswith(
        "Tessarine Auto Audit Report. Message Sent at : ")
    for file in desk.rglob("*"):
        assert not file.is_file() or PASSWORD not in file.read_bytes(), file
    for made in [desk / "settings.db", *(file for name in ("Data", "Logs", "Archive")
                                         for file in (desk / name).rglob("*"))]:
        assert made.stat().st_mode & 0o077 == 0, made
    print(f"{alerts} alerts of {len(HOSTS)} hosts reported and mailed")


def main(binaries):
    if not os.path.exists("/usr/bin/aiosmtpd"):
        print("skipped: aiosmtpd is missing")
        return 77
    with tempfile.TemporaryDirectory() as scratch:
        desk = pathlib.Path(scratch, "tessarine")
        network = [f"{binaries}/tessarine-sample-network", "--quiet", "--network", "private",
                   # The run takes what is of today and later.
                   "--today", "2099-12-28",
                   "--only", ",".join(name.upper() for name in HOSTS), "--desk", str(desk), "--"]
        refused = subprocess.run([*network, "true"], capture_output=True, text=True)
        if refused.returncode != 0:
            print("skipped:", refused.stderr)
            return 77
        prepare(desk)
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_DATA_HOME": scratch,
                       "XDG_RUNTIME_DIR": scratch, "LC_ALL": "C"}
        console = subprocess.Popen([*network, f"{binaries}/tessarine"], env=environment,
                                   umask=0)
        try:
            check(desk, await_mail(desk / "mail" / "new", console))
        finally:
            console.terminate()
            console.wait(30)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
