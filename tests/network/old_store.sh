# A store with old records of a sample host, for tests that disturb its next audit. To be sourced,
# with $bin for the programs and $scratch for a folder that has the desk in it.

host=BRANCH09
# Events are no UTF-8.
export LC_ALL=C

use_store() {
    store=$1
    log=$store/Data/${host}_system.log
}

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
    rm -rf "${store:?}"/*
    mkdir -p "$store"
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
