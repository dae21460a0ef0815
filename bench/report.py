"""Runs the measurements and reports them as ratios of the module to the hand-written lower bound.

usage: report.py PROGRAM OUTPUT_FOLDER [DOCS_FOLDER]

Prints the table, writes times.json (Google Benchmark's own) and ratios.json to the output folder, and, with a docs
folder, the chart performance.svg and the table inside performance.md.
"""

import json
import pathlib
import re
import statistics
import subprocess
import sys

import matplotlib

matplotlib.use("svg")
# Makes the file depend on the figures only.
matplotlib.rcParams.update({"svg.hashsalt": "velora", "svg.fonttype": "none"})
import matplotlib.pyplot as pyplot

REPETITIONS = 21

# The highest allowed ratio of module to lower bound. A case without an entry has no target.
TARGETS = {
    "events/plain": 1.15,
    "events/code": 1.15,
    "events/text": 1.15,
    "events/controller": 1.15,
    "events/100 accounts": 1.15,
    "events/100 texts": 1.15,
    "calls/no argument": 1.05,
    "calls/integer": 1.05,
    "calls/two strings": 1.05,
    "calls/string, integer": 1.05,
    "calls/out string, 9 bytes": 1.05,
    "calls/out string, 25 bytes": 1.05,
    "calls/out string, 4 KiB": 1.05,
    "calls/record": 1.20,
    "calls/list of 100 strings": 1.20,
    "calls/map of 100 entries": 1.20,
    "records/get string": 1.05,
    "records/set string": 1.05,
    "records/get integer": 1.05,
    "records/set integer": 1.05,
    "records/get map of 4": 1.20,
    "records/set map of 4": 1.20,
    "records/new and collect": 1.20,
}


