#!/bin/sh
# jobs_test.sh L2FIB_SHOW SOURCE_DIR JOBS: what several processes print is what one prints, on both streams and where both
# are one, and ends as it ends. JOBS says how many processes are tried, for example "2 7".
show=$1
source=$2
several=$3
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
failures=0

# ended STATUS WANTED MESSAGE WHAT: with this status, and this on standard error.
ended() {
    if [ "$1" -ne "$2" ] || [ "$(cat stderr)" != "$3" ]; then
        fail "$4: status $1: $(cat stderr)"
    fi
}

fail() {
    echo "$*"
    failures=$((failures + 1))
}

# Files of several blocks of the input: sound ones, such with broken lines at the beginning, in the middle and at the
# end, lines longer than a block and than any capture, a late first capture, none at all, no end of the last line.
cat "$source"/examples/*.jsonl >all
for _ in 1 2 3 4 5 6; do cat all "$source/examples/faults/planted.jsonl"; done >sound
perl -e 'print "{\"object\":\"ac\",\"remark\":\"", "x" x 3000000, "\",\"show_data\":\"00\"}\n"' >long
perl -e 'print "x" x 9000000, "\n"' >too_long
printf 'nonsense\n{"object":"ac"}\n\n \n' >broken
cat broken sound broken too_long all long broken all sound broken >mixed
printf '{"object":"ac","show_data":"0003"}' >>mixed
perl -e 'print "\n" x 1200000, "nonsense\n" x 9, "\n" x 1200000' | cat - sound >late
perl -e 'print "nonsense\n" x 20' | cat - sound >none
cat too_long too_long sound >after_too_long
: >empty
printf '{"object":"bridge","node":7,"show_data":""}\n' >small

# same [< FILE] ARGUMENT...: one process and several print the same, and have the same status.
same() {
    input=/dev/null
    [ "$1" != '<' ] || { input=$2 && shift 2; }
    for jobs in 1 $several; do
        "$show" "$@" --jobs "$jobs" <"$input" >"out.$jobs" 2>"err.$jobs"
        echo $? >>"out.$jobs"
        "$show" "$@" --jobs "$jobs" <"$input" >"both.$jobs" 2>&1
        for stream in out err both; do
            cmp $stream.1 "$stream.$jobs" || fail "l2fib-show $* --jobs $jobs: not what one process prints (std$stream)"
        done
    done
}
files="sound mixed late empty none missing after_too_long small sound"
for form in '' --json --heading '--json --heading' --count '--count --json' '--heading --status failed' \
    '--object ac --direction egress' '--node 99'; do
    # shellcheck disable=SC2086
    same replay $form $files
done
same replay --bytes mixed

# More text of each block than is held.
perl -e 'print <> x 3000' "$source/examples/inconsistent-ac.jsonl" >wide
same replay --bytes wide
[ "$(wc -c <out.1)" -gt 40000000 ] || fail "--bytes of much: $(wc -c <out.1) bytes"
for files in sound mixed 'sound mixed' 'mixed small missing sound' 'sound sound'; do
    # shellcheck disable=SC2086
    same check $files && same check --json --all $files
done
same check --json sound
[ "$(wc -c <both.1)" -gt 100000 ] || fail "check --json: no more than $(wc -c <both.1) bytes to be compared"
same replay --heading '<' mixed
same '<' mixed replay --heading

# Standard input that somebody has read some of.
for jobs in 1 $several; do
    { read -r _ && "$show" replay --heading --jobs "$jobs"; } <sound >"rest.$jobs"
    cmp rest.1 "rest.$jobs" || fail "the rest of standard input, --jobs $jobs"
done
[ "$(grep -c '^== -:' rest.1)" -eq "$(($(wc -l <sound) - 1))" ] || fail "the rest of standard input: $(grep -c == rest.1)"
gzip -c mixed >mixed.gz
same '<' mixed.gz replay
head -c 300000 mixed.gz >short.gz
same replay mixed.gz short.gz small
i=0
while [ $i -lt 2000 ]; do
    i=$((i + 1))
    echo small
done | xargs "$show" replay --heading --jobs 3 sound >many 2>/dev/null
[ "$(grep -c '^== small:1: bridge' many)" -eq 2000 ] || fail "2000 small files: $(grep -c '^== small' many)"

# What comes slowly is shown as it comes.
mkfifo slow
"$show" replay --json --jobs 3 slow >seen &
exec 9>slow
cat sound >&9
for _ in 1 2 3; do
    before=$(wc -c <seen)
    printf '{"object":"summary","show_data":""}\n' >&9
    tries=0
    while [ "$(wc -c <seen)" -eq "$before" ] && [ $tries -lt 100 ]; do
        tries=$((tries + 1))
        sleep 0.1
    done
    [ $tries -lt 100 ] || fail "a capture that comes slowly is not shown"
done
exec 9>&-
wait

# How it ends: a reader that goes away, a full disk, a worker that is ended, and all of them when the first one is.
cat sound sound sound sound >longer
for form in '' --json --bytes; do
    ("$show" replay $form --jobs 3 longer 2>stderr; echo $? >status) | head -c 1 >/dev/null
    ended "$(cat status)" 141 '' "a closed pipe"
done
for command in replay 'replay --json' check; do
    # shellcheck disable=SC2086
    "$show" $command --jobs 3 longer >/dev/full 2>stderr
    ended $? 2 'l2fib-show: standard output: No space left on device' "$command on a full disk"
done

# A file that becomes too large after the first process has written to it.
(trap '' XFSZ && ulimit -f 2000 && "$show" replay --jobs 3 longer >limited 2>stderr)
ended $? 2 'l2fib-show: standard output: File too large' "a file that may not become so large"

# Nobody reads what they print after a while, so that all of them have something to do.
mkfifo sink
exec 8<>sink
for whose in worker first; do
    "$show" replay --jobs 3 longer >sink 2>stderr &
    first=$!
    head -c 600000 <&8 >/dev/null
    tries=0
    until [ "$(pgrep -c -P $first)" -eq 3 ] || [ $tries -eq 100 ]; do
        tries=$((tries + 1))
        sleep 0.1
    done
    sleep 0.2
    workers=$(pgrep -P $first | paste -sd ' ')
    if [ $whose = worker ]; then
        kill -KILL "${workers#* * }"
        cat <&8 >/dev/null &
        reader=$!
    else
        kill -KILL $first
    fi
    wait $first 2>/dev/null
    status=$?
    if [ $whose = worker ]; then
        kill "$reader"
        ended "$status" 2 'l2fib-show: a process of this run was ended by signal 9 (Killed)' "a worker that was killed"
    fi
    tries=0
    while ps -o rss= -p "$workers" | grep -qv '^ *0$' && [ $tries -lt 100 ]; do # the dead have no memory
        tries=$((tries + 1))
        sleep 0.1
    done
    [ $tries -lt 100 ] || fail "workers are left when the $whose was killed"
done
exit $((failures > 0))
