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

# sample NAME: the show data of a sample, as a hex dump, in NAME.hex and as bytes in NAME.bin.
sample() {
    sed 's/.*"show_data":"//; s/".*//' "$source/examples/$1.jsonl" >"$1.hex"
    perl -ne 'chomp; print pack("H*", $_)' "$1.hex" >"$1.bin"
}
sample vpls-ac-ingress
sample vpls-ac-egress
capture=vpls-ac-ingress.bin
screen=$source/tests/screens/vpls-ac-ingress.txt
: >empty
head -c 105 "$capture" >short
printf '\nzel_l2fib_print_internal: data_size is 105, expecting at least 106' >short.txt
printf '\nUnsupported card type NONE: 0' >card.txt

expect 0 "$screen" '' -- ac "$capture"
expect 0 "$screen" '' -- ac --ingress --view detail --node 3 --card 0x1e1005 "$capture"
expect 0 "$source/tests/screens/vpls-ac-egress.txt" '' -- ac --egress --hex vpls-ac-egress.hex
expect 0 card.txt '' -- ac --card 0x1e1004 "$capture"
expect 1 short.txt 'l2fib-show: status 0x46258800: show data malformed or too short' -- ac short
printf 00 >digits
printf '\nzel_l2fib_print_internal: data_size is 2, expecting at least 106' >digits.txt
expect 1 digits.txt 'l2fib-show: status 0x46258800: show data malformed or too short' -- ac --format raw digits
printf '%s\n' '{"object":"ac","node":10,"card":"0x11","direction":"ingress","view":"detail","monotonic_seconds":7,' \
    '"wall_seconds":8,"time_zone":"UTC0","virtual_interfaces":["0x9","0xa"],"show_data":"00"}' | paste -sd '\0' >numbers
printf '\000' >zero
expect 0 numbers '' -- capture ac --node 010 --card 0x011 --monotonic 07 --wall 0x8 --time-zone UTC0 \
    --virtual-interface 09 --virtual-interface 0x0a zero
expect 0 empty 'l2fib-show: no capture fits --node 10 --xid 0x0000000a (of 1)' -- replay --xid 10 --node 0x0a numbers
expect 0 empty 'l2fib-show: no capture fits --object pw --object mac --direction egress --status failed (of 2)' -- \
    replay --object pw --object mac --direction egress --status failed numbers numbers
expect 0 empty 'l2fib-show: no capture fits --node 1 (of 0)' -- replay --node 1
expect 2 empty 'l2fib-show: missing: No such file or directory' -- replay --node 1 missing
expect 0 empty 'l2fib-show: no capture fits --node 4294967295 (of 0)' -- replay --node 4294967295
expect 0 empty 'l2fib-show: no capture fits --xid 0x00000000 (of 0)' -- replay --xid 00
expect 0 empty 'l2fib-show: no capture fits --direction ingress (of 1)' -- \
    replay --direction ingress "$source/examples/hal-summary.jsonl" # which has none

# Captures by their cross-connect ID: for a bridge that of its BVI. A MAC address has none, though its XID is shown.
while read -r xid captures; do
    "$show" replay --heading --xid "$xid" "$source"/examples/*.jsonl >stdout 2>stderr
    found=$(sed -n 's,^== .*/,,p' stdout | paste -sd ' ')
    if [ "$found" != "$captures" ]; then
        echo "replay --xid $xid: found $found"
        failures=$((failures + 1))
    fi
done <<END
0x00340003 bridge-port.jsonl:1: bridge-port ingress detail vpls-ac-egress.jsonl:1: ac egress detail \
vpls-ac-ingress.jsonl:1: ac ingress detail vpls-ac-private.jsonl:1: ac ingress private
0x00380005 vpls-pw-ingress.jsonl:1: pw ingress detail vpls-pw-private.jsonl:1: pw ingress private
0x00ff0001 bridge-egress.jsonl:1: bridge egress detail bridge-ingress.jsonl:1: bridge ingress detail \
bridge-private.jsonl:1: bridge ingress private
0
END

