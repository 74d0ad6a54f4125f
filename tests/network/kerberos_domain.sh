#!/bin/bash
# Audits sample hosts in a Kerberos domain of their own: who gets in and by what, and what the
# console says to everybody else.
#
# usage: kerberos_domain.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

# Outside, this script makes the realm and starts itself in the sample network, of which it is then
# a part: once with hosts that have the right time, once with hosts whose clocks are ahead.
part=${2:-outside}
bin=$1
if [ "$part" = outside ]; then
    scratch=$(mktemp -d)
    export scratch
    trap 'rm -rf "$scratch"' EXIT
fi
source "$(dirname "$0")/kerberos_realm.sh"

# usage: write_settings NAME USER [PASSWORD]; the running user where USER is empty.
write_settings() {
    cp "$scratch/desk/settings.db" "$scratch/$1.db"
    python3 - "$scratch/$1.db" "${@:2}" <<'PYTHON'
import sqlite3
import sys

path, user, *password = sys.argv[1:]
values = {"altuser": user, "usealtcred": "true" if user else "false"}
if password:
    values["altpass"] = password[0]
with sqlite3.connect(path) as database:
    for name, text in values.items():
        database.execute("UPDATE value SET data = ? WHERE name = ?",
                         (text.encode() + b"\0", "SOFTWARE\\Tessarine\\" + name))
PYTHON
}

write_all_settings() {
    write_settings running-user ''
    # Kerberos alone knows this one, and NTLM the next as well.
    write_settings keeper keeper@SAMPLE
    write_settings keeper-in-lower-case keeper@sample
    write_settings auditor auditor@SAMPLE
    write_settings auditor-of-domain 'SAMPLE\auditor'
    write_settings auditor-of-host '.\auditor'
    write_settings wrong-password auditor@SAMPLE wrong
    write_settings locked locked@SAMPLE
    write_settings overdue overdue@SAMPLE
    write_settings stranger stranger@SAMPLE
}

# The sanitizer must be the first library of a program, and faketime wants that too.
can_change_clocks() {
    if ! command -v faketime >/dev/null || [[ $(ldd "$bin/tessarine-bench") == *libasan* ]]; then
        echo "left out: clocks that differ, for lack of faketime"
        return 1
    fi
}

failures=0
# What starts the console.
starter=()

requests_to_kdc() {
    grep -c '_REQ' "$scratch/kdc.log" || true
}

# usage: audit HOST SETTINGS; the program's words are then in $result, the number of records in the
# store in $stored, and that of questions to the KDC in $asked.
audit() {
    local before
    before=$(requests_to_kdc)
    rm -rf "$scratch/store"
    mkdir "$scratch/store"
    result=$("${starter[@]}" timeout 60 "$bin/tessarine-bench" audit "$scratch/store" "$1" \
        --settings "$scratch/$2.db") || result="no result, exit status $?"
    stored=$(cat "$scratch/store/Data/"* | grep -c $'\r$' || true)
    asked=$(($(requests_to_kdc) - before))
}

check() {
    if "${@:2}"; then
        echo "passed: $1"
    else
        echo "FAILED: $1: $result, $stored records stored, KDC asked $asked times"
        failures=$((failures + 1))
    fi
}

address_of() { getent hosts "$1" | cut -d ' ' -f 1; }

holds_all() { [[ $result == '{"outcome": "ok", '* && $stored == "$1" ]]; }
told() { [[ $result == '{"outcome": "error", "panel1": "'"$1"* && $stored == 0 ]]; }
kdc_asked() { [ "$asked" -gt 0 ]; }
kdc_not_asked() { [ "$asked" = 0 ]; }

