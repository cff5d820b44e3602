#!/bin/sh
# bare_tree_test.sh PACKAGE_DIR TREE: in a Debian that has nothing of ours, the packages can be installed and used, given a
# router's platform library as the integration page says, upgraded, and purged. TREE is made when there is none, and stays
# as it is. Needs root.
# shellcheck disable=SC2016
set -eu
source=$(cd "$(dirname "$0")/../.." && pwd)
if [ ! -d "$2" ]; then
    debootstrap --variant=minbase --include=gcc,libc6-dev,man-db,pkg-config bookworm "$2" >/dev/null
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -a "$2" "$work/tree"
here=$work/tree/root/packages
mkdir -p "$here/next"
cp "$1"/*.deb "$here"
failures=0

# inside COMMAND: in the tree, where the packages are.
inside() {
    printf 'cd /root/packages\n%s\n' "$1" >"$here/command"
    unshare --mount sh -ec 'mount -t proc proc "$0/proc"
        exec chroot "$0" env LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive sh -e /root/packages/command' "$work/tree"
}

# quietly WHAT COMMAND: it succeeds.
quietly() {
    inside "$2" >"$work/messages" 2>&1 || {
        echo "$1:"
        cat "$work/messages"
        exit 1
    }
}

# prints WHAT COMMAND FILE: the command prints the file.
prints() {
    if ! inside "$2" 2>&1 | diff "$3" - >"$work/difference"; then
        echo "$1:"
        cat "$work/difference"
        failures=$((failures + 1))
    fi
}
echo 1 >"$work/stand_in"
echo 0 >"$work/own"

# The next release, of the same contents.
for package in "$here"/*.deb; do
    dpkg-deb --raw-extract "$package" "$work/next"
    sed -Ei '/^(Version|Depends):/s/1\.0\.0/1.0.1/' "$work/next/DEBIAN/control"
    dpkg-deb --root-owner-group --build "$work/next" "$here/next" >/dev/null
    rm -r "$work/next"
done

quietly "installing" "apt-get update; apt-get install -y ./*.deb"
prints "l2fib-show" "l2fib-show replay /usr/share/doc/zel_l2fib/examples/local-mac.jsonl" \
    "$source/tests/screens/local-mac.txt"
quietly "the manual's page of a function" "man zel_l2fib_print_internal | grep -q objtype; man l2fib-show | grep -q replay"

# The integration page, followed.
page=$source/docs/integration.md
cp "$source/tests/install/own_platform.c" "$source/tests/install/client.c" "$here"
mkdir -p "$here/package/DEBIAN"
awk '$0 == "```c" { on = 1; next } /^```/ { on = 0 } on' "$page" >"$here/show_mac.c"
awk '$0 == "```control" { on = 1; next } /^```/ { on = 0 } on' "$page" >"$here/package/DEBIAN/control"
awk '/^    (cc|mkdir|cp|dpkg-deb|apt) / { on = 1 } on { print } !/\\$/ { on = 0 }' "$page" |
    sed 's/ apt / apt-get -y /' >"$here/commands"
quietly "a client" 'cc -o client client.c $(pkg-config --cflags --libs zel_l2fib zel_l2fib_platform)'
prints "the stand-in" ./client "$work/stand_in"
quietly "the integration page's commands" "sh -e commands"
prints "a router's platform library" ./client "$work/own"
quietly "upgrading" "rm next/libzel-l2fib-platform1_*; apt-get install -y ./next/*.deb"
prints "a router's platform library after an upgrade" ./client "$work/own"
quietly "a client beside the router's platform library" \
    'cc -o client client.c $(pkg-config --cflags --libs zel_l2fib zel_l2fib_platform)'

quietly "purging" "apt-get purge -y l2fib-show libzel-l2fib1 libzel-l2fib-dev router-l2fib-platform"
prints "what is left" "find / -xdev ! -path '/root/*' ! -path '/proc/*' -name '*l2fib*' ! -path '/var/cache/*'" /dev/null
exit $((failures > 0))