# Captures: what capture writes, replay shows; what is wrong with a line is told, and the rest goes on.
ac=$source/examples/vpls-ac-ingress.jsonl
port=$source/examples/bridge-port.jsonl
zone=CET-1CEST,M3.5.0,M10.5.0/3
expect 0 "$ac" '' -- capture ac --monotonic 1036800 --wall 1763900000 --time-zone $zone --format plain vpls-ac-ingress.hex

"$show" capture bridge-port --egress --node 9 short >failing
{
    cat "$ac"
    printf '\n{"object":"ac\\u001b[2J","show_data":""}\r\n'
    head -c 5000 "$ac" | tr -d '\n' && echo
    head -c 10000000 /dev/zero | tr '\0' '[' && echo
    cat "$port" failing
} >mixed
cat "$screen" "$source/tests/screens/bridge-port.txt" >both.txt
printf '\nzel_l2fib_print_internal: data_size is 105, expecting at least 2588' >failing.txt
cat both.txt failing.txt >mixed.txt
broken="l2fib-show: mixed:3: object: unknown 'ac\\x1b[2J'
l2fib-show: mixed:4: broken JSON at byte 5001
l2fib-show: mixed:5: line too long"
failed='l2fib-show: mixed:7: status 0x46258800: show data malformed or too short'
expect 2 mixed.txt "$broken
$failed" -- replay mixed
expect 2 both.txt "$broken" -- replay --status ok mixed
expect 1 failing.txt 'l2fib-show: failing:1: status 0x46258800: show data malformed or too short' -- \
    replay --status failed "$ac" failing
expect 0 both.txt '' -- replay --direction ingress "$ac" failing "$port"
for xid in 0x00340003 3407875; do
    expect 0 "$screen" '' -- replay --xid $xid --object ac "$ac" "$port"
done
expect 0 empty 'l2fib-show: no capture fits --xid 0x00000000 (of 1)' -- replay --xid 0 "$ac"
expect 1 failing.txt 'l2fib-show: failing:1: status 0x46258800: show data malformed or too short' -- \
    replay --node 9 "$ac" failing
cat >count.txt <<END
object       view               count  status
ac           detail                 1  0x00000000 success
bridge-port  detail                 1  0x00000000 success
bridge-port  detail                 1  0x46258800 show data malformed or too short
all                                 3
END
expect 2 count.txt "$broken" -- replay --count mixed
{
    printf '== %s:1: ac ingress detail\n' "$ac"
    cat "$screen"
    printf '\n== %s:1: bridge-port ingress detail\n' "$port"
    cat "$source/tests/screens/bridge-port.txt"
} >heading.txt
expect 0 heading.txt '' -- replay --heading "$ac" "$port"

{
    printf '{"object":"ac"}\n%.0s' 1 2 3 4 5 6 7 8 9
    cat "$ac"
    printf '{"object":"pw"}\n'
} >late
expect 2 "$screen" "$(for line in 1 2 3 4 5 6 7 8 9 11; do echo "l2fib-show: late:$line: no show_data"; done)" -- \
    replay late
{ sed 5q late && sed 5q late && cat "$ac"; } >too_late
expect 2 "$screen" 'l2fib-show: too_late:1: no show_data
l2fib-show: too_late: no capture on its first 10 lines' -- replay too_late "$ac"
expect 0 empty '' -- replay

