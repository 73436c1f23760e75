# SPDX-License-Identifier: GPL-3.0-or-later
# GNU parallel over ssh to two "hosts", both this machine by a server of the test's own.
. "$ROOT/tests/scale/scale.sh"
long_form
need parallel
need ssh
[ -x /usr/sbin/sshd ] || skip "sshd is not installed"
prepare 60
ssh-keygen -q -t ed25519 -N '' -f "$work/host_key"
ssh-keygen -q -t ed25519 -N '' -f "$work/key"
port=$((20000 + RANDOM % 20000))
cat >"$work/sshd_config" <<END
Port $port
ListenAddress 127.0.0.1
HostKey $work/host_key
AuthorizedKeysFile $work/key.pub
PidFile $work/sshd.pid
StrictModes no
UsePAM no
PasswordAuthentication no
SetEnv PATH=$PATH
END
[ "$(id -u)" -ne 0 ] || mkdir -p /run/sshd
/usr/sbin/sshd -D -f "$work/sshd_config" -E "$work/sshd.log" &
at_end "kill $!"
cat >"$work/ssh_config" <<END
Host host1 host2
    HostName 127.0.0.1
    Port $port
    IdentityFile $work/key
    UserKnownHostsFile $work/known_hosts
    StrictHostKeyChecking no
    LogLevel ERROR
END
for ((i = 0; i < 100; i++)); do ssh -F "$work/ssh_config" host1 true 2>"$work/said" && break || sleep 0.1; done
ssh -F "$work/ssh_config" host2 true || skip "no server could be started: $(cat "$work/sshd.log")"
timeout 250 parallel --will-cite --ssh "ssh -F $work/ssh_config" --sshlogin 2/host1,2/host2 \
    zelpane --batch "$work/in" "$work/out" "${options[@]}" --jobs 1 --shard {}/4 ::: 1 2 3 4 || fail "parallel ended with $?"
same_files "$work/whole" "$work/out"
