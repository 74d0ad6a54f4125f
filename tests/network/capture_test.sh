#!/bin/bash
# Captures one audit on loopback and looks for what must not be in the capture: texts of the
# messages that arrived in the store, and the password.
#
# usage: capture_test.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
if ! command -v tcpdump >/dev/null; then
    echo "skipped: tcpdump is missing"
    exit 77
fi
if ! "$bin/tessarine-sample-network" --quiet --network private -- true 2>/dev/null; then
    echo "skipped: no private network can be made here"
    exit 77
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export scratch bin

"$bin/tessarine-sample-network" --quiet --network private --desk "$scratch/desk" -- bash -euc '
    tcpdump -i lo -s 0 -U -Z "$(id -un)" -w "$scratch/capture" "port 5985" 2>"$scratch/tcpdump" &
    for _ in $(seq 100); do
        grep -q "listening on" "$scratch/tcpdump" && break
        sleep 0.1
    done
    mkdir "$scratch/store"
    "$bin/tessarine-bench" audit "$scratch/store" FILESRV01 --settings "$scratch/desk/settings.db"
    sleep 0.5
    kill %1
    wait
'

python3 - "$scratch" <<'PYTHON'
import pathlib
import re
import sys

scratch = pathlib.Path(sys.argv[1])
capture = (scratch / "capture").read_bytes()
stored = b"".join(path.read_bytes() for path in (scratch / "store" / "Data").iterdir())
WIDTH = 8
words = {part for line in stored.split(b"\r\n") for part in re.split(rb"[|~]", line)}
words = {word for word in words if len(word) >= WIDTH}
secret = b"Kestrel-4711-over-the-weir"
wide = {word.decode("cp1252", "replace").encode("utf-16-le") for word in words | {secret}}
sought = words | wide | {secret}
# Only a text whose first bytes are somewhere in the capture can be there as a whole.
starts = {word[:WIDTH] for word in sought}
seen = {capture[i:i + WIDTH] for i in range(len(capture)) if capture[i:i + WIDTH] in starts}
found = [word for word in sought if word[:WIDTH] in seen and word in capture]
print(f"{len(capture)} bytes captured, {len(words)} texts of {len(stored)} bytes looked for, "
      f"{len(found)} found")
assert len(capture) > len(stored) > 100_000 and b"/wsman" in capture, "nothing was captured"
# The names of the hosts are in clear, in the Host line and in the sign-in.
clear = [word for word in found if b"FILESRV01" not in word.replace(b"\0", b"")]
sys.exit(f"in clear: {clear[:5]}" if clear else 0)
PYTHON
