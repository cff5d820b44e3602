#!/bin/sh
# formats_compile.sh COMPILER SOURCE_DIR: a format that does not fit its arguments does not compile, nor does a flag table
# that names a bit twice.
compiler=$1 source=$2
failures=0

# compiles STATEMENT
compiles() {
    printf '#include "common/list.h"\nusing namespace l2fib;\nvoid f(Output &out, U32 field, std::uint64_t wide)\n{\n%s\n}\n' "$1" |
        "$compiler" -std=c++20 -fsyntax-only -I "$source" -I "$source/include" -Wno-unused -x c++ - 2>messages
}
good() {
    compiles "$1" || {
        echo "does not compile: $1"
        cat messages
        failures=$((failures + 1))
    }
}
bad() {
    if compiles "$1"; then
        echo "compiles: $1"
        failures=$((failures + 1))
    fi
}
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT

good 'out.text("%d %08x %-6u %5d%s %lu %zd", field, field, field, field, "text", wide, wide);'
bad 'out.text("%d");'
bad 'out.text("", field);'
bad 'out.text("%d", field, field);'
bad 'out.text("%d", wide);'
bad 'out.text("%lu", field);'
bad 'out.text("%s", field);'
bad 'out.text("%d", "text");'
bad 'out.text("%f", field);'
bad 'out.text("100%");'
bad 'out.text("%65s", "text");'
bad 'List{out, 1}.item("XID: 0x%08x", "text");'
bad 'out.line(1, "NP%d", wide);'

good 'static constexpr FlagTable flags{{{0, "Up"}, {3, "Down", "Off"}}};'
bad 'static constexpr FlagTable flags{{{0, "Up"}, {0, "Down"}}};'
bad 'static constexpr FlagTable flags{{{32, "Up"}}};'
bad 'static constexpr FlagTable flags{{{0, ""}}};'
exit $((failures > 0))
