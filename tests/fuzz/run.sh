#!/bin/sh
# Fuzzes readers, writers and texts, each program for a bounded time: run.sh [SECONDS]. Builds what is missing in
# build/fuzz. Each begins with the inputs that once failed (findings/PROGRAM), the examples and what earlier runs kept;
# an input that fails is left in the folder it prints: mend the fault and put the input, made small, into findings.
set -eu
seconds=${1:-60}
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$root/build/fuzz
work=${FUZZ_FOLDER:-$build/work}
cd "$root"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j "$(nproc)"

seed() { # LETTER FILE
  { printf '%s' "$1"; cat "$2"; } > "$work/input_files.seeds/$1_$(basename "$2")"
}
mkdir -p "$work/input_files.seeds" "$work/texts.seeds" "$work/writers.seeds" "$work/batch_files.seeds" "$work/results_files.seeds"
examples=$root/data/examples
for file in "$examples"/*.rix; do seed r "$file"; done
for file in "$examples"/*.csv; do seed c "$file"; seed m "$file"; done
for file in "$examples"/*.yml; do seed y "$file"; done
for file in "$examples"/*.spe; do seed s "$file"; done
for file in "$examples"/*.dis; do seed d "$file"; seed D "$file"; done
seed x "$root/data/Dispersion.rxi"
# The lines of the script in the guide, and numbers of every writing.
sed -n 's/^    \(set\|get\|table\|picture\|choose\)/\1/p' "$root/README.md" | split -l 1 - "$work/texts.seeds/line_"
printf '%s' '1.25E-07' > "$work/texts.seeds/number"
printf '%s' 'picture "a #1.png" 300x200 # told' > "$work/texts.seeds/quoted"
printf '[Recent]\nFile1=batch|/a\\nb\n[Window]\nPlace=A=\n' > "$work/texts.seeds/configuration"
cp "$examples"/batch/*.min "$work/batch_files.seeds"
printf 'Ice, "thin"\n1.03\n0\n1e-400\n' > "$work/writers.seeds/entry"
# A small drop by steps of 90 degrees, by the layout alone.
printf '%s\n' 'Lumivex v4.4.00' 'Intensity v. scattering angle' ' Water' 'a vacuum ' Defined1 Defined2 Mie 2 Vacuum1 Vacuum2 1 1 \
  0.65 Radius 1 1.33 0 0 180 90 Automatic .1 Automatic 1000 .2 900 Log 2 '90 90 90' '1 2 1.5' '3 3 3' \
  > "$work/results_files.seeds/drop"

fuzz() { # PROGRAM
  mkdir -p "$work/$1.kept"
  "$build/fuzz_$1" -dict="$root/tests/fuzz/words" -max_total_time="$seconds" -max_len=65536 -timeout=10 \
    -rss_limit_mb=1024 -artifact_prefix="$work/" -print_funcs=0 -verbosity=0 \
    "$work/$1.kept" "$work/$1.seeds" "$root/tests/fuzz/findings/$1" >"$work/$1.log" 2>&1
}
# Two at a time.
set -- input_files texts writers batch_files results_files
while [ $# -gt 0 ]; do
  first=$1 second=${2:-}
  echo "== fuzz $first $second"
  fuzz "$first" & pids=$!
  if [ -n "$second" ]; then fuzz "$second" || { cat "$work/$second.log"; wait; exit 1; }; fi
  wait "$pids" || { cat "$work/$first.log"; exit 1; }
  shift
  [ $# -eq 0 ] || shift
done
