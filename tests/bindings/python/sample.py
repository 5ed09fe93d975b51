"""Typed uses of the package: mypy --strict accepts each line, and knows these results."""

from datetime import datetime
from decimal import Decimal
from typing import List, Optional

import numpy
from zq7standard import (
    BahtStringObject,
    CTDateType,
    GridValueObject,
    PeripheralObject,
    RunTimeError,
    SerialPort,
    StandardObject,
    columns,
)

standard = StandardObject(
    clock=lambda: datetime(2024, 1, 15), convention="dmy-buddhist", drives={"C": "/srv"}
)
due: datetime = standard.AddMonth(standard.CTDATE(iText="15/1/2567"), NumberOfMonth=1)
layout: str = standard.FormatTDate2(due, CTDateType.ZQ7DMMMBBBB)
number: float = standard.Null2Zero(None)
parts: List[str] = standard.ArrayString("a", "b")
words: str = BahtStringObject().BahtString(Decimal("1234.56"), useEnglish=True)

grid = GridValueObject()
grid.CellDataChange = lambda row, column: print(row + column)
grid.SetCols(3)
rows: int = grid.Rows


class Control:
    PortOpen = False


failure: Optional[str] = None
try:
    PeripheralObject().SendCommMsg(Control(), "kick", 1)
    PeripheralObject().SendCommMsg(SerialPort(serial_devices={1: "/dev/null"}), "kick", 1)
except RunTimeError as error:
    failure = error.operation
    code: int = error.number

columns.apply(standard.AddMonth, numpy.array(["2024-01-31"], "M8[us]"), 1)

# Each of these is refused.
standard.AddMonth("15/1/2567")  # type: ignore[arg-type]
standard.NoSuchOperation()  # type: ignore[attr-defined]
grid.Rows = 3  # type: ignore[misc]
StandardObject(convention="thai")  # type: ignore[arg-type]
