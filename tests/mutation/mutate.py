#!/usr/bin/env python3
"""Measures the tests: changes one line of the game, runs them, and tells what nobody noticed.

The changes stand in mutations.txt beside this script. They are made in copies of the tree below
build/mutation, never here. See "Measure the tests" in docs/how-to.md.
"""

import argparse
import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
WORK = ROOT / "build/mutation"
DISPLAY = HERE.parent / "support/on_virtual_display.sh"
PROGRAMS = ["game_tests", "screen_tests"]
LEFT_OUT = "-Monkey.*"  # presses at random, and takes its time
SLOW_MS = 500  # tests that take longer come last


def readList(pattern):
    """Line, file, old text, new text and effect of the mutations that the pattern is found in."""
    file, mutations = "", []
    for number, line in enumerate((HERE / "mutations.txt").read_text().splitlines(), 1):
        if line.startswith("["):
            file = line.strip("[]")
        elif line and line[0] not in "#=":
            parts = re.fullmatch(r"(?:@ )?(\S.*?) ==>(.*) ;; (.+)", line) or sys.exit(line + " ??")
            mutations.append((number, file, *map(str.strip, parts.groups())))
    return [mutation for mutation in mutations if re.search(pattern, " ".join(map(str, mutation)))]


def placesOf(old, text):
    """Where the old text stands, whatever the blanks and line ends between its words."""
    words = re.findall(r"\w+|\S", old)
    words = [rf"\b{word}\b" if word.isidentifier() else re.escape(word) for word in words]
    return [place.span() for place in re.finditer(r"\s*".join(words), text)]


def refreshCopy(tree):
    """Brings the copy up to date. Equal files keep their date, so that nothing compiles anew."""
    listed = subprocess.check_output(["git", "ls-files", "-zco", "--exclude-standard"], cwd=ROOT)
    wanted = {tree / name: ROOT / name for name in listed.decode().split("\0") if name}
    for path in [path for path in tree.rglob("*") if path.is_file()]:
        if path not in wanted:
            path.unlink()
    for copy, source in wanted.items():
        if source.is_file() and not (copy.exists() and copy.read_bytes() == source.read_bytes()):
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)


class Workplace:
    """A copy of the tree with a build of its own."""

    def __init__(self, folder):
        self.tree, self.built, self.log = folder / "tree", folder / "build", folder / "log"
        refreshCopy(self.tree)
        self.built.mkdir(exist_ok=True)
        linker = "lld" if shutil.which("ld.lld") else "gold"
        maker = "Ninja" if shutil.which("ninja") else "Unix Makefiles"
        # Unoptimised tests would take twice as long, and compiling isn't quicker by as much.
        self.run(["cmake", self.tree, "-G", maker, "-DGRAVELON_BUILD_TOOLS=OFF",
                  "-DCMAKE_CXX_FLAGS=-O1", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=" + linker])
        self.rounds = {program: self.planRounds(program) for program in PROGRAMS}

    def run(self, command, limit=None):
        """Its exit status, or None if it didn't end within the seconds given."""
        with self.log.open("w") as log:
            try:
                return subprocess.run(command, cwd=self.built, stdout=log, stderr=log,
                                      timeout=limit).returncode
            except subprocess.TimeoutExpired:
                return None

    def build(self, program):
        return self.run(["cmake", "--build", ".", "--target", program, "--", "-j1"]) == 0

    def test(self, program, chosen, limit=600):
        """The test that failed, crashed or didn't end in time; none if all passed."""
        command = ["tests/" + program, "--gtest_fail_fast", "--gtest_filter=" + chosen]
        if self.run(command, limit) == 0:
            return None
        told = self.log.read_text(errors="replace")
        failed = re.search(r"\[  FAILED  \] ([\w/.]+)", told)
        begun = re.findall(r"\[ RUN  .*\] (\S+)", told) or ["the start"]
        return failed[1] if failed else begun[-1] + ", which died"

    def planRounds(self, program):
        """Tests the unchanged game. Returns filters for quick tests and slow ones, with limits."""
        if not self.build(program) or self.test(program, LEFT_OUT):
            sys.exit(f"{program} doesn't build or fails in the unchanged game, see {self.log}")
        passed = re.findall(r"\[ +OK \] (\S+?),? .*\((\d+) ms\)", self.log.read_text())
        slow = ":".join(name for name, duration in passed if int(duration) > SLOW_MS)
        limit = 60 + 4 * sum(int(duration) for name, duration in passed) / 1000
        return [(f"{LEFT_OUT}:{slow}", limit), (slow, limit)] if slow else [(LEFT_OUT, limit)]

    def judge(self, file, old, new):
        """The verdict, and which test caught the change."""
        path = next((self.tree / "src").rglob(file), None)
        before = path.read_text() if path else ""
        places = placesOf(old, before)
        if len(places) != 1:
            return "AMBIGUOUS" if places else "GONE", None
        path.write_text(before[:places[0][0]] + new + before[places[0][1]:])
        try:
            for program, rounds in self.rounds.items():
                if not self.build(program):
                    return "NO COMPILE", None
                for chosen, limit in rounds:
                    if failed := self.test(program, chosen, limit):
                        return "caught", failed
            return "SURVIVED", None
        finally:
            path.write_text(before)


def work(folder, mutations):
    """A line for each of these mutations, printed as soon as it is known."""
    place = Workplace(folder)
    lines = []
    for number, file, old, new, effect in mutations:
        verdict, catcher = place.judge(file, old, new)
        told = catcher or f"{old}  ->  {new}  ({effect})"
        lines.append(f"{number:4}  {verdict:10}  {file:24}  {told}")
        print(lines[-1], flush=True)
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--only", default="", metavar="PATTERN", help="mutations with this in them")
    parser.add_argument("--jobs", type=int, default=1, metavar="N", help="work in so many copies")
    parser.add_argument("--here", action="store_true", help="show the windows on this display")
    options = parser.parse_args()
    if not options.here:
        os.execv(DISPLAY, [DISPLAY, sys.executable, *sys.argv, "--here"])
    os.nice(10)
    start = time.monotonic()
    mutations = readList(options.only)
    with concurrent.futures.ThreadPoolExecutor() as pool:
        parts = [pool.submit(work, WORK / str(job), mutations[job::options.jobs])
                 for job in range(options.jobs)]
        lines = [line for part in parts for line in part.result()]
    survivors = [line for line in lines if "  SURVIVED  " in line]
    caught = sum("  caught  " in line for line in lines)
    tried = caught + len(survivors)
    print("\nSurvivors:", *survivors, sep="\n")
    print(f"Caught {caught} of {tried}, {100 * caught / max(tried, 1):.1f} %; {len(lines) - tried}",
          f"couldn't be tried. It took {(time.monotonic() - start) / 60:.0f} minutes.")


main()
