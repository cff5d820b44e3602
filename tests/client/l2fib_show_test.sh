#!/bin/sh
# l2fib_show_test.sh L2FIB_SHOW SOURCE_DIR: what the client prints, where, and how it exits.
show=$1
source=$2
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
failures=0

# expect STATUS STDOUT_FILE STDERR_TEXT -- ARGUMENT...
expect() {
    status=$1 out=$2 err=$3
    shift 4
    "$show" "$@" >stdout 2>stderr </dev/null
    actual=$?
    printf %s "$err" >wanted
    [ -z "$err" ] || echo >>wanted
    if [ $actual -ne "$status" ] || ! cmp -s stdout "$out" || ! cmp -s stderr wanted; then
        echo "l2fib-show $*: exit status $actual, expected $status; on stderr:"
        cat stderr
        failures=$((failures + 1))
    fi
}

capture=$source/examples/vpls-ac-ingress.bin
screen=$source/tests/screens/vpls-ac-ingress.txt
: >empty
head -c 105 "$capture" >short
printf '\nzel_l2fib_print_internal: data_size is 105, expecting at least 106' >short.txt
printf '\nUnsupported card type NONE: 0' >card.txt

expect 0 "$screen" '' -- ac "$capture"
expect 0 "$screen" '' -- ac --ingress --view detail --node 3 --card 0x1e1005 "$capture"
expect 0 "$source/tests/screens/vpls-ac-egress.txt" '' -- ac --egress "$source/examples/vpls-ac-egress.bin"
expect 0 card.txt '' -- ac --card 0x1e1004 "$capture"
expect 1 short.txt 'l2fib-show: status 0x46258800: show data malformed or too short' -- ac short
expect 2 empty 'l2fib-show: missing: No such file or directory' -- ac missing
expect 2 empty 'l2fib-show: empty: no show data' -- ac empty
expect 2 empty 'l2fib-show: .: Is a directory' -- ac .
expect 2 empty 'l2fib-show: -: no show data' -- ac -
expect 2 empty 'l2fib-show: FILE is required' -- ac
expect 2 empty 'l2fib-show: an object is required; see l2fib-show --help' --
expect 2 empty 'l2fib-show: The following argument was not expected: vlan' -- vlan
expect 2 empty 'l2fib-show: The following argument was not expected: --loud' -- ac --loud short
expect 2 empty 'l2fib-show: --ingress excludes --egress' -- ac --ingress --egress short
expect 2 empty 'l2fib-show: Could not convert: --card = x' -- ac --card x short

if ! "$show" ac - <"$capture" | cmp - "$screen"; then
    echo "standard input does not show what the file shows"
    failures=$((failures + 1))
fi
exit $((failures > 0))
