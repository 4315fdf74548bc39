#!/bin/sh
# The command files of a list under GNU parallel, on this machine or on those of a --sshlogin that see the same files:
#   lumivex-parallel.sh LIST.min [OPTIONS OF PARALLEL]
# LUMIVEX_RUN names the program where it is not on the path. A task that dies is run once more.
set -eu
list=${1:?"usage: lumivex-parallel.sh LIST.min [OPTIONS OF PARALLEL]"}
shift
program=${LUMIVEX_RUN:-lumivex-run}
"$program" --entries "$list" | parallel --retries 2 "$@" "$program" --threads 1 -- {}
