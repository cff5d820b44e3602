#!/bin/sh
# exported_symbols.sh LIBRARY HEADER MARK [VERSION]: the library exports what the header marks, in that version, and no
# more.
sed -nE "s/^$3 [^(;[]*[ *]([a-z][a-z0-9_]*)[[(;].*/\1${4:+@@$4}/p" "$2" | LC_ALL=C sort | diff - /dev/fd/3 3<<EOF
$(nm -D --defined-only --with-symbol-versions "$1" | awk '$2 != "A" { print $3 }' | LC_ALL=C sort)
EOF