# json STATUS STDERR_TEXT FILTER WANTED -- ARGUMENT...: standard output is an object on each line, of which jq makes this.
json() {
    status=$1 err=$2 filter=$3 wanted=$4
    shift 5
    "$show" "$@" >stdout 2>stderr </dev/null
    actual=$?
    jq -c "$filter" stdout >made
    if [ $actual -ne "$status" ] || [ "$(cat stderr)" != "$err" ] || [ "$(cat made)" != "$wanted" ] ||
        [ "$(jq -c 'objects | 1' stdout | wc -l)" -ne "$(wc -l <stdout)" ]; then
        echo "l2fib-show $*: exit status $actual, expected $status; jq '$filter' says:"
        cat made stderr
        failures=$((failures + 1))
    fi
}
odd=$(printf 'odd "name\033')
cp "$ac" "$odd"
what='[.object, .direction, .view, .status, .rp.xid]'
json 0 '' "$what" '["ac","ingress","detail",0,3407875]' -- ac --json --color always "$capture"
json 0 '' "$what" '["summary",null,null,0,null]' -- replay --json "$source/examples/state-summary.jsonl"
json 0 '' '[.file, .line]' '[null,null]' -- replay --json "$ac"
json 0 '' '[.file, .line, .object]' '["odd \"name\u001b",1,"ac"]' -- replay --json --heading "$odd"
json 1 '' '[.status, .failures[0].there, .failures[0].needed]' '[1176864768,105,106]' -- ac --json short
json 2 "$broken" '[.line, .object, .status]' '[1,"ac",0]
[6,"bridge-port",0]
[7,"bridge-port",1176864768]' -- replay --json --heading mixed
json 2 "$broken" .object '"ac"
"bridge-port"' -- replay --json --status ok mixed
json 1 '' .node 9 -- replay --json --status failed "$ac" failing
json 0 '' .object '"ac"' -- replay --json --xid 0x00340003 --object ac "$ac" "$port"
json 2 "$broken" '[.all, (.counts[] | .object, .status, .count)]' \
    '[3,"ac",0,1,"bridge-port",0,1,"bridge-port",1176864768,1]' -- replay --json --count mixed
json 0 '' '[.size, .not_shown, .not_shown_nonzero, ([.bytes[].width] | add)]' '[172,112,0,172]' -- \
    replay --json --bytes "$source/examples/local-mac.jsonl"
json 1 '' '[.status, .bytes[0].hex[:6]]' '[1176864768,"000300"]' -- ac --json --bytes short
json 0 '' . '' -- replay --json
head -c 4194304 /dev/zero >largest
json 0 '' .status 0 -- summary --json largest

