#!/bin/sh
# include_direction.sh: calls go client -> common/entry -> rp -> (print table) -> hw -> common -> platform, and includes
# with them.
cd "$(dirname "$0")/.." || exit 2
status=0

# forbid FILES PATTERN REASON: no file of FILES includes anything that matches PATTERN.
forbid() {
    for file in $1; do
        if [ ! -f "$file" ]; then
            echo "no files: $file"
            status=1
        elif grep -nHE "^#include \"($2)" "$file"; then
            echo "$3"
            status=1
        fi
    done
}

outside='client/|examples/|tests/|fuzz/|bench/|platform/host/'
rp_views='rp/(detail|private|context_end|event_statistics|state_summary)\.h'
forbid "common/*.h common/*.cpp" "common/entry/|rp/|hw/|$outside" "formatting knows no record and no view"
forbid "common/entry/*.h common/entry/*.cpp" "$outside" "the doors know only the library"
forbid "rp/*.h rp/*.cpp" "common/entry/|hw/|$outside" "the RP's side reaches the hardware's through the print table"
forbid "hw/*.h hw/*.cpp" "common/entry/|$rp_views|$outside" "the hardware's side knows the RP's records, and calls no RP view"
forbid "include/zel_l2fib/*.h platform/*.h" "common/|rp/|hw/|$outside" "the seams depend on nothing"
forbid "client/*.h client/*.cpp" "common/|hw/|$rp_views|examples/|tests/|fuzz/|bench/|platform/host/" \
    "the client sees the exported interface, and where a record has its XID"
forbid "examples/*.h examples/*.cpp platform/host/*.cpp" "tests/|fuzz/|bench/" "what tests and measures is used by nothing"
exit $status
