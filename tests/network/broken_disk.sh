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
host=BRANCH09
# Events are no UTF-8.
export LC_ALL=C

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

store=$scratch/store
log=$store/Data/${host}_system.log

# usage: audit OPTION [COMMAND-BEFORE...]
audit() {
    local option=$1
    shift
    # The shell tells of a program that was killed.
    {
        "$@" "$bin/tessarine-bench" audit "$store" "$host" --option "$option" \
            --settings "$scratch/desk/settings.db" >/dev/null || true
    } 2>/dev/null
}

new_store() {
    rm -rf "$store"
    mkdir "$store"
    audit append
    local i
    for i in $(seq 300); do
        printf 'error|1/1/2001|1:00:00 AM|old|%s|N/A|X|old\r\n' "$i"
    done >"$log"
    cp "$log" "$scratch/old"
}

has_old_lines() {
    cmp -s -n "$(stat -c %s "$scratch/old")" "$scratch/old" "$1"
}

is_kept() {
    local copy
    has_old_lines "$log" && return
    for copy in "$store"/Archive/*/"${host}_system.log"; do
        has_old_lines "$copy" && return
    done
    return 1
}

# A line that was cut off is ended before the next one, so at most one is broken.
goes_on() {
    audit append
    tail -n 1 "$store"/Logs/*.log | grep -q "$host Audit ok" &&
        [ "$(grep -cv '^\([^|]*|\)\{7\}' "$log")" -le 1 ]
}

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
