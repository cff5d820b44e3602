#!/bin/sh
# mistakes_test.sh L2FIB_SHOW SOURCE_DIR: each mistake of mistakes.txt ends with status 2 and its one line.
show=$1
source=$2
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
failures=0

cp "$source/examples/vpls-ac-ingress.jsonl" captures
sed 's/.*"show_data":"//; s/".*//' captures | perl -ne 'chomp; print pack("H*", $_)' >ac.bin
perl -ne 'chomp; printf "%08x: %s\n", $. - 1, $_' >dump.xxd <<END_OF_BYTES
03
04
END_OF_BYTES
od -A x ac.bin >dump.od
for format in gzip:gz xz:xz zstd:zst; do
    "${format%:*}" -c captures | head -c 300 >"short.${format#*:}"
done
gzip -c captures | perl -0777 -pe 'substr($_, 3, 1) = "\xff"' >broken.gz
perl -e 'print "\x28\xb5\x2f\xfd\x00\x98\x00\x00\x00"' >wide.zst
jq . captures >pretty
jq -s . captures >array
head -c 4194305 /dev/zero >big
: >empty
: >unreadable
chmod 000 unreadable
chmod 755 .

# Root may read everything.
as_somebody=
if [ -r unreadable ]; then
    as_somebody="setpriv --reuid=65534 --regid=65534 --clear-groups"
    if ! $as_somebody "$show" --version >/dev/null 2>&1; then
        echo "not tried: permission denied, as nobody but root can run $show"
        as_somebody=
    fi
fi

objects="ac, pw, bridge, bridge-port, mac, nhop, resources, summary, counters, hal-summary"
commands=$("$show" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p' | paste -sd , | sed 's/,/, /g')
sed "/^#/d; s/@objects/$objects/; s/@commands/$commands/" "$source/tests/client/mistakes.txt" >mistakes
while read -r mistake; do
    arguments=${mistake%%=> *}
    eval "set -- $arguments"
    [ "$*" != 'ac unreadable' ] || [ ! -r unreadable ] || [ -n "$as_somebody" ] || continue
    $as_somebody "$show" "$@" >stdout 2>stderr </dev/null
    status=$?
    printf 'l2fib-show: %s\n' "${mistake#*=> }" >wanted
    if [ $status -ne 2 ] || [ -s stdout ] || ! cmp -s stderr wanted; then
        echo "l2fib-show $arguments: exit status $status, on standard error:"
        cat stderr
        failures=$((failures + 1))
    fi
done <mistakes
exit $((failures > 0))
