#!/bin/sh
# does_not_compile.sh COMPILER SOURCE_DIR: what would print or read something else than it says does not compile: a format
# that does not fit its arguments, a flag table that names a bit twice, a number of the show data that is not converted.
compiler=$1 source=$2
failures=0

# compiles STATEMENT
compiles() {
    cat - >unit.cpp <<EOF_UNIT
#include "common/list.h"
#include "common/show_data.h"
#include "common/working_copies.h"
using namespace l2fib;
struct Counts {
    U32 created;
    BigU32 kept;
    using Fields = l2fib::Fields<&Counts::created, &Counts::kept>;
};
void f(Output &out, U32 field, std::uint64_t wide, ShowData data, Received<Counts> &received,
       const Received<Counts> &view, StoredRecord<Counts> &stored)
{
$1
}
EOF_UNIT
    "$compiler" -std=c++20 -fsyntax-only -I "$source" -I "$source/include" -Wno-unused unit.cpp 2>messages
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
bad 'out.text("%81s", "text");'
bad "constexpr Literal text = \"$(printf '%081d' 0)\";"
bad 'List{out, 1}.item("XID: 0x%08x", "text");'
bad 'out.line(1, "NP%d", wide);'

good 'static constexpr FlagTable flags{{{0, "Up"}, {3, "Down", "Off"}}};'
bad 'static constexpr FlagTable flags{{{0, "Up"}, {0, "Down"}}};'
bad 'static constexpr FlagTable flags{{{32, "Up"}}};'
bad 'static constexpr FlagTable flags{{{0, ""}}};'
good 'out.text("%d", received.to_host().created);'
good 'out.text("%d", view.peek<&Counts::created>());'
good 'out.text("%d", HostCopy(view)->created);'
good 'out.text("%d", stored.value().created);'
bad 'out.text("%d", received.created);'
bad 'out.text("%d", received.kept);'
bad 'out.text("%d", stored.created);'
bad 'out.text("%d", view.to_host().created);'
bad 'view.to_host_only<&Counts::created>();'
bad 'received.to_host().created = field;'

good 'data.at<Received<Counts>>(0)->to_host();'
good 'data.at<BigU32>(0)->value();'
good 'data.array_at<const Received<Counts>>(0, 2);'
bad 'data.at<Counts>(0);'
bad 'data.at<const Counts>(0);'
bad 'data.at<U32>(0);'
bad 'data.array_at<U16>(0, 2);'
bad 'data.at<const Received<Counts>>(0)->to_host();'
bad 'ShowData::unchecked<Counts>(data.bytes());'
bad 'data.at<std::uint32_t>(0);'

good 'struct R { U32 a; U32 b; using Fields = l2fib::Fields<&R::a, &R::b>; }; sizeof(Received<R>);'
bad 'struct R { U32 a; U32 b; using Fields = l2fib::Fields<&R::a>; }; sizeof(Received<R>);'
bad 'struct R { U32 a; U32 b; using Fields = l2fib::Fields<&R::a, &R::a>; }; sizeof(Received<R>);'
bad 'struct R { U32 a; U32 b; }; sizeof(Received<R>);'
exit $((failures > 0))
