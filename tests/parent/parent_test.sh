#!/bin/sh
# parent_test.sh SOURCE_DIR CC CXX: a project that has the library in its tree gets the library, and nothing else.
set -eu
source=$1 cc=$2 cxx=$3
work=$(mktemp -d) && cd "$work"
trap 'rm -rf "$work"' EXIT
failures=0

# expect WHAT WANTED GOT
expect() {
    if [ "$3" != "$2" ]; then
        echo "$1, fetched $fetched: not '$2', but '$3'"
        failures=$((failures + 1))
    fi
}

for fetched in OFF ON; do
    cmake -G Ninja -S "$source/tests/parent" -B build -DFETCHED=$fetched -DL2FIB_SOURCE_DIR="$source" \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
    cmake --build build >messages || {
        cat messages
        exit 1
    }
    expect "targets" "zel_l2fib_platform;l2fib_platform_twin;l2fib_objects;zel_l2fib;" "$(cat build/brought)"
    expect "the stand-in's card" 1 "$(build/client)"
    expect "the program's own card" 0 "$(build/client-own)"
    expect "tests" "Total Tests: 0" "$(ctest --test-dir build -N | grep Total)"
    rm -rf installed
    cmake --install build --prefix installed >/dev/null
    expect "installed" "" "$(find . -path './installed/*')"
done
exit $((failures > 0))
