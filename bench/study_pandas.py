#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The figures of a load study as a script with pandas would work them out: study_pandas.py FILE FILE FILE.

Reads data files of 15-minute averages and prints the figures as JSON. The reference that the
program's own study is timed against."""
import json
import math
import re
import sys

import pandas as pd

INTERVAL = 15
WINDOW = "15min"


def read(path):
    with open(path, encoding="cp1252", newline="") as file:
        text = file.read()
    header, rest = re.search(r"([HPK][^\r]*)\r(.*?)\x1a", text, re.S).groups()
    width = 5 if "." in rest else 4
    fields = [line[i:i + width] for line in re.split(r"[\r\n]+", rest) for i in range(0, len(line), width)]
    values = [float(field) for field in fields][::-1]
    time = pd.to_datetime(header[30:44], format="%m-%d-%y %H:%M")
    start = time.ceil(f"{INTERVAL}min") - pd.Timedelta(minutes=INTERVAL * (len(values) + 1))
    return pd.Series(values, pd.date_range(start, periods=len(values), freq=f"{INTERVAL}min"))


def percentile(values, p):
    ordered = sorted(values)
    return ordered[max(math.ceil(p * len(ordered) / 100), 1) - 1]


def channel(x, high):
    block = x.resample(WINDOW).mean()
    falling = x.sort_values(ascending=False).to_list()
    kind = x.index.dayofweek.map(lambda day: 0 if day < 5 else day - 4)
    slots = x.groupby([kind, x.index.hour * 60 + x.index.minute])
    over = x > high
    runs = x[over].groupby((over != over.shift()).cumsum()[over]).agg(["size", "max", "idxmax"])
    return {
        "mean": x.mean(), "max": x.max(), "maxAt": str(x.idxmax()), "min": x.min(), "minAt": str(x.idxmin()),
        "loadFactor": block.mean() / block.max(), "lossFactor": (block**2).mean() / block.max()**2,
        "demand": block.max(), "demandAt": str(block.idxmax()), "rolling": x.rolling(WINDOW).mean().max(),
        "duration": [falling[max(math.ceil(p * len(falling) / 100), 1) - 1] for p in range(101)],
        "above": [[int(run["size"]), run["max"], str(run["idxmax"])] for _, run in runs.iterrows()],
        "days": {"mean": slots.mean().to_list(), "min": slots.min().to_list(), "max": slots.max().to_list(),
                 "p10": slots.agg(percentile, 10).to_list(), "p90": slots.agg(percentile, 90).to_list()},
    }


def flags(x):
    same = x.groupby((x != x.shift()).cumsum()).agg(["size", "first"])
    runs = same[((same["first"] == 0) & (same["size"] >= 2))
                | ((same["first"] != 0) & (same["size"] * INTERVAL >= 360))]
    before, after = x - x.shift(1), x - x.shift(-1)
    least = pd.concat([before.abs(), after.abs()], axis=1).min(axis=1)
    spikes = x[(before * after > 0) & (least > 5 * x.diff().abs().median()) & (least > x.max() / 5)]
    return len(runs) + len(spikes)


def main():
    files = pd.concat([read(path) for path in sys.argv[1:]], axis=1, join="inner")
    power = files.sum(axis=1) / 3 * 1.732 * 13.8
    a, b, c = (files[i] for i in range(3))
    mean = files.mean(axis=1)
    unbalance = 100 * files.sub(mean, axis=0).abs().max(axis=1) / mean
    unbalance = unbalance[(mean > 0) & (mean >= mean.max() / 10)]
    neutral = (a * a + b * b + c * c - a * b - b * c - c * a).clip(lower=0)**0.5
    blocks = files.resample(WINDOW).mean()
    peak = blocks.sum(axis=1).max()
    print(json.dumps({
        "channels": [channel(x, 90) for x in (a, b, c, power)],
        "phases": [unbalance.max(), unbalance.mean(), percentile(unbalance, 95), neutral.max(), neutral.mean()],
        "diversity": blocks.max().sum() / peak,
        "capacity": 1.25 * files.rolling("15min").mean().max().max(),
        "flags": sum(flags(x) for x in (a, b, c)),
    }))


main()
