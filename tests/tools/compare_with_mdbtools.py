#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The qmClient authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares what qmjet reads out of databases with what mdbtools reads, cell for cell.

    compare_with_mdbtools.py QMJET            the databases below the folder named by QMJET_CORPUS; skipped without
    compare_with_mdbtools.py QMJET --own      databases that our own builder makes

Every cell must be the same value, but for the differences listed in DIFFERENCES, each with its reason
(docs/mdbtools-differences.md). Databases of other formats must be refused by qmjet.
"""

import decimal
import os
import pathlib
import struct
import subprocess
import sys
import tempfile

NULL = "@@null@@"
DATE = "%Y-%m-%d %H:%M:%S"
OTHER_FORMATS = ("jet3-", "ace-")
SKIPPED = 77  # what CTest takes for neither passed nor failed


class Mismatch(Exception):
    pass


def run(*command):
    done = subprocess.run(command, capture_output=True, timeout=120, check=False)
    return done.returncode, done.stdout, done.stderr


def output_of(*command):
    code, out, err = run(*command)
    if code != 0:
        raise Mismatch(f"{command}: exit code {code}: {err.decode(errors='replace').strip()}")
    return out.decode("utf-8", errors="surrogateescape")


def parse(text):
    """Rows of (is quoted, text) cells; a line ends with LF or CR LF."""
    rows, row, cell, at = [], [], [], 0
    quoted = False

    def end_cell():
        row.append((quoted, "".join(cell)))
        cell.clear()

    while at < len(text):
        char = text[at]
        if char == '"' and not cell and not quoted:
            quoted = True
            at += 1
            while True:
                end = text.index('"', at)
                cell.append(text[at:end])
                at = end + 1
                if text[at:at + 1] != '"':
                    break
                cell.append('"')
                at += 1
            continue
        if char == ",":
            end_cell()
            quoted = False
        elif char == "\n" or text[at:at + 2] == "\r\n":
            end_cell()
            quoted = False
            rows.append(tuple(row))
            row = []
            at += 1 if char == "\r" else 0
        else:
            cell.append(char)
        at += 1
    if row or cell or quoted:
        raise Mismatch("the last line is not ended")
    return rows


def our_value(cell):
    quoted, text = cell
    return None if not quoted and text == "" else text


def their_value(cell):
    quoted, text = cell
    return None if not quoted and text == NULL else text


def single(text):
    return struct.pack("<f", float(text))


def number(text):
    return decimal.Decimal(text)


# How two texts of one type are made comparable.
NORMAL = {
    "byte": number, "integer": number, "long": number, "autonumber": number, "currency": number,
    "numeric": number, "single": single, "double": float, "boolean": number,
    "binary": str.upper, "ole": str.upper, "guid": lambda text: text.upper().strip("{}"),
    "date": str, "text": str, "memo": str,
}


def is_empty_text(kind, ours, theirs):
    """mdbtools shows a text of no characters as Null."""
    return kind == "text" and ours == "" and theirs is None


DIFFERENCES = (is_empty_text,)


def is_same(kind, ours, theirs):
    if ours is None or theirs is None:
        return ours is theirs
    normal = NORMAL.get(kind, str)
    try:
        return normal(ours) == normal(theirs)
    except (ValueError, decimal.InvalidOperation, OverflowError):
        return False


def compare_cell(kind, ours, theirs, where, used):
    if is_same(kind, ours, theirs):
        return
    for difference in DIFFERENCES:
        if difference(kind, ours, theirs):
            used[difference.__name__] = used.get(difference.__name__, 0) + 1
            return
    raise Mismatch(f"{where} ({kind}): qmjet {ours!r}, mdb-export {theirs!r}")


def compare_rows(names, kinds, ours, theirs, where):
    """Answers the cells compared and how often each difference was met."""
    used = {}
    for line, (our_row, their_row) in enumerate(zip(ours, theirs, strict=True), 1):
        for name, our, their in zip(names, our_row, their_row, strict=True):
            compare_cell(kinds[name], our, their, f"{where}, row {line}, {name}", used)
    return len(ours) * len(names), used


def sort_key(names, kinds, row):
    """Orders rows by their values, however they are written."""
    def normal(kind, value):
        return "" if not value else repr(NORMAL.get(kind, str)(value))
    return [normal(kinds[name], value) for name, value in zip(names, row, strict=True)]


def compare_moved_rows(names, kinds, ours, theirs, where):
    """mdbtools shows a row that was moved where it lies now, qmjet where it is known by: another order."""
    def key(row):
        return sort_key(names, kinds, row)
    cells, used = compare_rows(names, kinds, sorted(ours, key=key), sorted(theirs, key=key), where)
    used["compare_moved_rows"] = len(ours) * len(names)
    return cells, used


def compare_table(qmjet, path, table, used):
    kinds = {name: kind for (_, name), (_, kind), _ in parse(output_of(qmjet, "columns", path, table))[1:]}
    ours = parse(output_of(qmjet, "rows", path, table))
    theirs = parse(output_of("mdb-export", "-0", NULL, "-b", "hex", "-D", DATE, "-T", DATE, path, table))
    names = [name for _, name in ours[0]]
    where = f"{path}, {table}"
    if names != [name for _, name in theirs[0]]:
        raise Mismatch(f"{where}: other columns: {ours[0]}, {theirs[0]}")
    our_rows = [[our_value(cell) for cell in row] for row in ours[1:]]
    their_rows = [[their_value(cell) for cell in row] for row in theirs[1:]]
    if len(our_rows) != len(their_rows):
        raise Mismatch(f"{where}: {len(our_rows)} rows, mdb-export has {len(their_rows)}")
    count = int(output_of(qmjet, "count", path, table))
    if count != len(our_rows):
        raise Mismatch(f"{where}: the count is {count}, there are {len(our_rows)} rows")
    try:
        cells, met = compare_rows(names, kinds, our_rows, their_rows, where)
    except Mismatch as in_order:
        try:
            cells, met = compare_moved_rows(names, kinds, our_rows, their_rows, where)
        except Mismatch:
            raise in_order from None
    for name, times in met.items():
        used[name] = used.get(name, 0) + times
    return cells


def compare_database(qmjet, path, used):
    tables = output_of(qmjet, "tables", path).splitlines()
    if set(tables) != set(filter(None, output_of("mdb-tables", "-1", path).splitlines())):
        raise Mismatch(f"{path}: other tables: {tables}")
    output_of(qmjet, "check", path)
    return sum(compare_table(qmjet, path, table, used) for table in tables)


def require_refusal(qmjet, path):
    code, out, err = run(qmjet, "tables", path)
    if code != 1 or out or b"not supported" not in err or err.count(b"\n") != 1:
        raise Mismatch(f"{path}: not refused clearly: {code}, {err!r}")


def compare_all(qmjet, paths):
    used, cells, databases, refused = {}, 0, 0, 0
    for path in paths:
        if pathlib.Path(path).name.startswith(OTHER_FORMATS):
            require_refusal(qmjet, path)
            refused += 1
        else:
            cells += compare_database(qmjet, path, used)
            databases += 1
    print(f"{databases} databases, {cells} cells compared, {refused} databases of other formats refused")
    for name, times in used.items():
        print(f"  {times} cells: {globals()[name].__doc__}")
    if databases == 0 or cells == 0:
        raise Mismatch("there was nothing to compare")


def found_below(folder):
    return sorted(str(path) for path in pathlib.Path(folder).rglob("*") if path.suffix in (".mdb", ".accdb"))


def main():
    qmjet = sys.argv[1]
    if sys.argv[2:] == ["--own"]:
        with tempfile.TemporaryDirectory() as folder:
            output_of(qmjet, "create-demo", os.path.join(folder, "share"))
            compare_all(qmjet, found_below(folder))
    elif not os.environ.get("QMJET_CORPUS"):
        print("QMJET_CORPUS is not set: nothing compared")
        sys.exit(SKIPPED)
    else:
        compare_all(qmjet, found_below(os.environ["QMJET_CORPUS"]))


if __name__ == "__main__":
    try:
        main()
    except Mismatch as mismatch:
        sys.exit(f"FAILED: {mismatch}")
