#!/bin/sh
# fleet_test.sh L2FIB_SHOW SOURCE_DIR: the commands of docs/fleet.md do what it says, with GNU parallel, and with two
# "machines" that are this one, by ssh.
show=$(realpath "$1")
source=$(realpath "$2")
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"; [ ! -s "$work.pid" ] || kill "$(cat "$work.pid")"; rm -f "$work.pid"' EXIT

ssh-keygen -q -t ed25519 -N '' -f "$work/key" || exit 2
cp "$work/key.pub" "$work/authorized"
port=$((20000 + $$ % 20000))
cat >"$work/sshd_config" <<END
ListenAddress 127.0.0.1
Port $port
HostKey $work/key
AuthorizedKeysFile $work/authorized
PidFile $work.pid
StrictModes no
UsePAM no
SetEnv PATH=$(dirname "$show"):/usr/bin:/bin
END
cat >"$work/ssh_config" <<END
Host edge1 edge2
HostName 127.0.0.1
Port $port
User $(id -un)
IdentityFile $work/key
StrictHostKeyChecking no
UserKnownHostsFile /dev/null
LogLevel ERROR
END
[ "$(id -u)" -ne 0 ] || mkdir -p /run/sshd
/usr/sbin/sshd -f "$work/sshd_config" || exit 2

# The document's commands know nothing of this.
mkdir -p "$work/home/.parallel"
: >"$work/home/.parallel/will-cite"
HOME=$work/home PARALLEL_SSH="ssh -F $work/ssh_config" \
    "$source/tests/client/document_test.pl" "$source/docs/fleet.md" "$show" "$source"
