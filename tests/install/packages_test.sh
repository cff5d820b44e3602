#!/bin/sh
# packages_test.sh BUILD_DIR PACKAGE_DIR: the packages have every installed file once, name what they need and what they
# export, are as Debian wants them, and hold the same libraries wherever they were built.
set -eu
build=$(cd "$1" && pwd) packages=$(cd "$2" && pwd) source=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d) && cd "$work"
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "$*"
    failures=$((failures + 1))
}

DESTDIR=$work/installed cmake --install "$build" >/dev/null
(cd installed && find . ! -type d) | LC_ALL=C sort >installed.txt
for package in libzel-l2fib-platform1 libzel-l2fib1 libzel-l2fib-dev l2fib-show; do
    dpkg-deb -x "$packages/$package"_*.deb $package
    dpkg-deb -f "$packages/$package"_*.deb Depends >$package.depends
    (cd $package && find . ! -type d ! -path "./usr/share/doc/$package/*")
done | sed -E 's,(/man/.*)\.gz$,\1,' | LC_ALL=C sort >packaged.txt
diff installed.txt packaged.txt || fail "the packages do not have every installed file once"

# depends PACKAGE PATTERN
depends() {
    grep -qE "$2" "$1.depends" || fail "$1 does not depend on $2, but on $(cat "$1.depends")"
}
depends libzel-l2fib1 'libsafec3'
depends libzel-l2fib1 '(^|, )libzel-l2fib-platform1(,|$)' # in any version: a router has its own
depends libzel-l2fib-dev 'libzel-l2fib1 \(= [0-9.]+\), libzel-l2fib-platform1$'
depends l2fib-show 'libzel-l2fib1 \(= [0-9.]+\).*libstdc\+\+6'

for binary in l2fib-show/usr/bin/* libzel-l2fib*1/usr/lib/*/*.so.*.*; do
    readelf -d "$binary" >dynamic
    ! grep -E 'R(UN)?PATH' dynamic || fail "$binary has a run path"
done

for part in runtime:libzel-l2fib1 platform:libzel-l2fib-platform1; do
    symbols=$source/packaging/${part%%:*}/symbols package=${part#*:}
    dpkg-gensymbols "-p$package" -v1.0.0 -Pnone -e"$(echo "$package"/usr/lib/*/*.so.1)" "-I$symbols" -c4 -Omade >/dev/null ||
        fail "$package does not export what its symbols file says"
done
lintian --allow-root --fail-on error,warning "$packages"/*.deb || fail "lintian complains"

elsewhere=$work/another/place
mkdir -p "$elsewhere"
(cd "$source" && git ls-files -z --cached --others --exclude-standard | tar -c --null -T -) | tar -x -C "$elsewhere"
cmake -G Ninja -S "$elsewhere" -B "$elsewhere/build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DL2FIB_CLIENT=OFF -DL2FIB_EXAMPLES=OFF -DBUILD_TESTING=OFF >/dev/null
cmake --build "$elsewhere/build" >/dev/null
DESTDIR=$elsewhere cmake --install "$elsewhere/build" --strip >/dev/null
for library in libzel-l2fib*1/usr/lib/*/*.so.1; do
    cmp "$library" "$elsewhere/${library#*/}" || fail "$library is another one when it is built in another place"
done
exit $((failures > 0))
