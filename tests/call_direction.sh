#!/bin/sh
# call_direction.sh NM OBJECT...: what the objects of the library use of each other goes the way of the calls too, where no
# include tells: the RP's side and the hardware's do not know each other, and nothing but the doors knows the doors.
nm=$1
shift
for object in "$@"; do
    inside=${object##*l2fib_objects.dir/}
    inside=${inside#./} # as some versions of CMake write it
    case $inside in
    common/entry/*) room=entry ;;
    *) room=${inside%%/*} ;;
    esac
    "$nm" "$object" | awk -v room="$room" -v object="$inside" '{ print room, object, $(NF - 1), $NF }'
done | awk '
    BEGIN {
        forbidden["rp hw"] = forbidden["rp entry"] = forbidden["hw rp"] = forbidden["hw entry"] = 1
        forbidden["common rp"] = forbidden["common hw"] = forbidden["common entry"] = 1
    }
    $3 ~ /^[TDBR]$/ { room_of[$4] = $1; defined[$1]++ }
    $3 == "U" { uses[++count] = $1 " " $4; user[count] = $2 }
    END {
        for (i = 1; i <= count; ++i) {
            split(uses[i], use, " ")
            if ((use[1] " " room_of[use[2]]) in forbidden) {
                print user[i] " uses " use[2] " of " room_of[use[2]]
                failed = 1
            }
        }
        if (!defined["rp"] || !defined["hw"] || !defined["common"] || !defined["entry"]) {
            print "a room has no objects"
            failed = 1
        }
        exit failed
    }'
