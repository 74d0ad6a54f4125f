#!/bin/bash
# The console before the directory of a Windows domain: a domain controller of Samba's in a network
# of its own, found by its DNS, asked under the seal of a Kerberos ticket and without one.
#
# usage: directory_domain.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
# Outside, this script makes the network and starts itself in it.
part=${2:-outside}
readonly address=10.53.0.1 password=Kestrel-4711-over-the-weir
# Nothing of the caller's own realms and tickets gets in.
unset "${!KRB5@}"
PATH=$PATH:/usr/sbin

skip() {
    echo "skipped: $*"
    exit 77
}

# usage: cover FILE; its new content comes from standard input.
cover() {
    local file=$scratch/covers$1
    mkdir -p "${file%/*}"
    cat >"$file"
    [ ! -e "$1" ] || mount --bind "$file" "$1"
}

enter_network() {
    hostname dc01
    ip link set lo up
    ip address add "$address/24" dev lo
    cover /etc/hosts <<<"127.0.0.1 localhost
$address dc01.example.net dc01"
    cover /etc/resolv.conf <<<"nameserver $address"
    cover /etc/nsswitch.conf <<<"passwd: files
group: files
hosts: files dns"
    cover /etc/samba/smb.conf </dev/null
    export KRB5_CONFIG=$scratch/krb5.conf KRB5CCNAME=FILE:$scratch/tickets
    cat >"$KRB5_CONFIG" <<CONFIG
[libdefaults]
    default_realm = EXAMPLE.NET
    dns_lookup_kdc = true
    dns_canonicalize_hostname = false
    rdns = false
CONFIG
}

start_controller() {
    local domain=$scratch/domain
    samba-tool domain provision --realm=EXAMPLE.NET --domain=EXAMPLE --adminpass="$password" \
        --server-role=dc --dns-backend=SAMBA_INTERNAL --host-name=dc01 --host-ip="$address" \
        --targetdir="$domain" --option="dns forwarder =" --option="bind interfaces only = yes" \
        --option="interfaces = lo" &>"$scratch/provision.log" ||
        { tail -5 "$scratch/provision.log"; skip "no domain can be made here"; }
    write_content | ldbadd -H "$domain/private/sam.ldb" >"$scratch/ldbadd.log"
    samba -i -M single -s "$domain/etc/smb.conf" &>"$scratch/samba.log" &
    # It gives itself its names a while after it has come up.
    for _ in $(seq 300); do
        kinit administrator <<<"$password" &>"$scratch/kinit.log" &&
            kvno ldap/dc01.example.net &>>"$scratch/kinit.log" && return
        sleep 0.1
    done
    cat "$scratch/kinit.log" "$scratch/samba.log"
    return 1
}

# usage: write_computers PLACE STEM COUNT
write_computers() {
    local entry="dn: CN=$2&,$1,DC=example,DC=net\nobjectClass: computer\nsAMAccountName: $2&\$\n"
    seq -f '%04g' "$3" | sed "s/.*/$entry/"
}

write_content() {
    printf 'dn: OU=Servers,DC=example,DC=net\nobjectClass: organizationalUnit\n\n'
    write_computers OU=Servers srv 3
    write_computers CN=Computers pc 2500
}

# usage: run_test NAME
run_test() {
    DIRECTORY_DOMAIN=$1 "$bin/network_tests" --gtest_filter="DirectoryDomain.$1" |
        grep -E '^\[ *(OK|FAILED|SKIPPED) *\] Dir|Failure|Actual|Expected|Which'
    [ "${PIPESTATUS[0]}" = 0 ]
}

start_capture() {
    capture=
    command -v tcpdump >/dev/null || return 0
    tcpdump -i lo -U -w "$scratch/capture" port 389 2>"$scratch/tcpdump.log" &
    capture=$!
    for _ in $(seq 50); do
        grep -q '^tcpdump: listening' "$scratch/tcpdump.log" && return
        sleep 0.1
    done
}

# The names went over the wire, and nobody could read them.
check_capture() {
    [ -n "$capture" ] || { echo "left out: the capture, for lack of tcpdump"; return 0; }
    sleep 0.5
    kill "$capture"
    wait "$capture" || true
    [ "$(stat -c %s "$scratch/capture")" -gt 100000 ] || { echo "nothing was captured"; return 1; }
    ! grep -aqE 'pc[0-9]{4}' "$scratch/capture" || { echo "a name could be read"; return 1; }
    echo "no name could be read on the wire"
}

in_network() {
    enter_network
    start_controller
    start_capture
    run_test IsListedAndAdded
    check_capture
    kdestroy -q
    run_test IsNotReadWithoutATicket
    kinit -l 1s administrator <<<"$password" >/dev/null
    sleep 2
    run_test IsNotReadWithAnExpiredTicket
    kinit administrator <<<"$password" >/dev/null
    # The domain's own name is no name that its controller has a key for.
    cover /etc/resolv.conf <<<"nameserver 10.53.0.9"
    cover /etc/hosts <<<"$address example.net dc01.example.net"
    run_test IsNotReadWithoutItsSeal
}

outside() {
    local program
    for program in samba samba-tool ldbadd kinit unshare ip; do
        command -v "$program" >/dev/null || skip "$program is missing"
    done
    [ "$(id -u)" = 0 ] || skip "a domain controller takes root"
    unshare --net --mount --uts --pid --fork true 2>/dev/null || skip "no network can be made here"
    scratch=$(mktemp -d)
    export scratch
    trap 'rm -rf "$scratch"' EXIT
    unshare --net --mount --uts --pid --fork --mount-proc --kill-child "$0" "$bin" in_network
}

"$part"
