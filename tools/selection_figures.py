#!/usr/bin/env python3
"""Reads the dump of a scripted selection and prints the duty, the series that reach it, and the units
of the open series around the chosen one."""

import json
import sys


def table(rows, marked):
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    for number, row in enumerate(rows):
        cells = [text.ljust(width) for text, width in zip(row, widths)]
        print("  " + ("> " if number == marked else "  ") + "  ".join(cells).rstrip())


def columns(grid, wanted, rows):
    cells = grid["cells"]
    return [[cells[row][column].strip() for column in wanted] for row in [0, *rows]]


dump = json.loads(sys.stdin.readline())
series, units = dump["KatalogSpread"], dump["Venttab"]
chosen = dump["AuswahlZeile"]
print("Worked selection: " + dump["PN19"]["text"])
duty = float(dump["QoSoll"])
reaching = [row for row in range(1, series["rows"]) if float(series["cells"][row][2]) >= duty]
table(columns(series, [1, 2, 3], reaching), None)
print("\n  " + dump["SerienPN"]["text"].replace("\r\n", " "))
around = range(max(1, chosen - 2), min(units["rows"], chosen + 3))
table(columns(units, range(1, 8), around), chosen - around[0] + 1)
