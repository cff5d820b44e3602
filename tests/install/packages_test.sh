#!/bin/sh
# packages_test.sh BUILD_DIR PACKAGE_DIR: the packages have every installed file once, and name what they need.
set -eu
build=$(cd "$1" && pwd) packages=$(cd "$2" && pwd)
work=$(mktemp -d) && cd "$work"
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "$*"
    failures=$((failures + 1))
}

DESTDIR=$work/installed cmake --install "$build" >/dev/null
(cd installed && find . ! -type d) | LC_ALL=C sort >installed.txt
for package in libzel-l2fib1 libzel-l2fib-dev l2fib-show; do
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
depends libzel-l2fib-dev 'libzel-l2fib1 \(= [0-9.]+\)'
depends l2fib-show 'libzel-l2fib1 \(= [0-9.]+\).*libstdc\+\+6'

for binary in l2fib-show/usr/bin/* libzel-l2fib1/usr/lib/*/*.so.*.*; do
    readelf -d "$binary" >dynamic
    ! grep -E 'R(UN)?PATH' dynamic || fail "$binary has a run path"
done
exit $((failures > 0))
