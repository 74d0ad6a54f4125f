"""Compares a store with the event records that its hosts were given.

usage: check_store.py EVENTS STORE NAME[=STORED-NAME]...

EVENTS holds hosts/NAME.jsonl, STORE holds Data. Counts, order and every field must agree, the times
in the forms of the C locale and on the host's clock, whose offset from UTC is the one that most of
its records carry. Needs nothing but Python.
"""

import datetime
import json
import pathlib
import statistics
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


def offset_in(stamp):
    """The minutes from UTC that a DMTF text carries."""
    return int(stamp[21:])


def moment(stamp, offset):
    """Date and time of a DMTF text on a clock that is `offset` minutes ahead of UTC."""
    told = datetime.datetime.strptime(stamp[:14], "%Y%m%d%H%M%S")
    local = told + datetime.timedelta(minutes=offset - offset_in(stamp))
    hour = local.hour % 12 or 12
    half = "AM" if local.hour < 12 else "PM"
    date = f"{local.month}/{local.day}/{local.year}"
    return date.encode(), f"{hour}:{local.minute:02}:{local.second:02} {half}".encode()


def line_of(event, offset):
    date, time = moment(event["TimeGenerated"], offset)
    fields = [
        eight_bit(event["Type"]), date, time, eight_bit(event["SourceName"]),
        str(event["EventCode"]).encode(), eight_bit(event["User"]) or b"N/A",
        eight_bit(event["ComputerName"]), eight_bit(event["Message"]).replace(b"\r\n", b"~"),
    ]
    return b"|".join(fields) + b"\r\n"


def check_host(events, data, name, stored):
    wanted = {"System": [], "Application": [], "Security": []}
    with open(events / "hosts" / f"{name}.jsonl", encoding="utf-8") as lines:
        given = [json.loads(line) for line in lines]
    offsets = [offset_in(event["TimeGenerated"]) for event in given]
    offset = statistics.mode(offsets or [0])
    for event in given:
        wanted[event["LogFile"]].append(line_of(event, offset))
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
