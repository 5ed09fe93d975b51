"""Whole columns, in each of the types that NumPy and pandas have."""

import unittest
from datetime import date, datetime, timezone
from decimal import Decimal

import numpy
import pandas

from zq7standard import BahtStringObject, GridValueObject, RunTimeError, StandardObject, columns

BAHT = BahtStringObject()
STANDARD = StandardObject(clock=datetime(2024, 1, 15), convention="dmy-buddhist")
DAY = numpy.datetime64("2024-01-15")
ONE, TWO = "หนึ่งบาทถ้วน", "สองบาทถ้วน"


class Columns(unittest.TestCase):
    def test_taken(self):
        for reason, column in [
            ("doubles", numpy.array([1.0, numpy.nan, 2.0])),
            ("singles, every second", numpy.array([1, 0, numpy.nan, 0, 2, 0], "f4")[::2]),
            ("objects", numpy.array([1, None, Decimal(2)], object)),
            ("numbers of NumPy", numpy.array([numpy.int8(1), None, numpy.float32(2)], object)),
            ("a Series", pandas.Series([1.0, None, 2.0])),
            ("whole numbers that may be missing", pandas.Series([1, None, 2], dtype="Int64")),
            ("texts", pandas.Series(["1", None, " 2"])),
            ("texts of NumPy", numpy.array(["1", "2"])),
            ("bytes", numpy.array([1, 2], "u1")),
            ("big-endian", numpy.array([1, 2], ">i4")),
        ]:
            with self.subTest(reason):
                result = columns.apply(BAHT.BahtString, column)
                self.assertIs(type(result), type(column))
                wanted = [ONE, None, TWO] if len(column) == 3 else [ONE, TWO]
                self.assertEqual(list(result), wanted)
                self.assertEqual(result.dtype, object)

    def test_results(self):
        numbers = numpy.array([1.5, 2.5])
        missing = numpy.array([1.5, numpy.nan])
        for method, column, dtype, wanted in [
            (STANDARD.Floor, numbers, "f8", [1.0, 2.0]),
            (STANDARD.Floor, missing, "O", [1.0, None]),
            (STANDARD.GetITF14ChekDigit, numpy.array(["1540014128876"], object), "i8", [3]),
            (STANDARD.IsTDate, numpy.array(["1/1/2567", "x"]), "?", [True, False]),
            (STANDARD.Null2Zero, missing, "O", [1.5, None]),
            (STANDARD.Floor, numpy.array([], "f8"), "f8", []),
            (STANDARD.Floor, numpy.array([2**40]), "f8", [2.0**40]),
        ]:
            with self.subTest(method.__name__, column=column):
                result = columns.apply(method, column)
                self.assertEqual((result.dtype, list(result)), (dtype, wanted))

    def test_dates(self):
        texts = ["2024-01-31", "0100-01-01", "9999-11-30"]
        wanted = numpy.array(["2024-02-29", "0100-02-01", "9999-12-30"], "M8[us]")
        for unit in ("D", "s", "us"):
            with self.subTest(unit):
                result = columns.apply(STANDARD.AddMonth, numpy.array(texts, f"M8[{unit}]"), 1)
                self.assertEqual(result.dtype, "M8[us]")
                numpy.testing.assert_array_equal(result, wanted)
        missing = columns.apply(STANDARD.AddMonth, numpy.array(["2024-01-31", "NaT"], "M8[D]"), 1)
        self.assertEqual(list(missing), [datetime(2024, 2, 29), None])
        moment = numpy.array(["2024-01-15T09:30:00.000001", "1850-01-01T18:00:00"], "M8[us]")
        same = columns.apply(STANDARD.GetConditionDueDate, moment, 0, 0, 0)
        numpy.testing.assert_array_equal(same, moment)
        with self.assertRaises(RunTimeError) as raised:
            columns.apply(STANDARD.AddMonth, numpy.array(["2024-01-01", "0099-12-31"], "M8[D]"), 1)
        self.assertEqual((raised.exception.number, raised.exception.row), (5, 1))

    def test_dates_of_pandas(self):
        whole = pandas.Series(pandas.to_datetime(["2024-01-31", "1999-12-31"]), [7, 9], name="due")
        result = columns.apply(STANDARD.AddMonth, whole, 1)
        self.assertEqual((result.dtype, list(result.index), result.name), ("M8[ns]", [7, 9], "due"))
        self.assertEqual(result[9], pandas.Timestamp(2000, 1, 31))
        series = pandas.Series(pandas.to_datetime(["2024-01-31", None]))
        result = columns.apply(STANDARD.AddMonth, series, 1)
        self.assertEqual((result.dtype, list(result)), (object, [datetime(2024, 2, 29), None]))
        far = columns.apply(STANDARD.AddMonth, series, 12 * 300)
        self.assertEqual((far.dtype, list(far)), (object, [datetime(2324, 1, 28), None]))
        objects = [date(2567, 1, 31), pandas.NaT, datetime(1600, 1, 31)]
        far = columns.apply(STANDARD.AddMonth, pandas.Series(objects, dtype=object), 1)
        self.assertEqual(list(far), [datetime(2567, 2, 28), None, datetime(1600, 2, 29)])

    def test_arguments(self):
        dates = numpy.array(["2024-01-31", "2024-01-31"], "M8[D]")
        result = columns.apply(STANDARD.AddMonth, InDate=dates, NumberOfMonth=numpy.array([1, 2]))
        self.assertEqual(result.astype("M8[D]").astype(str).tolist(), ["2024-02-29", "2024-03-29"])
        words = columns.apply(BAHT.MoneyText, numpy.array([1.0]), useEnglish=True)
        self.assertEqual(list(words), ["One baht"])
        numbers = numpy.array([1.0, 2.0])
        aware = pandas.Series([datetime(2024, 1, 1, tzinfo=timezone.utc)])
        for reason, error, call in [
            ("no column", TypeError, lambda: columns.apply(STANDARD.Floor, 1)),
            ("lengths", ValueError, lambda: columns.apply(STANDARD.Round, numbers, numbers[:1])),
            ("two dimensions", ValueError, lambda: columns.apply(STANDARD.Floor, numbers[:, None])),
            ("not a method", TypeError, lambda: columns.apply(abs, numbers)),
            ("not bound", TypeError, lambda: columns.apply(StandardObject.Floor, numbers)),
            ("a keyword", RunTimeError, lambda: columns.apply(STANDARD.Floor, Value=numbers)),
            ("too many", TypeError, lambda: columns.apply(STANDARD.Floor, numbers, 1)),
            ("a NumPy date for all", TypeError, lambda: columns.apply(STANDARD.Round, numbers, DAY)),
            ("aware dates", TypeError, lambda: columns.apply(STANDARD.TrimDate, aware)),
            ("errors", ValueError, lambda: columns.apply(STANDARD.Floor, numbers, errors="ignore")),
        ]:
            with self.subTest(reason), self.assertRaises(error):
                call()

    def test_errors(self):
        texts = numpy.array(["1/1/2567", "x", {}], object)
        result = columns.apply(STANDARD.FormatQuery, texts, errors="none")
        self.assertEqual(list(result), ["2024-01-01", None, None])
        result = columns.apply(STANDARD.CTDATE, texts, errors="none")
        self.assertEqual(list(result), [datetime(2024, 1, 1), None, None])
        with self.assertRaises(RunTimeError) as raised:
            columns.apply(STANDARD.CTDATE, texts)
        self.assertEqual(raised.exception.row, 1)
        self.assertTrue(str(raised.exception).startswith("row 1: StandardObject.CTDATE: "))
        with self.assertRaises(TypeError) as refused:
            columns.apply(STANDARD.CTDATE, texts[2:])
        self.assertEqual(refused.exception.row, 0)

        grid = GridValueObject()
        grid.SetCols(1)
        grid.CellDataChange = lambda row, column: {}[row]
        for errors in ("raise", "none"):  # what host code raises is not about the row
            with self.subTest(errors), self.assertRaises(KeyError):
                columns.apply(grid.Setvalue, numpy.arange(3), 0, 1.0, errors=errors)


if __name__ == "__main__":
    unittest.main()
