"""Reads the tables that the test program has written with pandas and no option, and compares them with the data
sheets beside them. Argument: the folder."""

import csv
import math
import sys
from pathlib import Path

import pandas

folder = Path(sys.argv[1])


def same(texts, column):
    """A column of names as pandas has read it: numbers, if all of them are."""
    for text, read in zip(texts, column, strict=True):
        assert str(read) == text or float(read) == float(text), (text, read)


def compare(name):
    with open(folder / f"{name}.csv", newline="", encoding="cp1252") as file:
        sheet = list(csv.reader(file))
    groups, samples = sheet[1][1:3], sheet[1][4:]
    rows = {int(row[0]): ([int(flag) for flag in row[1:3]], row[3], [int(count) for count in row[4:]])
            for row in sheet[2:137]}
    used = [key for key, (_, taxon, counts) in rows.items() if taxon != "---" or any(counts)]
    counted = [key for key in used if any(rows[key][2])]
    totals = [sum(rows[key][2][i] for key in counted) for i in range(len(samples))]

    counts, tidy, taxa = (pandas.read_csv(folder / f"{name}_{table}.csv") for table in ("counts", "tidy", "taxa"))
    assert list(taxa["key_index"]) == used
    called = dict(zip(taxa["key_index"], taxa["taxon"]))
    assert len(set(called.values())) == len(used)
    for key, line in zip(used, taxa.itertuples(), strict=True):
        flags, taxon, numbers = rows[key]
        assert [line.subtotal_1, line.subtotal_2] == flags
        group = groups[flags.index(1)] if 1 in flags else math.nan
        assert line.group == group or (math.isnan(group) and math.isnan(line.group))
        assert line.total == sum(numbers) and line.samples == sum(number != 0 for number in numbers)
        assert called[key].startswith(taxon if taxon != "---" else f"Unnamed {key}")

    assert list(counts.columns) == ["sample", "depth"] + [called[key] for key in counted]
    same(samples, counts["sample"])
    for key in counted:
        assert list(counts[called[key]]) == rows[key][2], called[key]

    assert len(tidy) == len(samples) * len(counted)
    for i in range(len(samples)):
        part = tidy[i * len(counted):(i + 1) * len(counted)]
        assert set(part["location"]) == {name} and set(part["units"]) == {"NISP"}
        same([samples[i]] * len(counted), part["sample"])
        assert list(part["taxon"]) == [called[key] for key in counted]
        assert list(part["count"]) == [rows[key][2][i] for key in counted]
        for count, share in zip(part["count"], part["rel_abund"]):
            assert math.isclose(share, 100 * count / totals[i], rel_tol=1e-9) if totals[i] > 0 else math.isnan(share)


for found in sorted(folder.glob("*_counts.csv")):
    compare(found.name[:-len("_counts.csv")])
    print(found.name, "and its tables hold the counts of the sheet")
