#!/usr/bin/env python3
"""The aims of bench/aims.tsv with the figures of a run, as one table.

bench_table.py AIMS RESULT.json... [--save FILE] [--compare OLD.json]

The results are the JSON files of the benchmark programs. --save joins them into one file, which a
later run can be compared with; a ratio above 1 says that today is faster. Times are those of the
processor, which other programs on the machine disturb least, unless a benchmark measures the clock.
"""

import argparse
import json
import sys

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def figures(result):
    """Nanoseconds by benchmark; of repetitions the fastest, which is the least disturbed."""
    found = {}
    for run in result["benchmarks"]:
        if run.get("run_type") == "aggregate" or run.get("error_occurred"):
            continue
        name = run.get("run_name", run["name"])
        time = run["real_time" if "real_time" in name.split("/") else "cpu_time"]
        time *= NANOSECONDS[run["time_unit"]]
        found[name] = min(time, found.get(name, time))
    return found


def aims(path):
    with open(path, encoding="utf-8") as file:
        lines = [line.rstrip("\n") for line in file if line.strip() and not line.startswith("#")]
    names = lines[0].split("\t")
    return [dict(zip(names, line.split("\t"))) for line in lines[1:]]


def table(rows, today, before):
    head = ["", "today", "", "aim", "against", "ratio to it"] + (["old / new"] if before else [])
    lines = [head]
    for row in rows:
        time, against = today.get(row["benchmark"]), today.get(row["against"])
        scale = NANOSECONDS[row["unit"]]
        line = [row["what"], f"{time / scale:.3g}" if time else "none", row["unit"], row["aim"]]
        line += [f"{against / scale:.3g}" if against else "-"]
        line += [f"{time / against:.2f}" if time and against else "-"]
        if before:
            old = before.get(row["benchmark"])
            line += [f"{old / time:.2f}" if time and old else "-"]
        lines.append(line)
    widths = [max(len(line[i]) for line in lines) for i in range(len(head))]
    for line in lines:
        cells = [line[0].ljust(widths[0])]
        cells += [cell.rjust(width) for cell, width in zip(line[1:], widths[1:])]
        print("  ".join(cells).rstrip())


def load(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("aims")
    parser.add_argument("results", nargs="+")
    parser.add_argument("--save")
    parser.add_argument("--compare")
    options = parser.parse_args()
    joined = {"benchmarks": []}
    try:
        for path in options.results:
            joined["benchmarks"] += load(path)["benchmarks"]
        before = figures(load(options.compare)) if options.compare else None
        if options.save:
            with open(options.save, "w", encoding="utf-8") as file:
                json.dump(joined, file, indent=1)
        table(aims(options.aims), figures(joined), before)
    except (OSError, ValueError, KeyError) as error:
        sys.exit(f"bench_table: {error}")


if __name__ == "__main__":
    main()
