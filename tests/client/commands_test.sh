#!/bin/sh
# commands_test.sh L2FIB_SHOW SOURCE_DIR: what commands print, and how they exit, is in tests/screens/commands.txt.
# With L2FIB_ACCEPT_SCREENS set, what they print now is made what is expected.
show=$1
source=$2
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
cp "$source"/examples/*.jsonl "$source/examples/faults/planted.jsonl" .

# run ARGUMENT...
run() {
    echo "== $*"
    LC_ALL=C "$show" "$@" </dev/null 2>&1
    echo "== exit status $?"
}

# page ARGUMENT...: the elements of a page, without its script and style sheet.
page() {
    echo "== page $*"
    { "$show" page "$@" </dev/null 2>&1 && echo || printf '\n== exit status %s\n' $?; } |
        perl -0777 -pe 's/<(script|style)>.*?<\/\1>//gs; s/content="default-src[^"]*"//; s/></>\n</g'
}

# outline ARGUMENT...: a page without the values and bytes of its objects.
outline() {
    page "$@" | perl -0777 -pe 's/<noscript>.*?<\/noscript>\n//gs'
}

# edit NODE SAMPLE [OFFSET HEX]...: a sample with other bytes at offsets of its show data.
edit() {
    perl -e 'my ($node, $sample, @edits) = @ARGV;
             open my $file, "<", "$sample.jsonl";
             $_ = <$file>;
             s/"node":\d+/"node":$node/;
             my $data = index($_, "show_data\":\"") + 12;
             while (my ($offset, $hex) = splice @edits, 0, 2) {
                 substr($_, $data + 2 * $offset, length $hex) = $hex;
             }
             print' "$@"
}

# line NUMBER: a planted fault.
line() {
    sed -n "$1p" planted.jsonl
}

{
    # Across objects: XIDs of a BVI, of another node, of an AC that is in no bridge, and in an entry that disagrees.
    {
        cat bridge-ingress.jsonl vpls-ac-ingress.jsonl
        edit 0 local-mac 24 00ff0001 120 00ff0001
        edit 0 local-mac 24 00ff0002
    } >references
    run check references
    {
        edit 1 vpls-ac-ingress
        edit 1 vpls-ac-egress 26 00340005
        edit 0 vpls-ac-ingress 26 00340002
        edit 0 local-mac
        edit 1 local-mac 24 00000000
        edit 0 bridge-private 6 00000001
        edit 0 local-switch-ac 30 0000000c
        edit 0 vpls-pw-ingress 8 00000001
        edit 0 vpls-pw-private 16 00380009
    } >nodes
    run check nodes
    {
        cat local-switch-ac.jsonl
        edit 1 local-switch-ac 26 00390001
        edit 0 local-mac 24 00390001 120 00390001
    } >next
    run check next
    # A bridge of more members than are kept unsorted, in any order.
    { cat vpls-ac-ingress.jsonl && for _ in $(seq 300); do cat bridge-ingress.jsonl; done; } >many
    run check many

    # What is in all files is told: a finding that is twice in one of them is in one, of another NP it is another.
    cat vpls-ac-ingress.jsonl >agrees
    line 3 >shg
    edit 0 vpls-ac-ingress 3714 00000001 >shg_of_another_np
    cat shg shg >twice
    run check --all twice agrees
    run check agrees twice
    run check twice shg
    run check shg shg_of_another_np
    run check twice

    # A limit that one line shows as negative, and the record of the RP has without a sign.
    edit 0 vpls-ac-ingress 38 ffffffff 2794 ffffffff 3246 ffffffff 3698 ffffffff >unlimited
    run check unlimited

    # Tables that are just full, and in which one of everything has failed.
    perl -pe 's/(show_data":".{24})(.*)"/$1 . "00000001" x (length($2) \/ 8) . "\""/e' resources.jsonl >ones
    run check ones

    # More than is told: copies of a bridge's members that are others all over, and a report of many errors.
    ones=$(printf '%096d' 0 | tr 0 f)
    edit 0 bridge-ingress 2370 "$ones" 2466 "$ones" 2850 "$ones" >copies
    run check copies
    perl -e 'print "{\"object\":\"ac\",\"view\":\"inconsistent\",\"show_data\":\"";
             printf "01070%d%08x%s", 3 + $_ % 2, $_, "040301" x ($_ % 20 == 0) for 1 .. 110;
             print "050301\"}\n"' >report
    run check report

    # Flags that no rule is about: an NP has two more than the first one, and another has one of these.
    edit 0 vpls-ac-ingress 3230 26160000 3682 22160000 >flags
    run check flags

    # Eight NPs, each with another VLAN; two have bridge ports, and the first one has no MAC limit, which no line shows.
    perl -ne '/(.*"show_data":")(.*)"/;
              my ($line, $data) = ($1, $2);
              my $bytes = sub { substr $data, 2 * $_[0], 2 * $_[1] };
              my $block = $bytes->(166, 2596);
              substr $block, 0, 8, "00000008";
              substr $block, 2 * 108, 4, "00ff";
              print $line, "0008", $bytes->(2, 104), "00" x 160, $block;
              for my $number (0 .. 7) {
                  my $np = $bytes->(2762, 452);
                  substr $np, 2 * 32, 8, "00000000" if $number == 0;
                  substr $np, 2 * 188, 8, "00000000" if $number > 1;
                  substr $np, 2 * 384, 4, sprintf("%04x", 100 + $number);
                  print $np;
              }
              print "00000000\"}\n"' vpls-ac-ingress.jsonl >eight
    run check eight

    # What has changed of the samples, for each planted fault.
    cat ./*-*.jsonl resources.jsonl | perl -e '
        sub kind { $_[0] =~ /^(.*"show_data":")(.*)"/; $1 . length $2 }
        my %of = map { kind($_) => $_ } <STDIN>;
        open my $planted, "<", "planted.jsonl";
        print map { $of{kind($_)} } <$planted>' >before
    sed 's/"node":[0-9]*/"node":300/' local-mac.jsonl >>before
    run diff before planted.jsonl
    edit 0 vpls-ac-ingress 98 01000000 >np1
    for file in flags np1; do
        run diff vpls-ac-ingress.jsonl $file
        run diff $file vpls-ac-ingress.jsonl
    done
    sed -E 's/(show_data":"[0-9a-f]{400}).*/\1"}/' vpls-ac-ingress.jsonl >short
    run diff vpls-ac-ingress.jsonl short
    run diff --json short vpls-ac-ingress.jsonl
    run check short vpls-ac-ingress.jsonl
    run check --json short

    # Bytes that no line shows: many, few, zeros, and those behind all records.
    noise=$(printf '%0400d' 0 | sed 's/00000000/0000000a/g')
    printf '{"object":"hal-summary","show_data":"%s"}\n' "00000000$noise" >noise
    printf '{"object":"hal-summary","show_data":"%s%s"}\n' "00000000" "$(printf '%0400d' 0)" >>noise
    printf '{"object":"mac","show_data":"%0300d11"}\n' 0 >>noise
    run replay --bytes --color always noise
    run replay --bytes point-to-point-pw.jsonl
    run replay --json ./*-*.jsonl
    run replay --json --heading noise
    sed -E 's/(show_data":"[0-9a-f]{40}).*/\1"}/' ./*-*.jsonl >twenty_bytes
    run replay --json twenty_bytes

    # Flags without a name, and each flag of the HAL: one says in what the rates of storm control are.
    echo "== replay --bytes, flags without a name"
    "$show" replay --bytes vpls-ac-ingress.jsonl bridge-ingress.jsonl | grep '#'
    for flag in 80 40 20 10 08 04 02 01; do
        edit 0 bridge-ingress 918 $flag >hal
        echo "== HAL flag $flag"
        "$show" replay hal | grep -A 1 -E 'HAL context|Storm Control Conf'
    done

    # By status.
    cat short vpls-ac-ingress.jsonl >mixed
    for status in ok failed; do
        run replay --count --status $status mixed
    done

    edit 0 local-mac 8 00000000 120 00340009 >mac
    page mac
    line 30 >pw
    page pw
    outline nodes references short
    { cat local-switch-ac.jsonl && edit 0 local-mac; } >across
    outline across
    line 51 >"it's <b>"
    outline "it's <b>" mac pw
    outline --object bridge noise
} >commands.txt
[ -z "${L2FIB_ACCEPT_SCREENS:-}" ] || cp commands.txt "$source/tests/screens/commands.txt"
diff -u "$source/tests/screens/commands.txt" commands.txt
