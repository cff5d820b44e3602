#!/bin/sh
# limits_test.sh L2FIB_SHOW: what replay needs stays in bounds, whatever the file holds.
show=$1
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
failures=0

# within MIB TEXT -- ARGUMENT...: in so much memory, replay says TEXT, or nothing for the empty one, on standard error.
within() {
    limit=$(($1 * 1024)) text=$2
    shift 3
    # shellcheck disable=SC3045 # Debian's sh has it
    (ulimit -v $limit && "$show" replay "$@") >"${to:-stdout}" 2>stderr
    status=$?
    if [ "$(cat stderr)" != "$text" ]; then
        echo "l2fib-show replay $* in $limit KiB: exit status $status, on standard error:"
        head -c 1000 stderr
        failures=$((failures + 1))
    fi
}

# captures COUNT MIB TAIL: lines whose remarks, of so many MiB, differ, and end in TAIL.
captures() {
    perl -e 'my ($count, $mib, $tail) = @ARGV;
             my $remark = "x" x ($mib << 20);
             print "{\"object\":\"hal-summary\",\"remark\":\"$_$remark$tail" for 1 .. $count' "$@"
}

# The manual's bound, and what two processes share.
bound=$((160 + 2 * 18))
captures 48 4 '","show_data":"00"}
' | within $bound '' -- --count
captures 24 8 '","show_data":"00"}
' | within $bound '' -- --count
captures 1 8 '' | within $bound 'l2fib-show: -:1: broken JSON at byte 8388644' --
perl -e 'print "{", "\t" x (8 << 20), "x"' | within $bound 'l2fib-show: -:1: broken JSON at byte 8388610' --
perl -e 'print "{\"object\":\"ac\",\"virtual_interfaces\":[", "1," x (4 << 20), "2],\"show_data\":\"\"}\n" for 1 .. 3' |
    within $bound 'l2fib-show: no capture fits --status ok (of 3)' -- --status ok

# What is compressed takes the window of its compressor more, however much it is.
perl -e 'print " " x (1 << 20), "\n" for 1 .. 64' >blank
xz -9 <blank >blank.xz
zstd -q --ultra -22 --long=27 <blank >blank.zst
within $((bound + 68)) '' -- blank.xz
within $((bound + 130)) '' -- blank.zst

# Text that is chosen by its status is not kept: 48 MB of it.
perl -e 'print "{\"object\":\"ac\",\"view\":\"inconsistent\",\"show_data\":\"",
         "03040200040301" x ((4 << 20) / 7), "\"}\n"' >long
"$show" replay long >whole
within 64 '' -- --status ok long
if ! cmp stdout whole || [ "$(wc -c <whole)" -lt 40000000 ]; then
    echo "replay --status ok: not the text that replay prints"
    failures=$((failures + 1))
fi
within 30 'l2fib-show: out of memory' -- long

# JSON is not kept either. What is known about the bytes of a capture is: the worst are short TLVs.
within 64 '' -- --json long
perl -e 'print "{\"object\":\"ac\",\"view\":\"inconsistent\",\"show_data\":\"", "03040200" x (1 << 20), "\"}\n"' >short_tlvs
bytes_bound=320 # the manual's
to=/dev/null within $bytes_bound '' -- --bytes short_tlvs
exit $((failures > 0))
