#!/bin/sh
# Calculates the examples of File, Open example anew: each script in this folder gives the results file of its name.
#     data/examples/gallery/make.sh build/release/lumivex-run
set -e
[ $# = 1 ] || { echo "Usage: $0 PROGRAM"; exit 2; }
program=$(realpath "$1")
cd "$(dirname "$0")"
for script in *.script; do
  name=${script%.script}
  { cat "$script"; echo "save-results $name.lvx"; } | "$program" -
done
