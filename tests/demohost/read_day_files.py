"""Reads the files that the script day.op exports with readers that share no code with their writer.

Usage: read_day_files.py FOLDER
"""
import csv
import datetime
import pathlib
import sys

import openpyxl

folder = pathlib.Path(sys.argv[1])
workbook = openpyxl.load_workbook(folder / "bills.xlsx")
sheet = workbook.active
frozen = int(sheet.freeze_panes[1:])
rows = [[cell for cell in row] for row in sheet.iter_rows()]
captions = [cell.value for cell in rows[frozen - 2]]
first = dict(zip(captions, rows[frozen - 1]))
with open(folder / "bills.txt", encoding="utf-8-sig", newline="") as text:
    lines = list(csv.reader(text, delimiter="|"))

expected = {
    "title": (rows[0][0].value, "代保管票据查询"),
    "number of the bill": (first["票号"].value, "3013100120000001"),
    "amount": (first["票面金额"].value, 150411.89),
    "format of the amount": (first["票面金额"].number_format, "#,##0.00"),
    "due date": (first["票据到期日"].value, datetime.datetime(2026, 8, 1)),
    "account": (first["代保管账号"].value, "901021000300008019"),
    "rows of the workbook": (len(rows) - frozen + 1, 4),
    "hidden column": ("票据类型" in captions, True),
    "captions of the text": (lines[0], captions),
    "rows of the text": (len(lines) - 1, 4),
    "first row of the text": (dict(zip(lines[0], lines[1]))["票据类型"], "商业承兑汇票"),
    "files": (sorted(file.name for file in folder.glob("bills*")), ["bills.txt", "bills.xlsx"]),
}
wrong = [f"{what}: {found!r} instead of {wanted!r}" for what, (found, wanted) in expected.items() if found != wanted]
print("\n".join(wrong) or f"{len(expected)} facts hold")
sys.exit(bool(wrong))
