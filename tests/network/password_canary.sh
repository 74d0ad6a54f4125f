#!/bin/bash
# Stops an audit at several points and looks for the alternate user's password, and for parts of it,
# in its memory as core files have it (with the command line and the environment), in the files that
# it has open, among them the temporary one, and in all that it writes.
#
# usage: password_canary.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
export SHELL=/bin/sh  # What gdb starts programs with.
skip() {
    echo "skipped: $1"
    exit 77
}
command -v gdb >/dev/null || skip "gdb is missing"
gdb -nx -q --batch -ex run --args true 2>&1 | grep -q "exited normally" ||
    skip "gdb can't run a program here"
"$bin/tessarine-sample-network" --quiet --network private -- true 2>/dev/null ||
    skip "no private network can be made here"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/store" "$scratch/open"

# While the password is in use, when it was handed over, when the sign-in is over, between the two
# walks, and at the end. Nothing is called in the program: that writes its registers, and some
# processors have more of them than gdb knows.
cat >"$scratch/commands" <<COMMANDS
set debuginfod enabled off
set breakpoint pending on
tbreak gss_acquire_cred_with_password
run audit $scratch/store WEBSRV02 --settings $scratch/desk/settings.db >$scratch/output 2>&1
gcore $scratch/core.in-use
tbreak gss_init_sec_context
continue
gcore $scratch/core.handed-over
tbreak gss_wrap
continue
gcore $scratch/core.signed-in
tbreak tessarine::EventSpool::start_over
continue
gcore $scratch/core.between
python gdb.execute("shell for f in /proc/%d/fd/*; do [ ! -f \$f ] || cp \$f $scratch/open; done" % gdb.selected_inferior().pid)
catch syscall exit_group
continue
gcore $scratch/core.at-the-end
kill
COMMANDS
"$bin/tessarine-sample-network" --quiet --network private --only WEBSRV02 \
    --desk "$scratch/desk" -- \
    gdb -nx -q --batch -x "$scratch/commands" "$bin/tessarine-bench" >"$scratch/gdb" 2>&1 ||
    { cat "$scratch/gdb"; exit 1; }

python3 - "$scratch" <<'PYTHON'
import pathlib
import sys

# A block that was given back loses its first bytes at once, so parts are looked for.
PASSWORD = "Kestrel-4711-over-the-weir"
PART = 8
parts = [PASSWORD[i:i + PART] for i in range(len(PASSWORD) - PART + 1)]
sought = {part.encode(encoding) for part in parts for encoding in ("utf-8", "cp1252", "utf-16-le")}

scratch = pathlib.Path(sys.argv[1])
files = {path.relative_to(scratch).as_posix(): path.read_bytes()
         for path in scratch.rglob("*") if path.is_file()}
found = {name for name, content in files.items() if any(part in content for part in sought)}
cores = [name for name in files if name.startswith("core.")]
print(f"{len(files)} files with {sum(map(len, files.values()))} bytes, {len(cores)} of them cores; "
      f"found in: {', '.join(sorted(found))}")
assert len(cores) == 5 and all(b"auditor" in files[name] for name in cores), "a core is missing"
assert b'"outcome": "ok"' in files["output"], files["output"]
assert any(len(files[name]) > 100_000 for name in files if name.startswith("open/"))
assert "core.in-use" in found, "the search finds nothing at all"
sys.exit(found != {"core.in-use"})
PYTHON
