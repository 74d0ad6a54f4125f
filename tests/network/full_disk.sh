#!/bin/bash
# Audits a sample host into a store on a small disk that fills up, at forty places of the audit. What
# was in the store before is there afterwards, under the option to append in the event file and under
# the option to move there or in the archive, and the audit log doesn't call it ok unless it is.
#
# usage: full_disk.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
source "$(dirname "$0")/old_store.sh"

if [ "${2:-outside}" = outside ]; then
    unshare --map-root-user --mount mount -t tmpfs none /mnt 2>/dev/null ||
        { echo "skipped: no disk can be made here"; exit 77; }
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    export scratch
    "$bin/tessarine-sample-network" --quiet --only "$host" --desk "$scratch/desk" -- \
        unshare --map-root-user --mount "$0" "$bin" inside
    exit
fi

mkdir "$scratch/disk"
mount -t tmpfs -o size=1M none "$scratch/disk"
use_store "$scratch/disk/store"
full=0
for option in append move; do
    for room in $(seq 0 4 156); do
        new_store
        free=$(df --output=avail -k "$scratch/disk" | tail -n 1)
        head -c "$((free - room))k" /dev/zero >"$scratch/disk/other"
        audit "$option"
        last=$(tail -n 1 "$store"/Logs/*.log | tr -d '\r')
        where="$option with $room KB: $last"
        is_kept || { echo "$where: lost"; exit 1; }
        case $last in
            *"Disk full"*) full=$((full + 1)) ;;
            *" Audit ok") [ "$(wc -l <"$log")" -ge 75 ] || { echo "$where: not true"; exit 1; } ;;
            *) echo "$where: not told" && exit 1 ;;
        esac
        rm "$scratch/disk/other"
        goes_on || { echo "$where: the next audit doesn't go on"; exit 1; }
    done
done
[ "$full" -gt 10 ] || { echo "the disk was full $full times only"; exit 1; }
echo "80 audits on a small disk, $full of them filled it, and nothing was lost"
