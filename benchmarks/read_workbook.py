#!/usr/bin/python3
"""Makes a workbook of new students, or reads one with the library that Python has for its format.

usage: read_workbook.py make FILE ROWS    prints nothing
       read_workbook.py read FILE         prints the seconds that the reading took, and the rows

The ending of FILE tells the format: xls, xlsx or ods. The status is 3 where a library for it is missing.
"""

import os
import sys
import time

MISSING_LIBRARY = 3
FIRST_NUMBER = 900_001
NAMES = ["AYŞE NUR", "MEHMET ALİ", "ZEYNEP", "ÇAĞRI", "İPEK", "OĞUZHAN", "ŞULE"]
FAMILIES = ["YILDIRIM", "ÖZTÜRK", "GÜNEŞ", "KARACA", "ÇELİK"]


def student(i):
    """The ten columns of the panel's boxes, in their order."""
    return [
        NAMES[i % len(NAMES)],
        FAMILIES[i % len(FAMILIES)],
        FIRST_NUMBER + i,
        f"{9 + i % 4}{'ABCDEF'[i % 6]}",
        f"KAYIT {i % 50}",
        f"{i % 90}. YIL ORTAOKULU",
        "EK"[i % 2],
        f"{i}. sıradaki öğrenci",
        f"0212 {i:07}",
        f"0532 {i:07}",
    ]


def make_xlsx(file, rows):
    import openpyxl

    book = openpyxl.Workbook()
    for i in range(rows):
        book.active.append(student(i))
    book.save(file)


def read_xlsx(file):
    import openpyxl

    book = openpyxl.load_workbook(file, read_only=True, data_only=True)
    return list(book.active.iter_rows(values_only=True))


def make_xls(file, rows):
    import xlwt

    book = xlwt.Workbook()
    sheet = book.add_sheet("Liste")
    for i in range(rows):
        for column, value in enumerate(student(i)):
            sheet.write(i, column, value)
    book.save(file)


def read_xls(file):
    import xlrd

    sheet = xlrd.open_workbook(file).sheet_by_index(0)
    return [sheet.row_values(row) for row in range(sheet.nrows)]


def make_ods(file, rows):
    from odf.opendocument import OpenDocumentSpreadsheet
    from odf.table import Table, TableCell, TableRow
    from odf.text import P

    book = OpenDocumentSpreadsheet()
    table = Table(name="Liste")
    for i in range(rows):
        row = TableRow()
        for value in student(i):
            number = isinstance(value, int)
            cell = TableCell(valuetype="float", value=value) if number else TableCell(valuetype="string")
            cell.addElement(P(text=str(value)))
            row.addElement(cell)
        table.addElement(row)
    book.spreadsheet.addElement(table)
    book.save(file)


def read_ods(file):
    from odf import teletype
    from odf.opendocument import load
    from odf.table import TableCell, TableRow

    rows = load(file).spreadsheet.getElementsByType(TableRow)
    return [[teletype.extractText(cell) for cell in row.getElementsByType(TableCell)] for row in rows]


MODULES = {"xls": ["xlwt", "xlrd"], "xlsx": ["openpyxl"], "ods": ["odf.opendocument", "odf.table", "odf.teletype"]}
MAKE = {"xls": make_xls, "xlsx": make_xlsx, "ods": make_ods}
READ = {"xls": read_xls, "xlsx": read_xlsx, "ods": read_ods}


def main(verb, file, rows="0"):
    ending = os.path.splitext(file)[1][1:]
    try:
        for module in MODULES[ending]:
            __import__(module)
    except ImportError:
        return MISSING_LIBRARY
    if verb == "make":
        MAKE[ending](file, int(rows))
        return 0
    begin = time.perf_counter()
    read = READ[ending](file)
    print(time.perf_counter() - begin, len(read))
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
