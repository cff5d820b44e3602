# l2fib_embed(FILE NAME HASH): writes the bytes of a file into NAME.inc, as an initialiser of an array of char, and sets
# HASH to their SHA-256 as a Content-Security-Policy writes it, in base64.
function(l2fib_embed file name hash)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(READ ${file} bytes HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
    file(CONFIGURE OUTPUT ${name}.inc CONTENT "@bytes@" @ONLY)

    set(digits ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
    file(SHA256 ${file} hex)
    set(base64)
    foreach(at RANGE 0 63 6) # three bytes are four digits; the last two bytes are three of them
        string(SUBSTRING "${hex}00" ${at} 6 group)
        foreach(shift 18 12 6 0)
            math(EXPR digit "(0x${group} >> ${shift}) & 63")
            string(SUBSTRING ${digits} ${digit} 1 digit)
            string(APPEND base64 ${digit})
        endforeach()
    endforeach()
    string(REGEX REPLACE ".$" "=" base64 ${base64})
    set(${hash} ${base64} PARENT_SCOPE)
endfunction()
