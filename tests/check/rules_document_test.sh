#!/bin/sh
# rules_document_test.sh L2FIB_SHOW SOURCE_DIR: docs/checks.md describes the rules of check, all of them and no others.
show=$1
document=$2/docs/checks.md
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
"$show" check --list-rules >list || exit 1

# "ac: bridge" for each rule, and "field: RECORD.FIELD" for each field that may differ.
sed -n -E '/^Everything else/q; s/ \((VPLS|other than VPLS)\)$//; /^[a-z][a-z -]*: /p' list >rules
sed -n -E 's/^([A-Z][A-Za-z0-9]*\.[a-z0-9_]+)[ :].*/field: \1/p' list >>rules
sed -n '/^Across the objects/,$p' list | sed -n '3,$s/^/across: /p' >>rules
for kind in any.object ac pw bridge mac resources field across; do
    grep -q "^$kind: " rules || { echo "--list-rules has none of $kind"; exit 1; }
done

# In the document: rows of "| **bridge** | ac, pw |", and the names of fields in the first column.
awk -F ' *[|] *' '
    /^\| \*\*/ { gsub(/\*\*/, "", $2); count = split($3, of, ", "); for (i = 1; i <= count; ++i) print of[i] ": " $2 }
    /^\| `[A-Z]/ { while (match($2, /`[A-Z][A-Za-z0-9]*\.[a-z0-9_]+`/)) {
        print "field: " substr($2, RSTART + 1, RLENGTH - 2)
        $2 = substr($2, RSTART + RLENGTH)
    } }' "$document" >described
LC_ALL=C sort -u rules >wanted
LC_ALL=C sort -u described | diff wanted - || {
    echo "docs/checks.md describes other rules (>) than check has (<)"
    exit 1
}
