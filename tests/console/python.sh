#!/bin/sh
# The Python example drives lumivex-run: python.sh LUMIVEX_RUN EXAMPLES.
set -u
LUMIVEX_RUN=$1
examples=$2
export LUMIVEX_RUN PYTHONDONTWRITEBYTECODE=1
cd "$examples" || exit 1
python3 - << 'PYTHON' || exit 1
import lumivex

answers = lumivex.run("""
    set txtXmin 0
    set txtXmax 10
    click cmdNewPlot
    get Qext
    get cboType
    get mnuXStepLog
    table
    array Iperp
    set txtRadius -1
    click cmdNewPlot
    messages
""")
assert abs(answers.value("Qext") - 2.1) < 0.2, answers
assert answers.value("cboType") == "Mie" and answers.value("qext") == answers.value("Qext")
assert isinstance(answers.value("mnuXStepLog"), bool)
table = answers.table()
assert table["x"][0] == 0 and table["x"][-1] == 10 and len(table["x"]) == len(table["perpendicular"])
assert answers.array("Iperp")[: len(table["x"])] == table["perpendicular"]
assert answers[-1]["messages"][-1] == {"title": "Input error", "text": "Value must be positive"}, answers[-1]
assert "Value must be positive" in answers.notes
try:
    lumivex.run("get Qext\nget Nonsense")
    raise SystemExit("a line at fault was not told")
except lumivex.LumivexError as error:
    assert error.line == 2 and "Nonsense" in str(error), error
PYTHON
# Of a drop of 100 um Airy's theory has the bow's first maximum some half a degree beyond the ray's 137.9 degrees.
python3 rainbow.py 100 | grep -q '^main bow: 138\.[0-9]* degrees' || { echo "no bow where it should be"; python3 rainbow.py 100; exit 1; }
