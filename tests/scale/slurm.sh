# SPDX-License-Identifier: GPL-3.0-or-later
# A real Slurm controller and node run the job array of the examples over 200 pictures; one worker is killed and its task run again.
. "$ROOT/tests/scale/scale.sh"
long_form
for program in slurmctld slurmd munged sbatch; do PATH=$PATH:/usr/sbin need $program; done
export PATH=$PATH:/usr/sbin
prepare 200
check_plans 4

host=$(hostname -s)
port=$((20000 + RANDOM % 20000))
d=$work/slurm
mkdir -p "$d/state" "$d/spool" "$d/log"
cat >"$d/slurm.conf" <<END
ClusterName=test
SlurmctldHost=$host(127.0.0.1)
SlurmctldPort=$port
SlurmdPort=$((port + 1))
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
AuthInfo=socket=$d/munge.sock
CredType=cred/munge
StateSaveLocation=$d/state
SlurmdSpoolDir=$d/spool
SlurmctldPidFile=$d/slurmctld.pid
SlurmdPidFile=$d/slurmd.pid
SlurmctldLogFile=$d/log/slurmctld.log
SlurmdLogFile=$d/log/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
SchedulerType=sched/builtin
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
MpiDefault=none
SwitchType=switch/none
ReturnToService=2
MailProg=/bin/true
SlurmdParameters=config_overrides
NodeName=$host NodeAddr=127.0.0.1 CPUs=4 Boards=1 SocketsPerBoard=1 CoresPerSocket=4 ThreadsPerCore=1 State=UNKNOWN
PartitionName=all Nodes=$host Default=YES MaxTime=10 State=UP
END
head -c 1024 /dev/urandom >"$d/munge.key"
chmod 600 "$d/munge.key"
munged -F --force --key-file="$d/munge.key" --socket="$d/munge.sock" --pid-file="$d/munged.pid" --seed-file="$d/munge.seed" \
    --log-file="$d/log/munged.log" >"$d/log/munged.out" 2>&1 &
at_end "kill $!; wait $!"
export SLURM_CONF=$d/slurm.conf
for ((i = 0; i < 100; i++)); do [ -S "$d/munge.sock" ] && break || sleep 0.05; done
slurmctld -D >"$d/log/ctld.out" 2>&1 &
at_end "kill $!; wait $!"
slurmd -D -N "$host" >"$d/log/d.out" 2>&1 &
at_end "kill $!; wait $!"
for ((i = 0; i < 300; i++)); do
    [ "$(timeout 5 sinfo -h -o %T 2>/dev/null)" = idle ] && break || sleep 0.1
done
[ "$(timeout 5 sinfo -h -o %T 2>/dev/null)" = idle ] || skip "Slurm cannot start here: $(tail -n 3 "$d"/log/*.log)"

# wait_for_jobs: until the queue is empty, looking at what can be seen meanwhile.
wait_for_jobs() {
    local i
    for ((i = 0; i < 600; i++)); do
        [ -n "$(timeout 10 squeue -h)" ] || return 0
        check_what_is_there
        sleep 0.2
    done
    fail "the jobs have not ended: $(squeue)"
}
state_of() { scontrol -o show job "$1" | grep -oE 'JobState=[A-Z]+' | sort | uniq -c | tr -s ' \n' ' '; }
submit() { (cd "$d/log" && sbatch --parsable "$@" "$ROOT/examples/at-scale/zelpane.sbatch" "$work/in" "$work/out" "${options[@]}"); }

# An undisturbed array, numbered from 10.
SECONDS=0
job=$(submit --array=10-13)
wait_for_jobs
echo "$(ls "$work/in" | wc -l) pictures, 4 tasks: at most $SECONDS s from the submission to the empty queue"
scontrol -o show job "$job" | grep -oE 'ArrayTaskId=[0-9]+|RunTime=[0-9:]+' | paste - - # for the log
[ "$(state_of "$job")" = " 4 JobState=COMPLETED " ] || fail "the array ended as$(state_of "$job"): $(cat "$d"/log/zelpane-*)"
same_files "$work/whole" "$work/out"

# Again, with the third worker killed and its task run again by the scheduler.
rm -rf "$work/out" "$work"/pids/* && mkdir "$work/out"
job=$(submit)
for ((i = 0; i < 3000; i++)); do [ -s "$work/pids/2" ] && break || sleep 0.01; done
kill_when_begun "$work/pids/2" 3/4
wait_for_jobs
[ "$(state_of "$job")" = " 3 JobState=COMPLETED 1 JobState=FAILED " ] || fail "the array ended as$(state_of "$job")"
check_what_is_there
[ "$(ls "$work/out" | wc -l)" -lt 400 ] || fail "nothing was missing"
scontrol requeue "${job}_2"
scontrol update JobId="${job}_2" StartTime=now # or the scheduler lets two minutes pass first
wait_for_jobs
[ "$(state_of "$job")" = " 4 JobState=COMPLETED " ] || fail "run again, the array ended as$(state_of "$job"): $(cat "$d"/log/zelpane-*)"
remove_leftovers
same_files "$work/whole" "$work/out"

# A task submitted anew by itself is an array of one and does all that is missing.
rm "$work/out/picture 100.jpg" "$work/out/picture 101.tiff"
job=$(submit --array=2)
wait_for_jobs
same_files "$work/whole" "$work/out"
