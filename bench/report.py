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

REPETITIONS = 21

# What a case may cost at most, in lower bounds. A case without a row has no target.
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
    "calls/out string, 9 bytes": 1.40,
    "calls/out string, 25 bytes": 1.40,
    "calls/record": 1.05,
    "calls/list of 100 strings": 1.05,
    "calls/map of 100 entries": 1.05,
    "records/get string": 1.05,
    "records/set string": 1.05,
    "records/get integer": 1.05,
    "records/set integer": 1.05,
    "start/InitLuaVelora": 1.10,
}


def measure_times(program, folder):
    """The median processor time and the allocations of one operation, by benchmark name."""
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
    # Repetitions are interleaved at random; the order of the cases is the program's.
    listed = subprocess.run([program, "--benchmark_list_tests"], check=True, capture_output=True, text=True)
    return {name: statistics.median(times[name]) for name in listed.stdout.splitlines()}, allocations


def count_instructions(program, folder):
    """The instructions of one operation, by benchmark name."""
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


def make_rows(times, instructions, allocations):
    rows = []

    def add(case, measured, limit, target):
        row = {"case": case, "target": target, "module_ns": times[measured], "bare_ns": times[limit],
               "time_ratio": times[measured] / times[limit], "module_instructions": instructions[measured],
               "bare_instructions": instructions[limit],
               "instruction_ratio": instructions[measured] / instructions[limit],
               "module_allocations": allocations[measured], "bare_allocations": allocations[limit]}
        rows.append(row)

    cases = [name.removesuffix("/module") for name in times if name.endswith("/module")]
    for case in cases:
        add(case, f"{case}/module", f"{case}/bare", TARGETS.get(case))
    add("dropped / delivered code", "events/dropped/module", "events/code/module", 0.35)
    growth = [f"{case}/module" for case in cases if case.startswith("growth/")]
    add("growth, dearest / cheapest", max(growth, key=times.get), min(growth, key=times.get), 1.15)
    return rows


def number(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.1f}"


def table(rows):
    lines = ["| case | module | bare | ratio | at most | instructions | bare | ratio | heap blocks | bare |",
             "|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|"]
    for row in rows:
        missed = row["target"] is not None and row["time_ratio"] > row["target"]
        ratio = f"{row['time_ratio']:.2f}"
        lines.append("| " + " | ".join([
            row["case"], f"{number(row['module_ns'])} ns", f"{number(row['bare_ns'])} ns",
            f"**{ratio}**" if missed else ratio, f"{row['target']:.2f}" if row["target"] else "",
            number(row["module_instructions"]), number(row["bare_instructions"]), f"{row['instruction_ratio']:.2f}",
            f"{row['module_allocations']:.4g}", f"{row['bare_allocations']:.4g}"]) + " |")
    return "\n".join(lines)


def aligned(text):
    """The table for a terminal."""
    cells = [[cell.strip() for cell in line.strip("|").split("|")] for line in text.splitlines() if "--" not in line]
    widths = [max(len(row[k]) for row in cells) for k in range(len(cells[0]))]
    return "\n".join("  ".join(cell.ljust(width) if k == 0 else cell.rjust(width)
                               for k, (cell, width) in enumerate(zip(row, widths))) for row in cells)


def chart(rows):
    """Bars of the time ratios; a tick where the target is, a dot where the instruction ratio is."""
    left, unit, height, top = 190, 260, 18, 44
    limit = 2.0
    x = lambda ratio: left + unit * min(ratio, limit)
    total = top + height * len(rows) + 10
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{left + unit * 2 + 70}" height="{total}" '
             'font-family="sans-serif" font-size="11">',
             '<rect width="100%" height="100%" fill="#ffffff"/>',
             '<text x="10" y="16" font-size="13" font-weight="bold">Cost of the module, the lower bound being 1</text>',
             '<rect x="10" y="25" width="12" height="10" fill="#7aa6c2"/><text x="26" y="34">time</text>'
             '<rect x="66" y="25" width="12" height="10" fill="#d08770"/><text x="82" y="34">time, above the target</text>'
             '<circle cx="220" cy="30" r="3" fill="#2e3440"/><text x="228" y="34">instructions</text>'
             '<line x1="308" x2="308" y1="24" y2="36" stroke="#000000" stroke-width="2"/>'
             '<text x="314" y="34">target</text>']
    for mark in (0.5, 1.0, 1.5, 2.0):
        parts.append(f'<line x1="{x(mark)}" x2="{x(mark)}" y1="{top}" y2="{total - 6}" stroke="#d8dee9"/>'
                     f'<text x="{x(mark)}" y="{top - 2}" text-anchor="middle" fill="#6b7280">{mark:g}</text>')
    for k, row in enumerate(rows):
        y = top + 4 + height * k
        target = row["target"]
        missed = target is not None and row["time_ratio"] > target
        parts.append(f'<text x="{left - 8}" y="{y + 10}" text-anchor="end">{row["case"]}</text>'
                     f'<rect x="{left}" y="{y}" width="{x(row["time_ratio"]) - left:.1f}" height="{height - 6}" '
                     f'fill="{"#d08770" if missed else "#7aa6c2"}"/>'
                     f'<circle cx="{x(row["instruction_ratio"]):.1f}" cy="{y + 6}" r="3" fill="#2e3440"/>')
        if target is not None:
            parts.append(f'<line x1="{x(target):.1f}" x2="{x(target):.1f}" y1="{y - 2}" y2="{y + height - 4}" '
                         'stroke="#000000" stroke-width="2"/>')
        parts.append(f'<text x="{left + unit * 2 + 8}" y="{y + 10}">{row["time_ratio"]:.2f}</text>')
    return "\n".join(parts + ["</svg>"]) + "\n"


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    instructions = count_instructions(program, folder)
    times, allocations = measure_times(program, folder)
    rows = make_rows(times, instructions, allocations)
    (folder / "ratios.json").write_text(json.dumps(rows, indent=2) + "\n")
    text = table(rows)
    print(aligned(text))
    if len(sys.argv) > 3:
        docs = pathlib.Path(sys.argv[3])
        (docs / "performance.svg").write_text(chart(rows))
        page = docs / "performance.md"
        page.write_text(re.sub(r"^\| case .*?\n\n", lambda _: text + "\n\n", page.read_text(), count=1,
                               flags=re.MULTILINE | re.DOTALL))


main()
