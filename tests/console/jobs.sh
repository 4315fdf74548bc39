#!/bin/sh
# lumivex-run with batches, as a user calls it: jobs.sh LUMIVEX_RUN.
set -u
program=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
faults=0

expect() { # WHAT WANTED FOUND
  [ "$2" = "$3" ] && return
  echo "$1: wanted '$2', found '$3'"
  faults=$((faults + 1))
}
job() { printf 'Lumivex 4200 batch file\nxmin\n0\nxmax\n20\nRadius\n%s\nrun\nstop\n' "$1"; }
# Until a batch writes: it is at work then, on a slow machine too.
at_work() {
  for _ in $(seq 600); do
    [ -n "$(find . -name '.lumivex*')" ] && return
    sleep 0.1
  done
}
blocks() { grep -c '^Lumivex v4.1$' "$1" 2> /dev/null || true; }

mkdir jobs
for radius in 1 2 3; do job $radius > jobs/$radius.min; done
printf 'Lumivex 4200 batch file\nrun\nFly\n' > jobs/bad.min
printf 'FileNames\n1.min\n2.min\nbad.min\nnone.min\nnote.txt\n3.min\nstop\n' > all.min

"$program" jobs/1.min; expect "a job" 0 $?
expect "its output" 1 "$(blocks jobs/1.mut)"
"$program" --threads 2 jobs/1.min other.mut; expect "a job with a place" 0 $?
expect "its output" 1 "$(blocks other.mut)"
"$program" jobs/1.min /dev/stdout | grep -q '^Radius: 	1	 um'; expect "an output that is a pipe" 0 $?

"$program" jobs/bad.min 2> told; expect "a bad job" 1 $?
expect "what is told" 1 "$(grep -c 'Fly is not a valid parameter' told)"
expect "no output" 0 "$(ls jobs/bad.mut 2> /dev/null | wc -l)"
expect "what was finished" 1 "$(blocks jobs/bad.mut.part)"
rm -f jobs/*.mut jobs/*.part

sed 's,^\([^F s]*\)$,jobs/\1,; s,^jobs/stop,stop,' all.min > list.min
"$program" --entries list.min > entries 2> told; expect "entries" 1 $?
expect "entries of the list" "jobs/1.min jobs/2.min jobs/bad.min jobs/none.min jobs/3.min " "$(tr '\n' ' ' < entries)"
"$program" --jobs 2 list.min > done 2> told; expect "a list with bad jobs" 1 $?
for radius in 1 2 3; do expect "output $radius" 1 "$(blocks jobs/$radius.mut)"; done
expect "good ones" 3 "$(grep -c ' done: ' done)"
expect "bad ones" 2 "$(grep -c 'lumivex-run: jobs/.*min failed' told)"
expect "what is no job" 1 "$(grep -c 'note.txt is not a valid file name' told)"
expect "nothing beside" 0 "$(find . -name '.lumivex*' | wc -l)"

printf 'FileNames\njobs/1.min\njobs/3.min\n' > good.min
"$program" --jobs 9 good.min > /dev/null; expect "a good list" 0 $?
"$program" good.min; expect "a good list in one session" 0 $?
"$program" good.min out.mut 2> told; expect "a list with one place" 1 $?

# What is interrupted leaves no output in its place.
printf 'Lumivex 4200 batch file\nStep\nRadius\n1 1e6 1\nrun\n' > endless.min
"$program" endless.min 2> told &
process=$!
at_work
kill -TERM $process
wait $process; expect "an interrupted job" 1 $?
expect "no output of it" 0 "$(ls endless.mut 2> /dev/null | wc -l)"
expect "nothing hidden of it" 0 "$(find . -name '.lumivex*' | wc -l)"
printf 'FileNames\nendless.min\njobs/1.min\n' > endless_list.min
"$program" --jobs 1 endless_list.min > /dev/null 2> told &
process=$!
at_work
kill -TERM $process
wait $process; expect "an interrupted list" 1 $?
expect "what was not begun" 1 "$(grep -c 'jobs/1.min was not begun' told)"

# A process that dies is started once more, and what it leaves is as whole as any.
child_of() { awk -v parent="$1" '$4 == parent { print $1 }' /proc/[0-9]*/stat 2> /dev/null; }
another_child() { # OF OTHER_THAN
  for _ in $(seq 600); do
    found=$(child_of "$1")
    [ -n "$found" ] && [ "$found" != "$2" ] && return
    sleep 0.1
  done
}
rm -f .lumivex*
printf 'Lumivex 4200 batch file\nxstep\n1\nStep\nRadius\n20 40 0.01\nrun\n' > mortal.min
"$program" --jobs 1 mortal.min > done 2> told &
process=$!
at_work
kill -KILL "$(child_of $process)"
wait $process; expect "a job that died once" 0 $?
expect "that it was started again" 1 "$(grep -c 'mortal.min was ended by signal 9 and is started again' told)"
expect "its output" 2001 "$(blocks mortal.mut)"
"$program" --jobs 1 endless.min > /dev/null 2> told &
process=$!
first=none
for _ in 1 2; do
  another_child $process "$first"
  first=$found
  kill -KILL "$first"
done
wait $process; expect "a job that died twice" 1 $?
expect "what is told of it" 1 "$(grep -c 'endless.min failed' told)"
expect "no output of it" 0 "$(ls endless.mut 2> /dev/null | wc -l)"

# A batch file is known by its first line, whatever its name.
cp jobs/1.min job.txt
"$program" job.txt; expect "a job of another name" 0 $?
expect "its output" 1 "$(blocks job.txt.mut)"
"$program" --threads 1 job.txt there.mut; expect "a job of another name with a place" 0 $?
expect "its output" 1 "$(blocks there.mut)"

for words in "" "--jobs" "--jobs 0 good.min" "--jobs x good.min" "--fly good.min" "a b c" "--threads 2 script.txt"; do
  # shellcheck disable=SC2086
  "$program" $words > /dev/null 2>&1; expect "called as '$words'" 1 $?
done
"$program" --help > /dev/null; expect "help" 0 $?
[ $faults -eq 0 ] && echo "all well"
exit $faults
