#!/bin/bash
# Whether the console's program is hard to misuse: where it lies in memory is unknown, its tables
# can't be written once it runs, its stacks are watched, and it takes libraries from the system alone.
#
# usage: hardened.sh PROGRAM
set -euo pipefail

program=$1
fail() {
    echo "$program: $*" >&2
    exit 1
}

header=$(readelf -W -h "$program")
dynamic=$(readelf -W -d "$program")
segments=$(readelf -W -l "$program")
symbols=$(readelf -W --dyn-syms "$program")
grep -q 'Type: *DYN' <<<"$header" || fail "is at a fixed place"
grep -q 'BIND_NOW\|FLAGS.*NOW' <<<"$dynamic" || fail "binds late"
grep -q 'GNU_RELRO' <<<"$segments" || fail "has tables that can be written"
grep -q 'GNU_STACK .* RW ' <<<"$segments" || fail "has a stack that can be run"
grep -q '__stack_chk_fail' <<<"$symbols" || fail "has stacks that nobody watches"
grep -q 'RUNPATH\|RPATH' <<<"$dynamic" && fail "looks for libraries elsewhere"
# Copies are checked only where the compiler optimises.
[ "${2:-}" != Debug ] || exit 0
grep -q '_chk@' <<<"$symbols" || fail "has copies that nobody checks"
