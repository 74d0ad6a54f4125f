#!/bin/bash
# Has an office program read a workbook, and compares what it sees in the cells.
#
# usage: workbook_in_office.sh BIN-DIRECTORY
# Exit status 77 when it can't be done here.
set -euo pipefail

bin=$1
here=$(cd "$(dirname "$0")" && pwd)
command -v soffice >/dev/null || { echo "skipped: soffice is missing"; exit 77; }

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export TMPDIR=$scratch HOME=$scratch
unset DISPLAY WAYLAND_DISPLAY

"$bin/office_sample" >"$scratch/path"
mv "$(<"$scratch/path")" "$scratch/book.xlsx"

# One file a sheet: commas, quotation marks, UTF-8, and all texts quoted, so that numbers differ.
as_tables='csv:Text - txt - csv (StarCalc):44,34,76,1,,0,true,true,false,false,false,-1'
timeout 200 soffice "-env:UserInstallation=file://$scratch/profile" --headless --norestore \
    --convert-to "$as_tables" --outdir "$scratch" "$scratch/book.xlsx" >"$scratch/soffice" 2>&1 ||
    { cat "$scratch/soffice"; exit 1; }

longest=$(printf 'x%.0s' {1..32767})
for sheet in Application System Security; do
    echo "$sheet Events:"
    cells=$(<"$scratch/book-$sheet Events.csv")
    cells=${cells//$longest/[32767 times x]}
    echo "${cells//$'\x01'/[control character]}"
done >"$scratch/cells.csv"
diff -u "$here/../golden/workbook.csv" "$scratch/cells.csv"
