"""Runs the benchmark that scripts/bench has built, and prints or compares its figures."""

import json
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
BUILD = os.path.join(ROOT, "build/release/benchmarks")
BENCHMARK = os.path.join(BUILD, "model_benchmark")
RECORDED = os.path.join(ROOT, "benchmarks/recorded.json")
PROJECT, REFERENCE = "orvanta", "simdjson"

# Those that all implementations run, and their parts, which are measured for the project only.
WORKLOADS = ["push", "inbox", "events"]
PARTS = ["text to dictionary", "dictionary to push", "push to dictionary", "push to text",
         "events to dictionary"]
# The difference of two counts of operations is what an operation costs; start-up cancels out.
REPEATS = {"inbox": (1, 4), "inbox of 500": (1, 3), "events": (10, 30)}
TOLERANCE = 1.05


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True)


def instructions(row):
    few, many = REPEATS.get(row.split("/")[0], (100, 400))
    counts = []
    for repeats in (few, many):
        done = run("valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                   BENCHMARK, "repeat", row, str(repeats))
        counts.append(int(re.search(r"Collected : (\d+)", done.stderr)[1]))
    return (counts[1] - counts[0]) / (many - few)


def measured(names, *options, implementation=""):
    """Row to its figures: nanoseconds (the median), allocations and bytes asked."""
    pattern = "^(" + "|".join(names) + ")/" + implementation
    done = run(BENCHMARK, "--benchmark_format=json", "--benchmark_filter=" + pattern, *options)
    figures = {}
    for entry in json.loads(done.stdout)["benchmarks"]:
        if entry.get("aggregate_name", "median") != "median":
            continue
        scale = {"ns": 1, "us": 1e3, "ms": 1e6}[entry["time_unit"]]
        figures[entry["run_name"]] = {
            "ns": entry["cpu_time"] * scale,
            "allocations": entry["allocations"],
            "bytes": entry["bytes"],
        }
    return figures


def timed(names):
    """Repetitions of all rows in random order, so that a busy moment does not hit one row alone."""
    return measured(names, "--benchmark_repetitions=15", "--benchmark_min_time=0.05",
                    "--benchmark_enable_random_interleaving=true",
                    "--benchmark_report_aggregates_only=true")


def counted():
    """What --record keeps and --check compares: the figures that do not depend on the moment."""
    rows = measured(WORKLOADS + PARTS, "--benchmark_min_time=0.001", implementation=PROJECT)
    return {
        row.split("/")[0]: {
            "instructions": round(instructions(row)),
            "allocations": figures["allocations"],
            "bytes": figures["bytes"],
        }
        for row, figures in rows.items()
    }


def check():
    with open(RECORDED, encoding="utf-8") as file:
        recorded = json.load(file)
    now = counted()
    worse = []
    for workload in sorted(recorded.keys() | now.keys()):
        for what in ("instructions", "allocations", "bytes"):
            before = recorded.get(workload, {}).get(what)
            figure = now.get(workload, {}).get(what)
            if before is None or figure is None or figure > before * TOLERANCE:
                worse.append(f"{workload}: {what} {before} recorded, {figure} now")
    print("\n".join(worse) or "no figure is more than 5 % above the recorded one")
    return 1 if worse else 0


def record():
    with open(RECORDED, "w", encoding="utf-8") as file:
        json.dump(counted(), file, indent=2)
        file.write("\n")


def table(header, rows):
    rows = [header, *rows]
    widths = [max(len(row[i]) for row in rows) for i in range(len(header))]
    for row in rows:
        cells = [row[0].ljust(widths[0]), row[1].ljust(widths[1])]
        cells += [cell.rjust(width) for cell, width in zip(row[2:], widths[2:])]
        print("  ".join(cells).rstrip())


def print_workloads(names):
    figures = timed(names)
    for row, values in figures.items():
        values["instructions"] = instructions(row)
    lines = []
    for workload in names:
        rows = [row for row in figures if row.split("/")[0] == workload]
        reference = figures.get(f"{workload}/{REFERENCE}")
        for row in sorted(rows, key=lambda row: (not row.endswith(PROJECT),
                                                 not row.endswith(REFERENCE), row)):
            values = figures[row]

            def ratio(what):
                return f"{values[what] / reference[what]:.2f}" if reference else "-"

            lines.append((workload, row.split("/")[1], f"{values['ns'] / 1e3:.2f}", ratio("ns"),
                          f"{values['instructions']:.0f}", ratio("instructions"),
                          f"{values['allocations']:.0f}", f"{values['bytes']:.0f}"))
    table(("workload", "implementation", "µs", "x ref", "instructions", "x ref", "allocations",
           "bytes asked"), lines)


def program(name, *arguments):
    return run(os.path.join(BUILD, name), *arguments).stdout


def start_milliseconds(names, rounds=400):
    """The quarter of the starts that other processes disturbed least; alternating."""
    times = {name: [] for name in names}
    for _ in range(rounds):
        for name, all_times in times.items():
            begin = time.perf_counter()
            os.waitpid(os.posix_spawn(os.path.join(BUILD, name), [name], os.environ), 0)
            all_times.append(1e3 * (time.perf_counter() - begin))
    return {name: statistics.median(sorted(all)[: rounds // 2]) for name, all in times.items()}


def stripped_kib(name):
    with tempfile.NamedTemporaryFile() as out:
        run("strip", "-o", out.name, os.path.join(BUILD, name))
        return os.path.getsize(out.name) / 1024


def print_processes():
    whole, empty = "whole_library", "empty_program"
    push = os.path.join(ROOT, "benchmarks/data/push.json")
    first = statistics.median(float(program(whole, "push", push)) for _ in range(101)) / 1e3
    with tempfile.NamedTemporaryFile("w") as inbox:
        inbox.write(run(BENCHMARK, "inbox").stdout)
        inbox.flush()
        text = os.path.getsize(inbox.name) / 1024
        growth = statistics.median(int(program(whole, "inbox", inbox.name)) for _ in range(9))
    start = start_milliseconds((whole, empty))
    resident = {name: min(int(program(name, "resident")) for _ in range(9)) / 1024
                for name in (whole, empty)}
    print(f"first push of a process             {first:8.1f} µs")
    print(f"inbox, growth of the resident size  {growth / text:8.2f} x the text")
    print(f"stripped, empty program             {stripped_kib(empty):8.1f} KiB")
    print(f"stripped, all classes and extension {stripped_kib(whole):8.1f} KiB")
    print(f"its start over the empty one's      {start[whole] - start[empty]:8.2f} ms"
          f" {resident[whole] - resident[empty]:+.2f} MiB")


def print_all():
    print()
    print_workloads(PARTS)
    hostile = ["escapes", "unicode escapes", "keys with one prefix", "short keys with one prefix",
               "one-digit numbers", "nesting"]
    names = [*hostile, "push", "inbox of 10", "inbox of 500"]
    figures = timed(names)
    reference = figures[f"push/{REFERENCE}"]["ns"]
    print()
    table(("hostile text", "", "µs", "x ref's push"),
          [(name, "", f"{figures[f'{name}/{PROJECT}']['ns'] / 1e3:.2f}",
            f"{figures[f'{name}/{PROJECT}']['ns'] / reference:.2f}") for name in hostile])
    few, many = (figures[f"inbox of {n}/{PROJECT}"]["ns"] / n for n in (10, 500))
    few_counted, many_counted = (instructions(f"inbox of {n}/{PROJECT}") / n for n in (10, 500))
    print()
    print(f"inbox, a message at 500 against 10  {many / few:8.2f} x in time,"
          f" {many_counted / few_counted:.2f} x in instructions")
    print_processes()


def main():
    mode = sys.argv[1] if len(sys.argv) > 1 else ""
    if mode == "--check":
        return check()
    if mode == "--record":
        record()
        return 0
    print_workloads(WORKLOADS)
    if mode == "--all":
        print_all()
    return 0


if __name__ == "__main__":
    sys.exit(main())
