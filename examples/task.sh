#!/bin/sh
# task.sh: a task of an array, in Slurm or Kubernetes, shows the captures of one of the files that are listed in "files".
number=${SLURM_ARRAY_TASK_ID:-$((${JOB_COMPLETION_INDEX:-0} + 1))}
file=$(sed -n "${number}p" files)
l2fib-show replay --json "$file" >"$file.json"
[ $? -le 1 ] # 1 says that a view has failed, as its line does: the task has not