# usage: gets RECORDS HOST SETTINGS [CONDITION]
gets() {
    audit "$2" "$3"
    check "$3 gets the records of $2" holds_all "$1"
    [ $# -lt 4 ] || check "... with $4" "$4"
}

# usage: is_told HOST SETTINGS TEXT [CONDITION]; the text is what the console's begins with.
is_told() {
    audit "$1" "$2"
    check "$2 at $1: $3" told "$3"
    [ $# -lt 4 ] || check "... with $4" "$4"
}

test_who_gets_in() {
    take_ticket keeper
    gets 1000 WEBSRV02 running-user
    gets 500 GATEWAY01 running-user
    kdestroy -q
    gets 1000 WEBSRV02 keeper kdc_asked
    gets 1000 WEBSRV02 keeper-in-lower-case kdc_asked
    gets 500 GATEWAY01 keeper kdc_asked
    gets 1000 WEBSRV02 auditor-of-domain kdc_not_asked
    gets 1000 WEBSRV02 auditor-of-host kdc_not_asked
    gets 1000 "$(address_of WEBSRV02)" auditor kdc_not_asked
    # NTLM does what Kerberos can't: the domain has no such host.
    gets 1764 BERLIN01 auditor kdc_asked
}

all_tests_passed() { [[ $result == *"[  PASSED  ] 4 tests."* ]]; }
was_tried_once() { [ "$(grep -c PREAUTH_FAILED "$scratch/kdc.log")" = 1 ]; }

test_who_is_refused() {
    local note="The host refused the credentials (of Kerberos: "
    is_told WEBSRV02 running-user "The running user has no Kerberos ticket"
    is_told "$(address_of WEBSRV02)" running-user "A ticket is of no use"
    is_told WEBSRV02 wrong-password "The alternate user's password is wrong" was_tried_once
    is_told PRINTSRV01 wrong-password "Ports 5985 and 5986" kdc_not_asked
    is_told WEBSRV02 locked "The alternate user's account is locked"
    is_told WEBSRV02 overdue "The alternate user's password has expired"
    is_told WEBSRV02 stranger "${note}The realm knows no user"
    is_told BERLIN01 keeper "${note}The domain knows no service"
    take_ticket keeper
    is_told BERLIN01 running-user "The domain knows no service"
    is_told KIOSK07 running-user "The host can't read the Kerberos ticket"
    take_ticket keeper -l 1s
    sleep 1.5
    is_told WEBSRV02 running-user "The Kerberos ticket has expired"
}

test_seal() {
    take_ticket keeper
    result=$(KRB5_KTNAME=$keytab "$bin/adapter_tests" --gtest_filter='KerberosSeal.*' 2>&1) || true
    check "a message that is changed, repeated, swapped or not encrypted is refused" all_tests_passed
}

test_clocks() {
    take_ticket keeper
    starter=(faketime -f +10m)
    is_told WEBSRV02 running-user "The clocks of this machine"
    # With a password the console goes by the clock of the domain controller.
    gets 1000 WEBSRV02 keeper
    starter=()
}

test_without_kdc() {
    take_ticket keeper
    stop_kdc
    is_told WEBSRV02 running-user "No domain controller"
    is_told WEBSRV02 keeper "The host refused the credentials (of Kerberos: No domain controller"
    gets 1000 WEBSRV02 auditor
}

in_network() {
    start_kdc
    test_who_gets_in
    test_who_is_refused
    test_seal
    if can_change_clocks; then test_clocks; fi
    test_without_kdc
}

among_hosts_ahead() {
    start_kdc
    take_ticket keeper
    is_told WEBSRV02 running-user "The clocks of this machine"
    is_told WEBSRV02 keeper "The clocks of this machine"
    stop_kdc
}

# usage: run_part NETWORK-STARTER... PART
run_part() {
    "${@:1:$#-1}" "$bin/tessarine-sample-network" --quiet --network private --keytab "$keytab" -- \
        env -u LD_PRELOAD -u FAKETIME "$0" "$bin" "${@: -1}"
}

outside() {
    has_realm_programs || exit 77
    if ! "$bin/tessarine-sample-network" --quiet --network private --desk "$scratch/desk" -- true; then
        echo "skipped: no private network can be made here"
        exit 77
    fi
    make_realm websrv02 gateway01 kiosk07
    # The key in the file is no longer that in the domain.
    kadmin.local -r SAMPLE cpw -randkey HTTP/kiosk07 >/dev/null
    write_all_settings
    run_part in_network
    if can_change_clocks; then run_part faketime -f +10m among_hosts_ahead; fi
}

"$part"
exit "$((failures > 0))"
