#!/bin/bash
# Audits a sample host while calls of the system on one of its event files fail, or the program is
# killed at them: each call in turn. What was in the store before is there afterwards, under the
# option to append in the event file and under the option to move there or in the archive; the audit
# log has no more than a line an audit; and the next audit goes on.
#
# usage: broken_disk.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
source "$(dirname "$0")/old_store.sh"

if [ "${2:-outside}" = outside ]; then
    command -v strace >/dev/null || { echo "skipped: strace is missing"; exit 77; }
    strace -qq -o /dev/null true 2>/dev/null || { echo "skipped: strace is not allowed"; exit 77; }
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    export scratch
    "$bin/tessarine-sample-network" --quiet --only "$host" --desk "$scratch/desk" -- \
        "$0" "$bin" inside
    exit
fi

use_store "$scratch/store"
failures=0
for option in append move; do
    for failure in error=EIO signal=KILL; do
        for call in newfstatat openat read write fdatasync ftruncate fstat pread64 close flock; do
            for number in 1 2 3; do
                new_store
                audit "$option" strace -f -qq -o "$scratch/trace" -P "$log" -e "trace=$call" \
                    -e "inject=$call:$failure:when=$number"
                grep -q 'INJECTED\|killed by SIGKILL' "$scratch/trace" || break
                failures=$((failures + 1))
                where="$option, $failure in $call, time $number"
                is_kept || { echo "$where: lost"; exit 1; }
                [ "$(wc -l <"$store"/Logs/*.log)" -le 2 ] ||
                    { echo "$where: more than one line an audit"; exit 1; }
                goes_on || { echo "$where: the next audit doesn't go on"; exit 1; }
            done
        done
    done
done
[ "$failures" -gt 40 ] || { echo "only $failures failures"; exit 1; }
echo "$failures calls failed or ended the program, and nothing was lost"