def measure_times(program, folder):
    """Returns the median processor time and the allocations of one operation, by benchmark name."""
    out = folder / "times.json"
    subprocess.run(
        [program, f"--benchmark_repetitions={REPETITIONS}", "--benchmark_enable_random_interleaving=true",
         "--benchmark_min_time=0.03", f"--benchmark_out={out}", "--benchmark_out_format=json"],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    times, allocations = {}, {}
    for run in json.loads(out.read_text())["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        assert run["time_unit"] == "ns"
        times.setdefault(run["run_name"], []).append(run["cpu_time"] / run["operations"])
        allocations[run["run_name"]] = run["allocations"]
    # Repetitions run in random order, so the order of the cases is taken from the program.
    listed = subprocess.run([program, "--benchmark_list_tests"], check=True, capture_output=True, text=True)
    return {name: statistics.median(times[name]) for name in listed.stdout.splitlines()}, allocations


def count_instructions(program, folder):
    """Returns the instructions of one operation, by benchmark name."""
    for old in folder.glob("callgrind.out*"):
        old.unlink()
    subprocess.run(
        ["valgrind", "--tool=callgrind", "--instr-atstart=no", f"--callgrind-out-file={folder / 'callgrind.out'}",
         program, "--instructions"],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    counts = {}
    for dump in folder.glob("callgrind.out.*"):
        text = dump.read_text()
        label = re.search(r"^desc: Trigger: Client Request: (.*)=(\d+)$", text, re.MULTILINE)
        if label:
            counts[label[1]] = int(re.search(r"^totals: (\d+)$", text, re.MULTILINE)[1]) / int(label[2])
        dump.unlink()
    return counts


def measure_held_record(program):
    """Returns the bytes and blocks of a held record, by side."""
    printed = subprocess.run([program, "--held-record"], check=True, capture_output=True, text=True).stdout
    return {side: (float(size), float(blocks))
            for side, size, blocks in re.findall(r"^(\w+) ([\d.]+) bytes, ([\d.]+) blocks$", printed, re.MULTILINE)}


def make_rows(times, instructions, allocations, held):
    rows = []

    def add(case, measured, limit, target):
        rows.append({"case": case, "unit": "ns", "target": target, "module": times[measured], "bare": times[limit],
                     "ratio": times[measured] / times[limit], "module_instructions": instructions[measured],
                     "bare_instructions": instructions[limit],
                     "instruction_ratio": instructions[measured] / instructions[limit],
                     "module_blocks": allocations[measured], "bare_blocks": allocations[limit]})

    cases = [name.removesuffix("/module") for name in times if name.endswith("/module")]
    for case in cases:
        add(case, f"{case}/module", f"{case}/bare", TARGETS.get(case))
    add("dropped / delivered code", "events/dropped/module", "events/code/module", 0.35)
    growth = [f"{case}/module" for case in cases if case.startswith("growth/")]
    add("growth, slowest / fastest", max(growth, key=times.get), min(growth, key=times.get), 1.15)
    (module, module_blocks), (bare, bare_blocks) = held["module"], held["bare"]
    rows.append({"case": "held record", "unit": "bytes", "target": None, "module": module, "bare": bare,
                 "ratio": module / bare, "module_instructions": None, "bare_instructions": None,
                 "instruction_ratio": None, "module_blocks": module_blocks, "bare_blocks": bare_blocks})
    return rows


def number(value):
    return "" if value is None else f"{value:,.0f}" if value >= 100 else f"{value:.1f}"


def ratio(value):
    return "" if value is None else f"{value:.2f}"


def missed(row):
    return row["target"] is not None and row["ratio"] > row["target"]


def table(rows):
    lines = ["| case | module | bare | ratio | at most | instructions | bare | ratio | heap blocks | bare |",
             "|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|"]
    for row in rows:
        measured = ratio(row["ratio"])
        lines.append("| " + " | ".join([
            row["case"], f"{number(row['module'])} {row['unit']}", f"{number(row['bare'])} {row['unit']}",
            f"**{measured}**" if missed(row) else measured, ratio(row["target"]),
            number(row["module_instructions"]), number(row["bare_instructions"]), ratio(row["instruction_ratio"]),
            f"{row['module_blocks']:.4g}", f"{row['bare_blocks']:.4g}"]) + " |")
    return "\n".join(lines)


def aligned(text):
    """Returns the table with aligned columns, for a terminal."""
    cells = [[cell.strip() for cell in line.strip("|").split("|")] for line in text.splitlines() if "--" not in line]
    widths = [max(len(row[k]) for row in cells) for k in range(len(cells[0]))]
    return "\n".join("  ".join(cell.ljust(width) if k == 0 else cell.rjust(width)
                               for k, (cell, width) in enumerate(zip(row, widths))) for row in cells)


def chart(rows, path):
    """Draws a bar per ratio, with a dot at the instruction ratio and a tick at the target."""
    figure, axes = pyplot.subplots(figsize=(8, 0.22 * len(rows) + 1))
    rows = rows[::-1]  # the first one on top
    places = range(len(rows))
    axes.barh(places, [row["ratio"] for row in rows], label="time (held record: bytes)",
              color=["tab:orange" if missed(row) else "tab:blue" for row in rows])
    for row, y in zip(rows, places):
        axes.text(0.02, y, ratio(row["ratio"]), va="center", color="white", fontsize=8)
    instructions = [(row["instruction_ratio"], y) for row, y in zip(rows, places) if row["instruction_ratio"]]
    axes.plot(*zip(*instructions), "k.", label="instructions")
    targets = [(row["target"], y) for row, y in zip(rows, places) if row["target"]]
    axes.plot(*zip(*targets), "k|", markersize=12, label="target (orange: missed)")
    axes.set_yticks(places, [row["case"] for row in rows], fontsize=8)
    axes.set_ylim(-1, len(rows))
    axes.axvline(1, color="grey", linewidth=0.8)
    axes.set_title("Cost of the module, the lower bound being 1")
    axes.legend(loc="lower right", fontsize=8)
    figure.tight_layout()
    figure.savefig(path, format="svg", metadata={"Date": None})


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    instructions = count_instructions(program, folder)
    times, allocations = measure_times(program, folder)
    rows = make_rows(times, instructions, allocations, measure_held_record(program))
    (folder / "ratios.json").write_text(json.dumps(rows, indent=2) + "\n")
    text = table(rows)
    print(aligned(text))
    if len(sys.argv) > 3:
        docs = pathlib.Path(sys.argv[3])
        chart(rows, docs / "performance.svg")
        page = docs / "performance.md"
        page.write_text(re.sub(r"^\| case .*?\n\n", lambda _: text + "\n\n", page.read_text(), count=1,
                               flags=re.MULTILINE | re.DOTALL))


main()
