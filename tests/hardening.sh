#!/bin/sh
# hardening.sh LIBRARY PLATFORM_LIBRARY PROGRAM: what is built stops at an overflow of its stack, can be loaded anywhere,
# has nothing to run that can be written to, and the library asks for nothing but its environment.
status=0

# expect FILE PATTERN WHAT: the file's headers or symbols have it.
expect() {
    if ! { readelf -lW "$1" && readelf -dW "$1" && nm -D "$1"; } | grep -qE "$2"; then
        echo "$1: $3"
        status=1
    fi
}

for file in "$@"; do
    expect "$file" '^ +GNU_RELRO ' "relocations stay writable"
    expect "$file" 'BIND_NOW|Flags:.* NOW' "symbols are looked up late"
    expect "$file" '^ +GNU_STACK .* RW +0x' "the stack is executable"
    expect "$file" ' __stack_chk_fail@' "no stack protector"
done
expect "$3" 'Flags:.* PIE' "not position-independent"

operations='ifhandle_is_virtual|monotonic_now|node_card_type|status_text'
if nm -D --undefined-only --with-symbol-versions "$1" | grep -vE "^ +w | ($operations|_?memset_s(_chk)?)$|@GLIBC_[0-9.]+$"
then
    echo "$1: asks for more than the router, libc and the Safe C Library's memset_s"
    status=1
fi
exit $status
