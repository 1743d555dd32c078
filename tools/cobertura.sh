#!/bin/bash
# How much of core/ and computer/ the tests run: builds the coverage preset, runs test_core and
# test_computer, and prints the lines and branches taken of each file and of all. Fails when a total
# is below 95 %. Branches that only an exception takes are not counted, nor are those of comparisons
# that the compiler writes.
#
#     tools/cobertura.sh [build folder]      the folder defaults to build/coverage
set -euo pipefail
cd "$(dirname "$0")/.."
carpeta=${1:-build/coverage}

cmake --preset coverage -B "$carpeta" > /dev/null
cmake --build "$carpeta" --target test_core test_computer > /dev/null
find "$carpeta" -name '*.gcda' -delete
for programa in test_core test_computer; do
    "$carpeta/bin/$programa" --gtest_brief=1
done

# gcov's JSON names the lines and, for each, its branches and whether an exception takes them. The
# lines of a header come once for every object, the tests' own among them, and are added up.
find "$carpeta" -name '*.gcda' -print0 |
    xargs -0 gcov --branch-counts --branch-probabilities --json-format --stdout 2> /dev/null |
    python3 -c '
import json, os, sys
lines, branches, texts = {}, {}, {}
def written_by_the_compiler(name, number):
    if name not in texts:
        texts[name] = open(name, encoding="utf-8").read().split("\n")
    return "= default;" in texts[name][number - 1]
for text in sys.stdin:
    if not text.startswith("{"):
        continue
    data = json.loads(text)
    for file in data["files"]:
        path = os.path.normpath(os.path.join(data["current_working_directory"], file["file"]))
        name = os.path.relpath(path)
        if not name.startswith(("core/", "computer/")):
            continue
        for line in file["lines"]:
            key = (name, line["line_number"])
            lines[key] = lines.get(key, 0) + line["count"]
            taken = [branch["count"] for branch in line["branches"] if not branch["throw"]]
            if written_by_the_compiler(name, line["line_number"]):
                taken = []
            before = branches.setdefault((*key, len(taken)), [0] * len(taken))
            branches[(*key, len(taken))] = [a + b for a, b in zip(before, taken)]
def share(counts):
    return 100 * sum(c > 0 for c in counts) / len(counts) if counts else 100.0
def counts_of(name):
    return ([c for key, c in lines.items() if key[0] == name],
            [c for key, taken in branches.items() if key[0] == name for c in taken])
print("%-28s %8s %10s" % ("", "lines", "branches"))
for name in sorted({key[0] for key in lines}):
    of_lines, of_branches = counts_of(name)
    print("%-28s %7.1f%% %9.1f%%" % (name, share(of_lines), share(of_branches)))
    missed = sorted({k[1] for k, c in lines.items() if k[0] == name and c == 0} |
                    {k[1] for k, t in branches.items() if k[0] == name and 0 in t})
    if missed:
        print("    not in full:", *missed)
total = share(lines.values()), share([c for taken in branches.values() for c in taken])
print("%-28s %7.1f%% %9.1f%%" % ("all", *total))
sys.exit(min(total) < 95)'
