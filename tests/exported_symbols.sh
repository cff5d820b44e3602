#!/bin/sh
# exported_symbols.sh LIBRARY: the library exports what exported_symbols.txt lists, and nothing else.
nm -D --defined-only "$1" | awk '{ print $3 }' | LC_ALL=C sort | diff "$(dirname "$0")/exported_symbols.txt" -
