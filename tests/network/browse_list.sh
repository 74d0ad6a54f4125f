#!/bin/bash
# The groups and servers of a network that this script makes: a Samba server behind one interface,
# which keeps the browse list of SMB 1, and behind another one a computer that answers
# WS-Discovery (wsdd).
#
# usage: browse_list.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
part=${2:-outside}
PATH=$PATH:/usr/sbin:/sbin

skip() {
    echo "skipped: $*"
    exit 77
}

failures=0

# usage: expect PART-OF-OUTPUT COMMAND...
expect() {
    local result
    result=$("${@:2}" 2>&1) || true
    if grep -qF "$1" <<<"$result"; then
        echo "passed: ${*:2} gives $1"
    else
        echo "FAILED: ${*:2} gives no $1:" && echo "$result"
        failures=$((failures + 1))
    fi
}

# usage: make_link NAMESPACE NETWORK; this side has the address NETWORK.1, the other one NETWORK.2.
make_link() {
    ip netns add "$1"
    ip link add "$1-here" type veth peer name "$1" netns "$1"
    ip addr add "$2.1/24" brd + dev "$1-here"
    ip link set "$1-here" up
    ip -n "$1" addr add "$2.2/24" brd + dev "$1"
    ip -n "$1" link set lo up
    ip -n "$1" link set "$1" up
}

write_samba_configuration() {
    mkdir -p "$scratch"/{lock,state,cache,private,pid,rpc}
    cat >"$scratch/smb.conf" <<CONFIG
[global]
    workgroup = OFFICE
    netbios name = FILESRV
    netbios aliases = PC8
    server string = files of the office
    interfaces = smb
    bind interfaces only = yes
    name resolve order = bcast
    server min protocol = NT1
    preferred master = yes
    os level = 200
    map to guest = bad user
    load printers = no
    lock directory = $scratch/lock
    state directory = $scratch/state
    cache directory = $scratch/cache
    private dir = $scratch/private
    pid directory = $scratch/pid
    ncalrpc dir = $scratch/rpc
    log file = $scratch/log
CONFIG
}

# Each is the first of its process group, which it ends as a whole.
start_samba() {
    write_samba_configuration
    for daemon in nmbd smbd; do
        ip netns exec smb setsid "$daemon" --foreground --no-process-group \
            --configfile="$scratch/smb.conf" >"$scratch/$daemon" 2>&1 &
        daemons+=($!)
    done
}

stop_daemons() {
    kill "${daemons[@]}" 2>/dev/null || true
    wait "${daemons[@]}" 2>/dev/null || true
}

browse() {
    timeout 20 "$bin/tessarine-bench" browse "$@"
}

has_group() {
    browse 2>/dev/null | grep -q "^$1"
}

# The daemon tells its log when it has won the election, which takes about half a minute; it answers
# for its group some seconds after that.
wait_for_samba() {
    for _ in $(seq 60); do
        sleep 1
        if grep -qs "is now a local master browser" "$scratch/log"; then break; fi
    done
    sleep 5
}

test_samba() {
    if ! command -v nmbd >/dev/null || ! command -v smbd >/dev/null; then
        echo "left out: the browse list of SMB 1, for lack of samba"
        return
    fi
    make_link smb 10.99.1
    start_samba
    wait_for_samba
    expect OFFICE browse
    expect "FILESRV	files of the office" browse OFFICE
    expect PC8 browse office
    expect "No computer of the group NOWHERE has answered" browse NOWHERE
}

test_wsdd() {
    if ! command -v wsdd >/dev/null; then
        echo "left out: WS-Discovery, for lack of wsdd"
        return
    fi
    make_link wsd 10.99.2
    ip netns exec wsd wsdd -4 -i wsd -n PC7 -w LAB >"$scratch/wsdd" 2>&1 &
    daemons+=($!)
    for _ in $(seq 5); do has_group LAB && break; done
    expect LAB browse
    expect PC7 browse lab
}

in_network() {
    daemons=()
    trap stop_daemons EXIT
    # The names of network namespaces, and what daemons keep.
    mount -t tmpfs none /run
    mkdir /run/samba
    ip link set lo up
    expect "This machine has no network to search" browse
    test_wsdd
    test_samba
    stop_daemons
    expect "No group of the network is seen" browse
    exit "$((failures > 0))"
}

outside() {
    [ "$(id -u)" = 0 ] || skip "only root can make networks of several machines"
    command -v ip >/dev/null || skip "iproute2 is missing"
    unshare --net --mount true 2>/dev/null || skip "no network can be made here"
    scratch=$(mktemp -d)
    # Samba reads its own files as nobody where a guest asks.
    chmod 755 "$scratch"
    export scratch
    trap 'rm -rf "$scratch"' EXIT
    unshare --net --mount --pid --fork --mount-proc "$0" "$bin" in_network
}

"$part"
