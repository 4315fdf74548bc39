#!/usr/bin/env bash
# Tests Lumivex: sets up what is missing, builds with warnings as errors, runs every test, then the core's tests once more
# under the address and undefined-behaviour sanitizers (but the records of every pair of graph and method: another test goes
# through the pairs), the fuzz programs for 20 seconds each, and the runs in several threads under the thread sanitizer.
# --tidy runs clang-tidy over the sources as well.
set -euo pipefail
cd "$(dirname "$0")"
. cmake/setup.sh
lumivex_setup
jobs=$(nproc)

echo "== format"
find src tests bench -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run --Werror

echo "== release"
cmake --preset release -DLUMIVEX_WERROR=ON -DLUMIVEX_TESTS=ON -DLUMIVEX_BENCH=ON >/dev/null
cmake --build --preset release -j "$jobs"
ctest --preset release -j "$jobs"

if [ "${1:-}" = --tidy ]; then
  echo "== clang-tidy"
  find src -name '*.cpp' | grep -v /tables/ | xargs -P "$jobs" -n 4 clang-tidy -p build/release --quiet
fi

echo "== sanitizers"
cmake --preset asan -DLUMIVEX_WERROR=ON >/dev/null
cmake --build --preset asan -j "$jobs"
ctest --preset asan -j "$jobs"

echo "== fuzz"
tests/fuzz/run.sh 20

echo "== threads"
cmake --preset tsan -DLUMIVEX_WERROR=ON >/dev/null
cmake --build --preset tsan -j "$jobs"
ctest --preset tsan -j "$jobs"
