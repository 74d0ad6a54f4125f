"""Compares a store with the event records that its hosts were given.

usage: check_store.py EVENTS STORE NAME[=STORED-NAME]...

EVENTS holds hosts/NAME.jsonl, STORE holds Data. Counts, order and every field must agree, the times
in UTC in the forms of the C locale. Needs nothing but Python.
"""

import datetime
import json
import pathlib
import sys

# Invisible format characters are dropped, not replaced.
LOST = {0xFEFF, *range(0x200B, 0x2010), *range(0x202A, 0x202F), *range(0x2060, 0x2070)}


def eight_bit(text):
    """The text as the store's code page keeps it."""
    kept = bytearray()
    for character in text or "":
        point = ord(character)
        if point in LOST:
            continue
        try:
            kept += character.encode("cp1252")
        except UnicodeEncodeError:
            kept += bytes([point]) if point in (0x81, 0x8D, 0x8F, 0x90, 0x9D) else b"?"
    return bytes(kept)


def moment(stamp):
    """Date and time of a DMTF text, in UTC."""
    offset = int(stamp[21:])
    local = datetime.datetime.strptime(stamp[:14], "%Y%m%d%H%M%S")
    utc = local - datetime.timedelta(minutes=offset)
    hour = utc.hour % 12 or 12
    half = "AM" if utc.hour < 12 else "PM"
    date = f"{utc.month}/{utc.day}/{utc.year}"
    return date.encode(), f"{hour}:{utc.minute:02}:{utc.second:02} {half}".encode()


def line_of(event):
    date, time = moment(event["TimeGenerated"])
    fields = [
        eight_bit(event["Type"]), date, time, eight_bit(event["SourceName"]),
        str(event["EventCode"]).encode(), eight_bit(event["User"]) or b"N/A",
        eight_bit(event["ComputerName"]), eight_bit(event["Message"]).replace(b"\r\n", b"~"),
    ]
    return b"|".join(fields) + b"\r\n"


def check_host(events, data, name, stored):
    wanted = {"System": [], "Application": [], "Security": []}
    with open(events / "hosts" / f"{name}.jsonl", encoding="utf-8") as lines:
        for line in lines:
            event = json.loads(line)
            wanted[event["LogFile"]].append(line_of(event))
    faults = 0
    for log, records in wanted.items():
        found = (data / f"{stored}_{log.lower()}.log").read_bytes()
        if found == b"".join(records):
            continue
        faults += 1
        pieces = found.split(b"\r\n")
        for number, record in enumerate(records):
            piece = pieces[number] + b"\r\n" if number < len(pieces) else b""
            if piece != record:
                print(f"{name} {log} record {number + 1}:\n  wanted {record!r}\n  found  {piece!r}")
                break
        else:
            print(f"{name} {log}: {len(records)} records wanted, the file holds more")
    counts = ", ".join(f"{log} {len(records)}" for log, records in wanted.items())
    print(f"{name}: {counts}: {'DIFFERENT' if faults else 'equal'}")
    return faults


def main():
    events, store = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    faults = 0
    for pair in sys.argv[3:]:
        name, _, stored = pair.partition("=")
        faults += check_host(events, store / "Data", name, stored or name)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
