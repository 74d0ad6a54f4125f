#!/usr/bin/env python3
"""Prints what a workbook holds: its sheets, pictures, column widths and cells.

usage: read_workbook.py FILE
"""

import json
import re
import struct
import sys
import zipfile
from xml.etree import ElementTree

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
DRAWING = "{http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing}"
LONGEST_SHOWN = 60


class Workbook:
    def __init__(self, path):
        self.parts = zipfile.ZipFile(path)
        self.strings = []
        if "xl/sharedStrings.xml" in self.parts.namelist():
            self.strings = [plain("".join(part.text or "" for part in each.iter(f"{MAIN}t")))
                            for each in self.xml("xl/sharedStrings.xml").iter(f"{MAIN}si")]
        styles = self.xml("xl/styles.xml")
        bold = [font.find(f"{MAIN}b") is not None for font in styles.iter(f"{MAIN}font")]
        self.bold = [bold[int(style.get("fontId"))]
                     for style in styles.find(f"{MAIN}cellXfs").iter(f"{MAIN}xf")]

    def xml(self, name):
        return ElementTree.fromstring(self.parts.read(name))

    def show(self):
        for number, sheet in enumerate(self.xml("xl/workbook.xml").iter(f"{MAIN}sheet"), start=1):
            print(f"{sheet.get('name')}:")
            worksheet = self.xml(f"xl/worksheets/sheet{number}.xml")
            if worksheet.find(f"{MAIN}drawing") is not None:
                self.show_picture(number)
            widths = (float(column.get("width")) for column in worksheet.iter(f"{MAIN}col"))
            print("  columns", *(f"{width:.0f}" for width in widths))
            for cell in worksheet.iter(f"{MAIN}c"):
                print(f"  {cell.get('r')} {self.content(cell)}")
            for odd in ("f", "hyperlink"):
                if worksheet.find(f".//{MAIN}{odd}") is not None:
                    print(f"  has an element {odd}")

    def content(self, cell):
        value = cell.find(f"{MAIN}v").text
        mark = "bold " if self.bold[int(cell.get("s", 0))] else ""
        if cell.get("t") is None:
            return mark + value
        text = self.strings[int(value)] if cell.get("t") == "s" else value
        if len(text) > LONGEST_SHOWN:
            return f"{mark}{json.dumps(text[:10])} and so on, {len(text)} characters"
        return mark + json.dumps(text)

    def show_picture(self, number):
        drawing = self.related(f"xl/worksheets/_rels/sheet{number}.xml.rels")
        picture = self.related(f"xl/drawings/_rels/{drawing.rsplit('/', 1)[1]}.rels")
        bytes_of_picture = self.parts.read(picture)
        width, height = struct.unpack("<ii", bytes_of_picture[18:26])
        start = struct.unpack("<I", bytes_of_picture[10:14])[0]
        colour = bytes_of_picture[start:start + 3].hex()
        rows = [int(row.text) + 1 for row in self.xml(drawing).iter(f"{DRAWING}row")]
        print(f"  picture of {width} x {height} in {colour}, rows {rows[0]} to {rows[1]}")

    def related(self, name):
        target = self.xml(name)[0].get("Target")
        return "xl/" + target.removeprefix("../")


def plain(text):
    return re.sub("_x([0-9A-F]{4})_", lambda match: chr(int(match[1], 16)), text)


Workbook(sys.argv[1]).show()
