#!/bin/sh
#SBATCH --job-name=lumivex
#SBATCH --cpus-per-task=1
#SBATCH --requeue
# One command file of a list a task:
#   sbatch --array=1-"$(lumivex-run --entries LIST.min | wc -l)" lumivex-array.sh LIST.min
# LUMIVEX_RUN names the program where it is not on the path. A task that is run again writes its output anew.
set -eu
list=${1:?"usage: lumivex-array.sh LIST.min"}
program=${LUMIVEX_RUN:-lumivex-run}
task=${SLURM_ARRAY_TASK_ID:?"this is a task of an array: see the first lines"}
file=$("$program" --entries "$list" | sed -n "${task}p")
if [ -z "$file" ]; then
  echo "lumivex-array.sh: $list has no file number $task" >&2
  exit 1
fi
exec "$program" --threads "${SLURM_CPUS_PER_TASK:-1}" -- "$file"
