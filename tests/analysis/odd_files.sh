#!/bin/bash
# Whatever stands in the place of an event file, every reader comes to its end: loading, searching,
# analysing and counting for a graph, each within five seconds and without a crash.
#
# usage: odd_files.sh BENCH-PROGRAM
# What makes endless input ends by its pipe.
set -eu

bench=$1
store=$(mktemp -d)
trap 'rm -rf "$store"' EXIT
mkdir "$store/Data"
file=$store/Data/HOST_system.log
record='error|1/1/2001|1:00:00 AM|source|7|user|computer|message'

make_missing() { :; }
make_empty() { : >"$file"; }
make_folder() { mkdir "$file"; }
make_pipe() { mkfifo "$file"; }
make_loop() { ln -s HOST_system.log "$file"; }
make_dangling() { ln -s nowhere "$file"; }
make_zeros_without_end() { ln -s /dev/zero "$file"; }
make_null() { ln -s /dev/null "$file"; }
make_full() { ln -s /dev/full "$file"; }
make_terminal() { ln -s /dev/tty "$file"; }
make_pages() { ln -s /proc/self/pagemap "$file"; }
make_memory() { ln -s /proc/self/mem "$file"; }
make_kernel_log() { ln -s /proc/kmsg "$file"; }
make_forbidden() { echo "$record" >"$file" && chmod 000 "$file"; }
make_zeros() { head -c 5000000 /dev/zero >"$file"; }
make_noise() { head -c 5000000 /dev/urandom >"$file"; }
make_one_line() { { printf '%s' "$record" && yes x | tr -d '\n' | head -c 200000000; } >"$file"; }
make_only_cr() { yes "" | head -n 1000000 | tr '\n' '\r' >"$file"; }
make_only_lf() { yes "" | head -n 1000000 >"$file"; }
make_without_end() { printf '%s\r\n%s' "$record" "$record" >"$file"; }
make_utf16() { yes "$record" | head -n 10000 | iconv -t UTF-16 >"$file"; }
make_bars() { yes '|' | tr -d '\n' | head -c 5000000 >"$file"; }
make_fields() { yes "$record$(yes '|x' | head -n 1000 | tr -d '\n')" | head -n 2000 >"$file"; }
make_packed() { yes "$record" | head -n 100000 | gzip >"$file"; }
make_short() { yes 'error|1/1/2001' | head -n 100000 >"$file"; }

kinds=$(compgen -A function | grep '^make_')
for kind in $kinds; do
    rm -rf "$file"
    "$kind"
    for command in "load $store HOST" "search $store so" "analyse $store" "graph $store HOST"; do
        status=0
        # shellcheck disable=SC2086
        timeout 5 "$bench" $command </dev/null >/dev/null 2>"$store/said" || status=$?
        if [ "$status" -gt 1 ] || { [ "$status" -eq 1 ] && [ ! -s "$store/said" ]; }; then
            echo "${kind#make_}: $command ends with $status" && cat "$store/said"
            exit 1
        fi
    done
done
echo "$(wc -w <<<"$kinds") kinds of files, each read in four ways"
