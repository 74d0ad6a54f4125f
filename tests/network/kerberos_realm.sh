# A Kerberos realm on loopback for scripts that source this: SAMPLE, whose users all have the sample
# network's password. Its files are in $scratch.

# Nothing of the caller's own realms and tickets gets in.
unset "${!KRB5@}" NTLM_USER_FILE
PATH=$PATH:/usr/sbin

export KRB5_CONFIG=$scratch/krb5.conf KRB5_KDC_PROFILE=$scratch/kdc.conf
export KRB5CCNAME=FILE:$scratch/tickets KRB5_CLIENT_KTNAME=FILE:$scratch/none
export KRB5RCACHEDIR=$scratch
readonly keytab=$scratch/keytab

has_realm_programs() {
    local program
    for program in krb5kdc kdb5_util kadmin.local kinit; do
        command -v "$program" >/dev/null || { echo "$program is missing"; return 1; }
    done
}

write_realm_configuration() {
    cat >"$KRB5_CONFIG" <<CONFIG
[libdefaults]
    default_realm = SAMPLE
    dns_lookup_kdc = false
    dns_lookup_realm = false
    dns_canonicalize_hostname = false
    qualify_shortname = ""
    rdns = false
[realms]
    SAMPLE = {
        kdc = 127.0.0.1:18888
    }
CONFIG
    cat >"$KRB5_KDC_PROFILE" <<CONFIG
[realms]
    SAMPLE = {
        database_name = $scratch/principals
        key_stash_file = $scratch/stash
        kdc_listen = 127.0.0.1:18888
        kdc_tcp_listen = 127.0.0.1:18888
        default_principal_flags = +preauth
    }
[logging]
    kdc = FILE:$scratch/kdc.log
CONFIG
}

# usage: make_realm [HOST...]; the hosts have a service HTTP in the realm, and its key in $keytab.
make_realm() {
    write_realm_configuration
    local name
    {
        kdb5_util create -s -r SAMPLE -P "$RANDOM"
        {
            for name in keeper auditor locked overdue; do echo "addprinc -pw Kestrel-4711-over-the-weir $name"; done
            echo "modprinc -allow_tix locked"
            echo "modprinc -pwexpire yesterday overdue"
            for name in "$@"; do
                echo "addprinc -randkey HTTP/$name"
                echo "ktadd -k $keytab HTTP/$name"
            done
        } | kadmin.local -r SAMPLE
    } &>"$scratch/realm.log" || { cat "$scratch/realm.log"; return 1; }
}

start_kdc() {
    krb5kdc -n &>"$scratch/krb5kdc.log" &
    kdc=$!
    trap stop_kdc EXIT
    for _ in $(seq 100); do
        (: </dev/tcp/127.0.0.1/18888) 2>/dev/null && return
        sleep 0.05
    done
    cat "$scratch/krb5kdc.log"
    return 1
}

stop_kdc() {
    trap - EXIT
    kill "$kdc"
    wait "$kdc" || true
}

# usage: take_ticket USER [KINIT-OPTION...]
take_ticket() {
    kinit "$@" <<<Kestrel-4711-over-the-weir >/dev/null
}
