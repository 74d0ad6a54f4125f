#!/bin/bash
# Captures whole audits on loopback, with NTLM, Kerberos and TLS, and looks for what must not be in
# the captures: texts of the messages that arrived in the store, and the password.
#
# usage: capture_test.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
part=${2:-outside}
if [ "$part" = outside ]; then
    scratch=$(mktemp -d)
    export scratch
    trap 'rm -rf "$scratch"' EXIT
fi
source "$(dirname "$0")/kerberos_realm.sh"

# usage: capture NAME HOST
capture() {
    tcpdump -i lo -s 0 -U -Z "$(id -un)" -w "$scratch/$1.capture" 2>"$scratch/tcpdump" &
    local tcpdump=$!
    for _ in $(seq 100); do
        grep -q "listening on" "$scratch/tcpdump" && break
        sleep 0.1
    done
    mkdir "$scratch/$1"
    "$bin/tessarine-bench" audit "$scratch/$1" "$2" --settings "$scratch/desk/settings.db"
    sleep 0.5
    kill "$tcpdump"
    wait "$tcpdump"
}

in_network() {
    capture ntlm FILESRV01
    capture tls GATEWAY01
    [ -f "$keytab" ] || return 0
    start_kdc
    take_ticket keeper
    use_ticket
    capture kerberos BERLIN01
}

use_ticket() {
    python3 - "$scratch/desk/settings.db" <<'PYTHON'
import sqlite3
import sys

with sqlite3.connect(sys.argv[1]) as database:
    database.execute("UPDATE value SET data = ? WHERE name LIKE '%usealtcred'", (b"false\0",))
PYTHON
}

outside() {
    command -v tcpdump >/dev/null || { echo "skipped: tcpdump is missing"; exit 77; }
    network=("$bin/tessarine-sample-network" --quiet --network private --keytab "$keytab")
    if ! "${network[@]}" --desk "$scratch/desk" -- true; then
        echo "skipped: no private network can be made here"
        exit 77
    fi
    if has_realm_programs; then make_realm berlin01; else echo "left out: Kerberos"; fi
    "${network[@]}" -- "$0" "$bin" in_network
    local file
    for file in "$scratch"/*.capture; do look_into "$(basename "$file" .capture)"; done
}

look_into() {
    python3 - "$scratch" "$1" <<'PYTHON'
import pathlib
import re
import sys

scratch, name = pathlib.Path(sys.argv[1]), sys.argv[2]
capture = (scratch / f"{name}.capture").read_bytes()
stored = b"".join(path.read_bytes() for path in (scratch / name / "Data").iterdir())
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
print(f"{name}: {len(capture)} bytes captured, {len(words)} texts of {len(stored)} bytes looked "
      f"for, {len(found)} found")
assert len(capture) > len(stored) > 100_000, "nothing was captured"
assert (b"Authorization: Negotiate" in capture) == (name != "tls"), "not what was to be captured"
assert b": Basic" not in capture, "a password was asked for"
# The names of the hosts are in clear, in the Host line and in the sign-in.
host = re.compile(rb"FILESRV01|BERLIN01|GATEWAY01")
clear = [word for word in found if not host.search(word.replace(b"\0", b""))]
sys.exit(f"in clear: {clear[:5]}" if clear else 0)
PYTHON
}

"$part"