# The samples with bytes changed: they cannot break the form, nor send a terminal anything but plain text.
cat "$source"/examples/*.jsonl | perl -ne 'srand(1); for my $i (1 .. 5) {
    my $line = $_;
    my ($digits, $end) = (index($line, "show_data\":\"") + 12, length($line) - 4);
    substr($line, $digits + 2 * int(rand(($end - $digits) / 2)), 2) = sprintf("%02x", rand(256)) for 1 .. 4 ** $i;
    print $line }' >changed
"$show" replay --json changed >changed.json 2>stderr
"$show" replay --json --bytes changed >>changed.json 2>>stderr
"$show" replay --bytes changed >changed.txt 2>/dev/null
if [ "$(jq -c 'objects | 1' changed.json | wc -l)" -ne $((2 * $(wc -l <changed))) ] || [ -s stderr ] ||
    LC_ALL=C grep -n '[^ -~]' changed.txt; then
    echo "changed samples: not a line of JSON for each, or no plain text"
    failures=$((failures + 1))
fi

# The table of bytes, and its colours.
bytes=$source/tests/screens/local-mac.bytes.txt
mac=$source/examples/local-mac.jsonl
[ -z "$L2FIB_ACCEPT_SCREENS" ] || "$show" replay --bytes "$mac" >"$bytes"
expect 0 "$bytes" '' -- replay --bytes "$mac"
expect 0 "$bytes" '' -- replay --bytes --color never "$mac"
expect 0 "$screen" '' -- replay --color always "$ac"
colors() { # WANTED WHERE ENVIRONMENT OPTION...: whether the bytes have colours
    wanted=$1 where=$2 environment=$3
    shift 3
    command="env $environment $show replay --bytes $* $mac"
    case $where in
    file) $command >colored ;;
    terminal) script -qec "$command" /dev/null >colored </dev/null ;;
    esac
    grep -q "$(printf '\033')" colored && has=yes || has=no
    if [ "$has" != "$wanted" ] || ! sed 's/\x1b\[[0-9]*m//g; s/\r$//' colored | cmp - "$bytes"; then
        echo "$environment replay --bytes $*, on a $where: colours: $has"
        failures=$((failures + 1))
    fi
}
colors no file ''
colors yes file '' --color always
colors yes terminal -uNO_COLOR
colors yes terminal NO_COLOR=
colors no terminal NO_COLOR=1
colors yes terminal NO_COLOR=1 --color always
colors no terminal '' --color never

# In one place with the text, messages come after what they are of, each on a line of its own.
"$show" replay "$ac" failing mixed >together 2>&1
{
    cat "$screen" failing.txt
    printf '\nl2fib-show: failing:1: status 0x46258800: show data malformed or too short\n'
    cat "$screen"
    echo "$broken"
    cat "$source/tests/screens/bridge-port.txt" failing.txt
    printf '\n%s\n' "$failed"
} | diff together - || failures=$((failures + 1))

# A terminal is sent nothing that it obeys, but gets the same screens. Files and pipes get every byte.
on_terminal() { # ARGUMENT...
    LC_ALL=C.UTF-8 script -qec "$show $*" /dev/null </dev/null | sed 's/\r$//'
}
on_terminal replay "$source/examples/*.jsonl" "2>/dev/null" >terminal
"$show" replay "$source"/examples/*.jsonl | cmp - terminal || failures=$((failures + 1))
on_terminal replay "$ac" failing "$ac" >terminal
{
    cat "$screen" failing.txt
    printf '\nl2fib-show: failing:1: status 0x46258800: show data malformed or too short\n'
    cat "$screen"
} | cmp - terminal || failures=$((failures + 1))
hostile=$(printf '\033[2J\302\2331m\303\251\377.jsonl')
printf '{"object":"ac","view":"inconsistent","show_data":"030901611b5d078000"}\n' >"$hostile"
printf '== %s:1: ac ingress inconsistent\n\n  a\033]\007\200 ' "$hostile" >hostile.txt
printf '== \\x1b[2J\\xc2\\x9b1m\303\251\\xff.jsonl:1: ac ingress inconsistent\n\n  a\\x1b]\\x07\\x80 ' >harmless.txt
expect 0 hostile.txt '' -- replay --heading "$hostile"
on_terminal replay --heading "'$hostile'" | diff harmless.txt - || failures=$((failures + 1))
on_terminal replay --heading --raw "'$hostile'" | diff hostile.txt - || failures=$((failures + 1))
LC_ALL=C expect 2 empty 'l2fib-show: \x1b\x0a\xff: No such file or directory' -- ac "$(printf '\033\n\377')"

# Text that does not arrive.
fails_to_write() {
    "$show" "$@" >/dev/full 2>stderr
    if [ $? -ne 2 ] || [ "$(cat stderr)" != 'l2fib-show: standard output: No space left on device' ]; then
        echo "l2fib-show $* on a full disk:"
        cat stderr
        failures=$((failures + 1))
    fi
}
fails_to_write replay "$ac"
fails_to_write replay --count "$ac"
fails_to_write replay --json "$ac"
fails_to_write replay --json --count "$ac"
fails_to_write replay --bytes "$ac"
fails_to_write ac --json "$capture"
fails_to_write ac "$capture"
fails_to_write capture ac "$capture"
fails_to_write --help
(ulimit -f 1 && "$show" ac "$capture" >limited 2>stderr; echo $? >status)
if [ "$(cat status)" -ne 2 ] || [ "$(cat stderr)" != 'l2fib-show: standard output: File too large' ]; then
    echo "a file that may not grow: exit status $(cat status)"
    cat stderr
    failures=$((failures + 1))
fi
for _ in 1 2 3 4 5 6 7 8; do cat "$source/examples/resources.jsonl" "$source/examples/resources.jsonl"; done >many
for form in '' --json --bytes; do
    ("$show" replay $form many 2>stderr; echo $? >status) | head -c 1 >/dev/null
    if [ "$(cat status)" -ne 141 ] || [ -s stderr ]; then
        echo "replay $form into a closed pipe: exit status $(cat status)"
        cat stderr
        failures=$((failures + 1))
    fi
done

# What is compressed is read as it was before, whole or in parts; bytes that may be show data are left alone.
"$show" replay many many "$ac" >whole.txt
for format in gzip:gz xz:xz zstd:zst; do
    for file in many "$ac" "$capture" vpls-ac-ingress.hex; do
        "${format%:*}" -c "$file" >"${file##*/}.${format#*:}"
    done
    cat many."${format#*:}" many."${format#*:}" "${ac##*/}.${format#*:}" >parts
    cp parts padded
    head -c 512 /dev/zero >>padded
    expect 0 whole.txt '' -- replay parts
    expect 0 whole.txt '' -- replay padded
    "$show" replay <parts | cmp - whole.txt || failures=$((failures + 1))
    expect 0 "$screen" '' -- ac "$capture.${format#*:}"
    expect 0 "$screen" '' -- ac --hex "vpls-ac-ingress.hex.${format#*:}"
    head -c -9 many."${format#*:}" >cut_off
    "$show" replay cut_off >cut.txt 2>stderr
    if [ $? -ne 2 ] || ! grep -q ' ends early, after [0-9]* bytes$' stderr ||
        ! head -c "$(wc -c <cut.txt)" whole.txt | cmp - cut.txt || [ ! -s cut.txt ]; then
        echo "replay of ${format%:*} that is cut short: $(wc -c <cut.txt) bytes, on stderr: $(cat stderr)"
        failures=$((failures + 1))
    fi
done
printf '\037\213\010' | "$show" ac --format raw - 2>/dev/null | grep -q 'data_size is 3,' || failures=$((failures + 1))

# Help is the same by the command as by the option.
for command in '' ac help; do
    "$show" $command --help >help.txt
    expect 0 help.txt '' -- help $command
done
"$show" --version >help.txt
expect 0 help.txt '' -- -V

# The manual knows every option.
for command in '' $("$show" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p'); do
    for option in $("$show" ${command:+"$command"} --help | grep -oE '^ +(-[a-zA-Z],)?--[a-z-]+' | sed 's/.*--//'); do
        if ! grep -qE -- "Fl -$option( |\$)" "$source/docs/man/l2fib-show.1"; then
            echo "--$option of l2fib-show $command is not in the manual"
            failures=$((failures + 1))
        fi
    done
done

# What shells are told that may come next.
echo FILE >file.txt
expect 0 file.txt '' -- --complete replay --node 1 a.jsonl ''
expect 0 empty '' -- --complete replay --node ''
expect 0 empty '' -- --complete capture ac ac.bin ''
expect 0 empty '' -- --complete schema ''
printf -- '%s\n' --color=auto --color=always >words.txt
expect 0 words.txt '' -- --complete ac --json --color=a
printf 'replay\tShow the captures of files\n' >words.txt
expect 0 words.txt '' -- --complete rep
while read -r line; do
    typed=${line%% => *} word=${line#* => }
    # shellcheck disable=SC2086
    set -- ${typed#l2fib-show}
    word=$("$show" --complete "$@" | cut -f 1 | sed "s/^FILE\$/$word/")
    if [ "$word" != "${line#* => }" ]; then
        echo "--complete $*: $word"
        failures=$((failures + 1))
    fi
done <<END
$(sed '/^#/d' "$source/tests/client/completion.txt")
END

if ! "$show" ac - <"$capture" | cmp - "$screen"; then
    echo "standard input does not show what the file shows"
    failures=$((failures + 1))
fi
exit $((failures > 0))
