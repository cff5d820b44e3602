#!/bin/sh
# linear_cost.sh SHOW_MANY: twice as much show data takes twice as many instructions and no more, and the most that a
# megabyte of it can take is bounded. Counted by callgrind, so that the machine's load does not matter. How much text 4 MiB
# can give is bounded too, whatever they are shown as.
show=$1
failures=0

# instructions KIND COUNT: of the call that shows it.
instructions() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect=zel_l2fib_print_internal "$show" "$@" \
        2>&1 >/dev/null | sed -n 's/.*Collected : \([0-9]*\)$/\1/p'
}

# linear KIND COUNT: what COUNT more of them cost does not depend on how many there are.
linear() {
    one=$(instructions "$1" "$2")
    two=$(instructions "$1" $(($2 * 2)))
    four=$(instructions "$1" $(($2 * 4)))
    echo "$1: $one instructions for $2, $two for $(($2 * 2)), $four for $(($2 * 4))"
    expected=$(((two - one) * 2)) found=$((four - two))
    if [ "$expected" -lt 1000 ] || [ $((found * 100)) -gt $((expected * 105)) ]; then
        echo "$1: the cost is not linear"
        failures=$((failures + 1))
    fi
}
linear nps 2
linear members 1000 # whose numbers have four digits, most of them
linear paths 1000
linear lines 1000
linear strings 4000

most=$(instructions lines 149796)
echo "lines of a megabyte: $most instructions"
if [ "$most" -lt 1000000 ] || [ "$most" -gt 250000000 ]; then
    echo "a megabyte of show data takes too long"
    failures=$((failures + 1))
fi

if ! "$show" most-text; then
    echo "4 MiB of show data give too much text"
    failures=$((failures + 1))
fi
exit $((failures > 0))
