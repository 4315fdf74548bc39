#!/bin/sh
# Fuzzes the readers of input files for a bounded time: run.sh [SECONDS]. Needs clang with libFuzzer. The corpus is
# made of the examples; an input that fails is left in the folder it prints.
set -eu
seconds=${1:-60}
root=$(cd "$(dirname "$0")/../.." && pwd)
work=${FUZZ_FOLDER:-$(mktemp -d)}
mkdir -p "$work/corpus"
clang++ -std=c++20 -O1 -g -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined -I"$root/src" \
  "$root/tests/fuzz/input_files.cc" "$root"/src/materials/kernel/*.cpp "$root"/src/materials/tables/sun_spectra.cpp \
  "$root"/src/particles/kernel/*.cpp -o "$work/input_files"

seed() { # LETTER FILE
  { printf '%s' "$1"; head -c 2000 "$2"; } > "$work/corpus/$1_$(basename "$2")"
}
examples=$root/data/examples
for file in "$examples"/*.rix; do seed r "$file"; done
for file in "$examples"/*.csv; do seed c "$file"; done
for file in "$examples"/*.yml; do seed y "$file"; done
for file in "$examples"/*.spe; do seed s "$file"; done
for file in "$examples"/*.dis; do seed d "$file"; seed D "$file"; done
seed x "$root/data/Dispersion.rxi"

cat > "$work/words" <<'WORDS'
"Lumivex 300"
"Lumivex 301"
"Lumivex"
"Complex"
"Real"
"Uniform"
"Non uniform"
"non-uniform"
"diameter"
"radius"
"32767"
"1e39"
"nan"
"type: formula 1"
"type: tabulated k"
"coefficients:"
"wavelength_range:"
WORDS
echo "Fuzzing in $work"
cd "$work"
./input_files -dict=words -max_total_time="$seconds" -max_len=4096 -timeout=5 -rss_limit_mb=512 corpus
