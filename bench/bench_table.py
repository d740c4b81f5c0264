#!/usr/bin/env python3
"""Prints the performance table of bench/README.md from a run of zeltypes_bench
written with --benchmark_out_format=json (or --benchmark_format=json).

    bench_table.py results.json   the table, as Markdown
    bench_table.py --filter       the --benchmark_filter that selects its benchmarks

Times are CPU times in ns, the median of the repetitions where the run has
aggregates, else the mean of the plain entries. On a shared machine the wall
times swing with the load; the CPU times and the ratios within one run do not.
"""
import json
import sys

# Rows measured here: (what, ours, peer or None, goal as text, goal test on
# (ours, peer)). A ratio is ours / peer: below 1 means faster than the peer.
MEASURED = [
    ("`ConvCartesianToGeographic` vs GeographicLib `Geocentric::Reverse`",
     "BM_CoordCartesianToGeographic", "BM_CoordGeographicLibReverse",
     ">= 3x faster (ratio <= 0.33)", lambda o, p: o / p <= 1.0 / 3.0),
    ("`ConvGeographicToCartesian` vs GeographicLib `Geocentric::Forward`",
     "BM_CoordGeographicToCartesian", "BM_CoordGeographicLibForward",
     ">= 2x faster (ratio <= 0.5)", lambda o, p: o / p <= 0.5),
    ("`GetDate` (date and time of day) vs date `year_month_day` + `hh_mm_ss`",
     "BM_Time_GetDateVarying", "BM_TimePeer_YearMonthDayHms",
     "<= 1.0x", lambda o, p: o / p <= 1.0),
    ("`GetDate` (date, fractional day) vs date `year_month_day` from `sys_days`",
     "BM_Time_GetDateDayVarying", "BM_TimePeer_YearMonthDay",
     "<= 1.0x", lambda o, p: o / p <= 1.0),
    ("`SMjdTime` from GPS week and seconds",
     "BM_Time_ConstructFromGpsWeekSeconds", None,
     "<= 10 ns", lambda o, p: o <= 10.0),
]

# Rows of the issue that other work takes; the figure is the issue's.
NOT_YET = [
    ("Observation epoch, 40 satellites x 4 signals: `saveData` / `loadData` vs memcpy",
     "7-9x / 9-12x memcpy", "<= 1.5x"),
    ("Output record with 400 corrections: `loadData` vs memcpy", "127-228x memcpy", "<= 10x"),
    ("Ephemeris images, worst class (QZSS, Galileo) vs memcpy", "2.1-2.2x memcpy", "<= 1.5x"),
]

# Rows of several threads against one thread alone: (what, the benchmark of
# each thread, the benchmark of one thread alone, goal as text, least
# throughput). Throughput = alone / each, from the CPU time per call of each
# thread; 1.00 is no loss.
SCALING = [
    ("GLONASS frequency lookups, each of 2 readers vs 1 reader alone",
     "BM_GlonassLookup/writer:0/threads:2", "BM_GlonassLookup/writer:0/threads:1",
     "no lock on the read path; each reader >= 0.8x one reader alone", 0.8),
    ("GLONASS frequency lookups, each of 2 readers with a writer swapping 1,000/s vs 1 reader alone",
     "BM_GlonassLookup/writer:1/threads:2", "BM_GlonassLookup/writer:0/threads:1",
     "no lock on the read path; each reader >= 0.8x one reader alone", 0.8),
]


def benchmark_filter():
    names = [r[1] for r in MEASURED] + [r[2] for r in MEASURED if r[2]]
    names += sorted({n for r in SCALING for n in r[1:3]})
    return "^(" + "|".join(names) + ")(_|$)"


def cpu_times(path):
    with open(path) as f:
        data = json.load(f)
    medians, plain = {}, {}
    for b in data.get("benchmarks", []):
        unit = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}[b.get("time_unit", "ns")]
        t = b["cpu_time"] * unit
        if b.get("run_type") == "aggregate":
            if b.get("aggregate_name") == "median":
                medians[b["run_name"]] = t
        else:
            plain.setdefault(b.get("run_name", b["name"]), []).append(t)
    times = {n: sum(v) / len(v) for n, v in plain.items()}
    times.update(medians)
    return times, data.get("context", {})


def main(argv):
    if len(argv) == 2 and argv[1] == "--filter":
        print(benchmark_filter())
        return 0
    if len(argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    times, context = cpu_times(argv[1])
    print("| Benchmark | Ours (ns) | Peer or memcpy (ns) | Ratio | Goal | Met |")
    print("|---|---|---|---|---|---|")
    for what, ours, peer, goal, test in MEASURED:
        o = times.get(ours)
        p = times.get(peer) if peer else None
        if o is None or (peer and p is None):
            missing = ours if o is None else peer
            print(f"| {what} | - | - | - | {goal} | not measured ({missing} missing) |")
            continue
        ratio = f"{o / p:.2f} ({p / o:.2f}x faster)" if p else "-"
        peer_text = f"{p:.1f}" if p else "-"
        print(f"| {what} | {o:.1f} | {peer_text} | {ratio} | {goal} | {'yes' if test(o, p) else 'no'} |")
    for what, each, alone, goal, least in SCALING:
        e = times.get(each)
        a = times.get(alone)
        if e is None or a is None:
            missing = each if e is None else alone
            print(f"| {what} | - | - | - | {goal} | not measured ({missing} missing) |")
            continue
        print(f"| {what} | {e:.1f} | {a:.1f} (1 reader) | {a / e:.2f}x the throughput of 1 reader | {goal} "
              f"| {'yes' if a / e >= least else 'no'} |")
    for what, now, goal in NOT_YET:
        print(f"| {what} | not yet | - | {now} | {goal} | not yet |")
    host = context.get("host_name", "?")
    cpus = context.get("num_cpus", "?")
    print(f"\nCPU times, median of the repetitions; {host}, {cpus} CPUs, {context.get('date', '')}.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
