#!/bin/sh
# Runs one list in every way that a cluster does and holds the outputs against those of a serial run, byte for byte but
# for the lines of date and time: run.sh LUMIVEX_RUN. GNU parallel and a Slurm of one node are used where they are
# installed; what is not there is told. It stands outside test.sh, for it needs what no build needs.
set -eu
program=$(realpath "${1:?"usage: run.sh LUMIVEX_RUN"}")
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LUMIVEX_RUN="$program"

make_list() { # FOLDER
  mkdir -p "$1"
  {
    echo FileNames
    for radius in 5 10 20 40 80 160; do
      echo "drop $radius.min"
      printf 'Lumivex 4200 batch file\nRadius\n%s\nStep\nWavelength\n0.4 0.7 0.1\nrun\nstop\n' "$radius" \
        > "$1/drop $radius.min"
    done
    echo stop
  } > "$1/list.min"
}

same() { # WHAT FOLDER
  for output in "$work"/serial/*.mut; do
    name=$(basename "$output")
    grep -v '^Date & Time: ' "$output" > "$work/expected"
    grep -v '^Date & Time: ' "$2/$name" > "$work/found" || { echo "$1: $name is not there"; exit 1; }
    cmp "$work/expected" "$work/found" || { echo "$1: $name differs"; exit 1; }
  done
  [ "$(ls "$2"/*.mut | wc -l)" -eq 6 ] || { echo "$1: not six outputs"; exit 1; }
  [ -z "$(find "$2" -name '.lumivex-*')" ] || { echo "$1: something is left beside"; exit 1; }
  echo "$1: the same"
}

make_list "$work/serial"
for file in "$work"/serial/drop*.min; do "$program" --threads 1 "$file"; done

make_list "$work/jobs"
"$program" --jobs 3 "$work/jobs/list.min" > /dev/null
same "lumivex-run --jobs" "$work/jobs"

make_list "$work/array"
tasks=$("$program" --entries "$work/array/list.min" | wc -l)
for task in $(seq "$tasks"); do
  SLURM_ARRAY_TASK_ID=$task "$root/share/cluster/lumivex-array.sh" "$work/array/list.min"
done
same "array tasks by hand" "$work/array"

# A task that is killed leaves no output; run again, it writes all of it.
make_list "$work/killed"
printf 'Lumivex 4200 batch file\nRadius\n1000\nStep\nWavelength\n0.4 0.7 0.0001\nrun\nstop\n' > "$work/killed/long.min"
"$program" --threads 1 "$work/killed/long.min" &
process=$!
until [ -n "$(find "$work/killed" -name '.lumivex*')" ]; do sleep 0.1; done
kill -9 "$process"
wait "$process" 2> /dev/null || true
[ ! -e "$work/killed/long.mut" ] || { echo "a killed task has left an output"; exit 1; }
rm -f "$work"/killed/.lumivex-*.part "$work/killed/long.min"
"$program" --jobs 2 "$work/killed/list.min" > /dev/null
same "after a kill" "$work/killed"

if command -v parallel > /dev/null; then
  make_list "$work/parallel"
  "$root/share/cluster/lumivex-parallel.sh" "$work/parallel/list.min" --jobs 2
  same "GNU parallel" "$work/parallel"
else
  echo "GNU parallel: not installed"
fi

if command -v sbatch > /dev/null && sinfo > /dev/null 2>&1; then
  make_list "$work/slurm"
  sbatch --wait --array=1-"$tasks" --output="$work/slurm/%a.log" "$root/share/cluster/lumivex-array.sh" \
    "$work/slurm/list.min"
  same "Slurm" "$work/slurm"
else
  echo "Slurm: not running here"
fi
