#!/bin/sh
# include_direction.sh: calls go client -> front door -> rp -> hw -> formatting -> platform, and includes with them.
cd "$(dirname "$0")/.." || exit 2
status=0

# forbid FILES PATTERN REASON: no file of FILES includes anything that matches PATTERN.
forbid() {
    if grep -nE "^#include \"($2)" $1; then
        echo "$3"
        status=1
    fi
}

everywhere='client/|examples/|tests/|fuzz/|bench/|platform/host/'
forbid "$(ls common/*.h common/*.cpp | grep -v '^common/front_door\.')" "rp/|hw/|$everywhere" "formatting knows no record"
forbid "common/front_door.cpp" "rp/[a-z0-9_]*(detail|private)|rp/[a-z_]*_context\.h|hw/|$everywhere" \
    "the front door knows no record and no view"
forbid "$(ls rp/*.h rp/*.cpp)" "hw/|$everywhere" "the RP's side reaches the hardware's through the print table"
forbid "$(ls hw/*.h hw/*.cpp)" "rp/[a-z_]*(detail|private)|rp/context_end|$everywhere" "the hardware's side calls no RP view"
forbid "$(ls include/zel_l2fib/*.h platform/*.h)" "common/|rp/|hw/|$everywhere" "the seams stand alone"
forbid "$(ls client/*.h client/*.cpp)" "common/|hw/|rp/[a-z_]*(detail|private|end)" \
    "the client sees the exported interface, and where a record has its XID"
forbid "$(ls examples/*.h examples/*.cpp platform/host/*.cpp)" "tests/|fuzz/|bench/" "what tests and measures is used by nothing"
exit $status
