#!/usr/bin/env bash
# What bash offers on the command line of kelvo-convert.
#
#   completion.sh COMPLETION PROGRAM
set -euo pipefail
if [ ! -r /usr/share/bash-completion/bash_completion ]; then
    echo "skipped: no bash-completion"
    exit 77
fi
set +eu  # not what its files are written for
. /usr/share/bash-completion/bash_completion
. "$1"

offered() {
    COMP_WORDS=("$@")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMP_LINE="${COMP_WORDS[*]}"
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _kelvo_convert 2>/dev/null
    echo "${COMPREPLY[*]}"
}
failed=0
expect() {
    local expected=$1 found
    shift
    found=$(offered kelvo-convert "$@")
    [ "$found" = "$expected" ] || { echo "kelvo-convert $*: $found, expected $expected"; failed=1; }
}
expect "wgs user tm utm" --from ""
expect "user utm" --from u
expect "hyphens" --angles-out h
expect "deg dms" --angles-in d
expect "wgs user tm utm wgsutm all" --to ""
expect "tm,wgs tm,wgsutm" --to tm,w
expect "--parameters" --p
expect "--from" --from wgs --f
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" && touch "기준점.csv"
expect "기준점.csv" --from wgs 기
# Every option of the program is offered.
for option in $("$2" --help | grep -o '^  --[a-z-]*'); do
    expect "$option" "$option"
done
exit $failed
