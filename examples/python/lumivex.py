"""Drives Lumivex from Python, with the standard library alone.

    import lumivex

    answers = lumivex.run('''
        set txtRadius 100
        set txtXmin 130
        set txtXmax 150
        click cmdNewPlot
        get Qext
        table
    ''')
    print(answers.value("Qext"))
    curve = answers.table()          # {"x": [...], "perpendicular": [...], ...}

A script is what a user does, one line a command (README.md lists them). What it prints comes back as Python values.
"""

import json
import os
import shutil
import subprocess

__all__ = ["Answers", "LumivexError", "program", "run"]


class LumivexError(RuntimeError):
    """A script that could not be run to its end; `line` is the number of the line at fault, 0 where there is none."""

    def __init__(self, what, line=0):
        super().__init__(f"line {line}: {what}" if line else what)
        self.line = line


class Answers(list):
    """What a script printed, a dictionary a line, in order; and what it told on the way (`notes`, text)."""

    notes = ""

    def value(self, name):
        """The last value that `get NAME` gave."""
        for answer in reversed(self):
            if answer["command"] == "get" and answer["name"].lower() == name.lower():
                return answer["value"]
        raise KeyError(name)

    def table(self, number=-1):
        """A table (`table` or `amplitudes`), the last one unless another is named, as a dictionary of its columns."""
        tables = [answer for answer in self if "columns" in answer]
        found = tables[number]
        return {name: [row[i] for row in found["rows"]] for i, name in enumerate(found["columns"])}

    def array(self, name):
        """The rows that `array NAME` gave last; of one column its numbers."""
        for answer in reversed(self):
            if answer["command"] == "array" and answer["name"].lower() == name.lower():
                rows = answer["rows"]
                return [row[0] for row in rows] if rows and len(rows[0]) == 1 else rows
        raise KeyError(name)


def program():
    """Where lumivex-run is: what LUMIVEX_RUN names, or one that is installed, or one that was built here."""
    here = os.path.dirname(os.path.abspath(__file__))
    built = os.path.join(here, "..", "..", "build", "release", "lumivex-run")
    for path in (os.environ.get("LUMIVEX_RUN"), shutil.which("lumivex-run"), built):
        if path and os.path.exists(path):
            return path
    raise LumivexError("lumivex-run was not found: name it in LUMIVEX_RUN")


def run(script, timeout=None):
    """Runs the lines of a script in a session of its own, which begins on the first plot. Returns its Answers."""
    lines = "\n".join(line.strip() for line in script.splitlines()) + "\n"
    done = subprocess.run(
        [program(), "--json", "-"], input=lines, capture_output=True, encoding="utf-8", timeout=timeout, check=False
    )
    answers = Answers(json.loads(line) for line in done.stdout.splitlines())
    answers.notes = done.stderr
    for answer in answers:
        if "error" in answer:
            raise LumivexError(answer["error"], answer["line"])
    if done.returncode != 0:
        raise LumivexError(done.stderr.strip())
    return answers
