#!/bin/sh
# install_test.sh BUILD_DIR SOURCE_DIR LIBDIR: the programs of others find, compile, link and load what is installed,
# wherever it is moved.
set -eu
build=$1 source=$2 libdir=$3
work=$(mktemp -d) && cd "$work"
trap 'rm -rf "$work"' EXIT

if [ "${libdir#/}" != "$libdir" ]; then # given as an absolute path: it cannot be moved, but be found in another root
    DESTDIR=$work cmake --install "$build" >/dev/null
    export PKG_CONFIG_SYSROOT_DIR="$work" PKG_CONFIG_LIBDIR="$work$libdir/pkgconfig"
    # shellcheck disable=SC2046
    cc -o client "$source/tests/install/client.c" $(pkg-config --cflags --libs zel_l2fib)
    test "$(LD_LIBRARY_PATH=$work$libdir ./client)" = 1
    exit
fi

cmake --install "$build" --prefix "$work/staged" >/dev/null
prefix=$work/prefix
mv staged "$prefix"
export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
libraries=$prefix/$libdir
clients=$source/tests/install
strict="-Wall -Wextra -Wpedantic -Werror"
failures=0

# expect WHAT FILE COMMAND...: the command prints the file, and nothing on standard error.
expect() {
    what=$1 wanted=$2
    shift 2
    if ! "$@" >printed 2>&1 || ! diff "$wanted" printed; then
        echo "$what: failed, or printed something else"
        failures=$((failures + 1))
    fi
}

# compile OUTPUT COMPILER ARGUMENT...: with what pkg-config says.
compile() {
    output=$1
    shift
    # shellcheck disable=SC2046,SC2086
    "$@" $strict -o "$output" $(pkg-config --cflags --libs zel_l2fib)
}

echo 1 >stand_in
echo 0 >own

# A build for /usr names no run path: its libraries are where the loader looks.
if grep -q '^CMAKE_INSTALL_PREFIX:PATH=/usr$' "$build/CMakeCache.txt"; then
    export LD_LIBRARY_PATH="$libraries"
fi
expect "l2fib-show" "$source/tests/screens/local-mac.txt" \
    "$prefix/bin/l2fib-show" replay "$prefix/share/doc/zel_l2fib/examples/local-mac.jsonl"

cmake -G Ninja -S "$clients" -B cmake -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build cmake >/dev/null
expect "find_package, C" stand_in cmake/client-c
expect "find_package, C++" stand_in cmake/client-cpp
expect "find_package, a program's own operations" own cmake/client-own

export LD_LIBRARY_PATH="$libraries"
compile client cc -std=c11 "$clients/client.c"
expect "pkg-config, C" stand_in ./client
compile client-cpp c++ -std=c++20 -x c++ "$clients/client.c"
expect "pkg-config, C++" stand_in ./client-cpp

compile client-own cc -std=c11 "$clients/client.c" "$clients/own_platform.c"
expect "pkg-config, a program's own operations" own ./client-own
compile client-loading cc -std=gnu11 -rdynamic "$clients/loading_client.c" "$clients/own_platform.c" -Wl,--as-needed
expect "dlopen, a program's own operations" own ./client-loading

# A router's own platform library, without a version script and with versions of its own.
export LD_LIBRARY_PATH="$work/router:$libraries"
mkdir router
for option in --no-undefined --default-symver; do
    compile router/libzel_l2fib_platform.so.1 cc -std=c11 -shared -fPIC "$clients/own_platform.c" \
        -Wl,-soname,libzel_l2fib_platform.so.1 "-Wl,$option" -Wl,--as-needed
    expect "a router's platform library, $option" own ./client
done

# What the integration page says, as it says it: its program, and a router's platform library.
page=$prefix/share/doc/zel_l2fib/integration.md

# fenced LANGUAGE: the text of the page's block in that language.
fenced() {
    awk -v fence="\`\`\`$1" '$0 == fence { on = 1; next } /^```/ { on = 0 } on' "$page"
}
fenced c >show_mac.c
fenced text >show_mac.txt
mkdir followed && cd followed
cp ../show_mac.c "$clients/own_platform.c" .
awk '/^    cc / { on = 1 } on { print } !/\\$/ { on = 0 }' "$page" >commands
expect "the integration page's commands" /dev/null sh -e commands
export LD_LIBRARY_PATH="$libraries"
expect "the integration page's program" ../show_mac.txt ./show_mac
export LD_LIBRARY_PATH="$PWD:$libraries"
expect "the integration page's platform library" ../own ../client
expect "... exports the stand-in's versions" /dev/null sh -c '
    nm -D --defined-only libzel_l2fib_platform.so.1 | grep -v "@@ZEL_L2FIB_PLATFORM_1$\| A ZEL_L2FIB_PLATFORM_1$" || true'

exit $((failures > 0))
