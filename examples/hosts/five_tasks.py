"""The five tasks of docs/hosts.md from Python."""

import pathlib

from zq7standard import (
    ASCIIObject,
    BahtStringObject,
    GridValueObject,
    RunTimeError,
    StandardObject,
)

baht = BahtStringObject()
print(baht.BahtString(121.50))

standard = StandardObject(convention="dmy-buddhist")
date = standard.CTDATE("31/1/2567")
print(standard.AddMonth(date, 1).date())

settings = ASCIIObject(drives={"C": pathlib.Path.cwd()})
settings.Setvalue("C:\\settings.ini", "Port", "9600")
print(settings.GetValue("C:\\settings.ini", "Port"))

grid = GridValueObject()
grid.CellDataChange = lambda row, column: print(f"row {row}, column {column}")
grid.SetCols(3)
grid.Setvalue(7, 2, 12.5)

try:
    standard.CTDATE("31/2/2567")
except RunTimeError as error:
    print("error", error.number)
