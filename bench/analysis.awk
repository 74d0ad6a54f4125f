# The analysis of one log by another hand: the rows of its table and its chart as
# "tessarine-bench analyse" prints them. Takes the log's name, "system", "application" or
# "security", as log_name, and the files in the order of their folder. Knows codes in digits alone,
# and lines that end in LF or CR LF.
BEGIN { FS = "|" }

{
    sub(/\r$/, "")
    type = tolower($1)
    column = 0
}

log_name != "security" {
    if (type == "error" || type == "fehler") icon = 4
    if (type == "information" || type == "informationen") icon = 3
    if (type == "warning" || type == "warnung") icon = 2
    if (type ~ /^(err|feh)/) column = 1
    if (type ~ /^inf/) column = 2
    if (type ~ /^war/) column = 3
}

log_name == "security" {
    if (type == "audit success" || type == "\334berwachung erfolgreich") icon = 6
    if (type == "audit failure" || type == "\334berwachungsfehler") icon = 5
    if (type ~ /^(audit failure|\334berwachungsfehler)/) column = 1
    if (type ~ /^(audit success|\334berwachung erfolgreich)/) column = 2
}

{ ++chart[column] }

NF < 5 {
    for (i = 1; i <= codes; ++i) ++instances[i]
    next
}

!($5 in row) {
    row[$5] = ++codes
    code[codes] = $5
    source[codes] = $4
    icons[codes] = icon + 0
}

{ ++instances[row[$5]] }

END {
    for (i = 1; i <= codes; ++i)
        printf "  [\"%s\", %d, \"%s\", %d]%s\n", code[i], instances[i], source[i], icons[i],
               i < codes ? "," : "],"
    printf "  \"chart\": [%d, %d", chart[1], chart[2]
    if (log_name != "security") printf ", %d", chart[3]
    print "]}"
}
