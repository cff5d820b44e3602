#!/bin/sh
# check_test.sh L2FIB_SHOW SOURCE_DIR: what check and diff print, and how they exit.
# With L2FIB_ACCEPT_SCREENS set, what they print now is made what is expected.
show=$1
source=$2
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
cp "$source"/examples/*.jsonl "$source/examples/faults/planted.jsonl" .
failures=0

fail() {
    echo "$*"
    failures=$((failures + 1))
}

# golden NAME STATUS ARGUMENT...: standard output is what tests/screens/NAME has.
golden() {
    name=$1 status=$2
    shift 2
    "$show" "$@" >stdout 2>stderr </dev/null
    actual=$?
    [ -z "${L2FIB_ACCEPT_SCREENS:-}" ] || cp stdout "$source/tests/screens/$name"
    [ $actual -eq "$status" ] || fail "l2fib-show $*: exit status $actual, expected $status: $(cat stderr)"
    diff -u "$source/tests/screens/$name" stdout || fail "l2fib-show $*: other than tests/screens/$name"
}

# says STATUS LAST_LINE ARGUMENT...: standard output ends with this line.
says() {
    status=$1 last=$2
    shift 2
    "$show" "$@" >stdout 2>stderr </dev/null
    actual=$?
    [ $actual -eq "$status" ] || fail "l2fib-show $*: exit status $actual, expected $status: $(cat stderr)"
    [ "$(tail -n 1 stdout)" = "$last" ] || fail "l2fib-show $*: $(tail -n 1 stdout)"
}

# line NUMBER: a planted fault.
line() {
    sed -n "$1p" planted.jsonl
}

golden check.txt 1 check planted.jsonl
golden check.json 1 check --json --object bridge planted.jsonl
golden rules.txt 0 check --list-rules

# One file has the fault, the other one does not, or has it too.
agreeing=vpls-ac-ingress.jsonl
line 2 >faulty
says 0 "1 object agrees." check $agreeing
says 0 "1 object agrees." check $agreeing faulty
says 0 "1 object agrees." check faulty $agreeing
cp faulty again
says 1 "1 of 1 object disagrees." check faulty again
line 3 >another
says 0 "1 object agrees." check faulty another
cat faulty another >both
says 1 "2 of 2 objects disagree." check both

# What may differ from NP to NP is told on demand, and is no disagreement.
says 0 "1 object agrees." check --all vpls-ac-ingress.jsonl
grep -q 'token bucket id' stdout || fail "check --all: no token bucket: $(cat stdout)"

# What is cut short is not checked, also beside what disagrees; a note is no disagreement.
sed -E 's/("show_data":"[0-9a-f]{1622}).*/\1"}/' vpls-ac-egress.jsonl >short
says 2 "0 objects agree. 1 could not be checked: short:1 (645 of 1300 bytes)." check short
cat short faulty >mixed
says 2 "1 of 2 objects disagrees. 1 could not be checked: mixed:1 (645 of 1300 bytes)." check mixed
for _ in 1 2 3 4 5 6 7; do cat short; done >many
says 2 "0 objects agree. 7 could not be checked: many:1 (645 of 1300 bytes), many:2 (645 of 1300 bytes), many:3 (645 of \
1300 bytes), many:4 (645 of 1300 bytes), many:5 (645 of 1300 bytes) and 2 more." check many
line 51 >noted
says 0 "1 object agrees." check noted
grep -q '^  note: counter of learned addresses' stdout || fail "check: no note: $(cat stdout)"
says 2 "0 objects agree." check missing
says 0 "1 object agrees." check --object pw vpls-pw-ingress.jsonl

# A reference is missing only where something of its kind is there.
says 0 "1 object agrees." check bridge-ingress.jsonl
cat bridge-ingress.jsonl local-switch-ac.jsonl >elsewhere
says 1 "2 objects agree. 2 disagreements across objects." check elsewhere

cat vpls-ac-ingress.jsonl vpls-ac-egress.jsonl vpls-pw-ingress.jsonl bridge-ingress.jsonl local-mac.jsonl evpn-mac.jsonl \
    resources.jsonl hal-summary.jsonl state-summary.jsonl >before
{
    line 2
    line 8
    line 37
    line 48
    line 60
    line 61
    cat local-switch-ac.jsonl hal-summary.jsonl
} >after
golden diff.txt 1 diff before after
golden diff.json 1 diff --json before after
says 0 "0 changed, 0 added, 0 removed, 9 alike." diff before before
says 2 "0 changed, 0 added, 0 removed, 0 alike, 1 not compared." diff short vpls-ac-egress.jsonl
says 0 "0 changed, 0 added, 0 removed, 1 alike." diff short short

# Counters, pointers and times change by themselves.
line 69 >scanned
says 0 "0 changed, 0 added, 0 removed, 1 alike." diff resources.jsonl scanned
says 1 "1 changed, 0 added, 0 removed, 0 alike." diff --all resources.jsonl scanned

# The second of two like captures goes with the second.
cat vpls-ac-ingress.jsonl faulty >twice
says 1 "0 changed, 1 added, 0 removed, 1 alike." diff vpls-ac-ingress.jsonl twice
cat vpls-ac-ingress.jsonl vpls-ac-ingress.jsonl >pair
says 1 "1 changed, 0 added, 0 removed, 1 alike." diff pair twice

exit $((failures != 0))
