#!/usr/bin/python3
"""Analysis, search and graph of real event records, counted a second time by plain means.

usage: sample_events.py BENCH FOLDER
BENCH is the program tessarine-bench, FOLDER holds a file of events for each host. Exit status 77
when the folder isn't there.
"""

import json
import pathlib
import subprocess
import sys
import tempfile

LOGS = ("system", "application", "security")
# Type, icon, and how a line starts that the chart counts, in the order of its columns.
EVENT_TYPES = (("error", 4, "err"), ("information", 3, "inf"), ("warning", 2, "war"))
AUDIT_TYPES = (("audit failure", 5, "audit failure"), ("audit success", 6, "audit success"))
TYPES = {"system": EVENT_TYPES, "application": EVENT_TYPES, "security": AUDIT_TYPES}
ALERTS = ("4624", "7036", "4656")
NEEDLES = ("", "e", "ERROR", "Logon Type", "svchost.exe", "nt authority system", "a|b", "4656",
           "®", "no such text anywhere", " - ")


def write_store(events, data):
    """A line of eight fields for each event. A lone line end in a message breaks its line."""
    data.mkdir()
    for file in events.glob("*.jsonl"):
        lines = {log: [] for log in LOGS}
        for event in map(json.loads, file.read_text("utf-8").splitlines()):
            time = event["TimeGenerated"]
            message = (event["Message"] or "-").replace("\r\n", "~").replace("\u200e", "")
            fields = (event["Type"], time[:8], time[8:14], event["SourceName"],
                      str(event["EventCode"]), event["User"] or "-", event["ComputerName"], message)
            lines[event["LogFile"].lower()].append("|".join(fields) + "\r\n")
        for log in LOGS:
            text = "".join(lines[log]).encode("cp1252", "replace")
            (data / f"{file.stem}_{log}.log").write_bytes(text)


def lines_of(data, log, host="*"):
    """All lines of a log, files as the folder lists them."""
    for file in data.iterdir():
        if file.match(f"{host}_{log}.log"):
            text = file.read_bytes().decode("cp1252")
            yield from text.replace("\r\n", "\n").replace("\r", "\n").split("\n")[:-1]


def icon_of(log, line):
    return next((icon for word, icon, _ in TYPES[log] if line.split("|")[0].lower() == word), 0)


def analysed(data, log):
    table, icon = {}, 0
    chart = [0] * len(TYPES[log])
    for line in lines_of(data, log):
        fields = line.split("|")
        icon = icon_of(log, line) or icon
        for column, (_, _, start) in enumerate(TYPES[log]):
            chart[column] += line.lower().startswith(start)
        if len(fields) < 5:
            for row in table.values():
                row[1] += 1
        else:
            row = table.setdefault(fields[4].lower(), [fields[4], 0, fields[3], icon])
            row[1] += 1
    return {"table": list(table.values()), "chart": chart}


def found(data, log, needle):
    """Rows of the table behind a search, as [icon, red]."""
    rows = []
    for line in lines_of(data, log):
        if not line or needle.lower() not in line.replace("|", " ").lower():
            continue
        icon, fields = icon_of(log, line), line.split("|")
        if icon:
            rows.append([icon, False])
        if rows and (len(fields) < 5 or fields[4] in ALERTS):
            rows[-1][1] = True
    return rows


def graphed(data, log, host):
    icons = [icon_of(log, line) for line in lines_of(data, log, host)]
    return [icons.count(icon) for _, icon, _ in TYPES[log]]


class Bench:
    def __init__(self, program, store, alerts):
        self.program, self.store, self.alerts = program, store, alerts

    def __call__(self, command, *words):
        call = [self.program, command, self.store, *words]
        return json.loads(subprocess.run(call, check=True, capture_output=True).stdout)

    def search(self, needle):
        return self("search", needle, "--alerts", self.alerts)


def comparisons(bench, data):
    """What is compared, what was expected, and what came."""
    summary = bench("analyse")
    for log in LOGS:
        yield f"analysis of {log}", analysed(data, log), summary[log]
    for needle in NEEDLES:
        hits = {log: found(data, log, needle) for log in LOGS}
        screen = bench.search(needle)
        yield f"rows of {needle!r}", {log: len(hits[log]) for log in LOGS}, screen["rows"]
        yield (f"red rows of {needle!r}", {log: sum(red for _, red in hits[log]) for log in LOGS},
               screen["red"])
        counts = {log: {str(icon): [each for each, _ in hits[log]].count(icon)
                        for icon, _ in hits[log]} for log in LOGS}
        yield f"icons of {needle!r}", counts, screen["icons"]
        shown = f"Showing {sum(map(len, hits.values()))} records"
        yield f"words of {needle!r}", shown, screen["panel3"]
    for host in sorted({file.name.rsplit("_", 1)[0] for file in data.iterdir()}):
        graph = bench("graph", host)
        for log in LOGS:
            yield f"graph of {host}, {log}", graphed(data, log, host), graph[log]


def main(program, folder):
    events = pathlib.Path(folder)
    if not events.is_dir():
        print(f"skipped: there are no sample events in {events}")
        return 77
    wrong = done = 0
    with tempfile.TemporaryDirectory() as store:
        data = pathlib.Path(store) / "Data"
        write_store(events, data)
        alerts = pathlib.Path(store) / "alerts"
        alerts.write_text("\n".join(ALERTS) + "\n")
        for what, expected, actual in comparisons(Bench(program, store, alerts), data):
            done += 1
            if expected != actual:
                wrong += 1
                print(f"{what}\n  expected: {expected}\n  actual:   {actual}")
    print(f"{done} comparisons, {wrong} of them differ")
    return 1 if wrong or not done else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
