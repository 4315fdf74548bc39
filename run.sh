#!/usr/bin/env bash
# Opens Lumivex: sets up what is missing, builds, runs. Without a display the finished first plot is written as a picture
# and its numbers are printed. Arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")"
. cmake/setup.sh
lumivex_setup
{
  cmake --preset release -DLUMIVEX_TESTS=OFF -DLUMIVEX_BENCH=OFF
  cmake --build --preset release
} >build.log 2>&1 || { tail -n 40 build.log; echo "The build failed; all of it is in build.log" >&2; exit 1; }
program=build/release/lumivex
if [ $# -gt 0 ] || [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program" "$@"
fi
echo "There is no display here: the first plot goes to lumivex.png."
QT_QPA_PLATFORM=offscreen "$program" --script - <<'SCRIPT'
get Qsca
get Qext
get Qback
get Gsca
get SizeParameter
get NSTOP
picture lumivex.png 1400x900
SCRIPT
