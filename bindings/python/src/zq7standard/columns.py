"""Applies an operation to a NumPy array or a pandas Series in one call.

    words = columns.apply(BahtStringObject().BahtString, amounts)
    due = columns.apply(StandardObject().AddMonth, frame["date"], frame["months"])
"""

import sys
from typing import Any, List, Optional, Tuple

import numpy

from . import _native

__all__ = ["apply"]

_Argument = Tuple[Optional[str], str, Any]


def _is_series(value: Any) -> bool:
    pandas = sys.modules.get("pandas")
    return pandas is not None and isinstance(value, pandas.Series)


def _missing() -> Tuple[Any, ...]:
    pandas = sys.modules.get("pandas")
    return (None,) if pandas is None else (None, pandas.NaT, pandas.NA)


def _column(name: Optional[str], array: Any) -> _Argument:
    """A column in one of the forms that the module reads."""
    kind = array.dtype.kind
    if kind == "f":
        return name, "f", numpy.ascontiguousarray(array, "f8")
    if kind == "b":
        return name, "b", numpy.ascontiguousarray(array).view("u1")
    if kind == "i" or (kind == "u" and array.dtype.itemsize < 8):
        return name, "i", numpy.ascontiguousarray(array, "i8")
    if kind == "M":
        return name, "M", numpy.ascontiguousarray(array.astype("M8[us]")).view("i8")
    return name, "O", numpy.ascontiguousarray(array, object)


def _argument(name: Optional[str], value: Any, lengths: List[int]) -> _Argument:
    if _is_series(value):
        value = value.to_numpy()
    if not isinstance(value, numpy.ndarray):
        return name, "", value
    if value.ndim != 1:
        raise ValueError("a column has one dimension")
    lengths.append(len(value))
    return _column(name, value)


def _array(kind: str, results: Any, absent: Any, without: int) -> Any:
    """The results as an array of their type, or of objects if some are None."""
    if kind == "b":
        results = results.view("?")
    if kind == "M":
        results[absent != 0] = 0
        results = results.view("M8[us]")
    if without and kind != "O":
        results = results.astype(object)
        results[absent != 0] = None
    return results


def _series(results: Any, like: Any) -> Any:
    """The results as a Series with the index of `like`. Dates that pandas cannot hold are objects."""
    pandas = sys.modules["pandas"]
    dtype = results.dtype
    if dtype.kind == "M":
        first, last = pandas.Timestamp.min, pandas.Timestamp.max
        known = not len(results) or (first <= results.min().item() and results.max().item() <= last)
        results = results.astype("M8[ns]" if known else object)
        dtype = results.dtype
    return pandas.Series(results, index=like.index, name=like.name, dtype=dtype)


def apply(method: Any, *arguments: Any, errors: str = "raise", **named: Any) -> Any:
    """Calls `method`, a method of an object of this package, once for each row, and returns an
    array of the results, or a Series if an argument is one.

    Each argument is an array or a Series of the same length, or one value for all rows. The result
    of a row is None if one of its values is NaN, None or NaT. If a call fails, the error has the
    number of the row, from 0, as `row`; with errors="none" the result of that row is None instead.

    Numbers, Booleans and dates are returned as arrays of their type (dates as datetime64[us]),
    texts, and results among which some are None, as arrays of objects.
    """
    if errors not in ("raise", "none"):
        raise ValueError('errors: "raise" or "none"')
    function = getattr(method, "__func__", None)
    if not isinstance(function, _native.Method):
        raise TypeError("the first argument is not a method of an object of zq7standard")
    lengths: List[int] = []
    taken = [_argument(None, value, lengths) for value in arguments]
    taken += [_argument(name, value, lengths) for name, value in named.items()]
    if not lengths:
        raise TypeError("no argument is an array or a Series")
    if min(lengths) != max(lengths):
        raise ValueError(f"columns of different lengths: {lengths}")
    kind = _native.kind_of_result(function)
    dtype: Any = {"f": "f8", "b": "u1", "O": object}.get(kind, "i8")
    results = numpy.empty(lengths[0], dtype)
    absent = numpy.zeros(lengths[0], "u1")
    without = _native.apply(
        function, method.__self__, taken, results, absent, errors == "none", _missing()
    )
    array = _array(kind, results, absent, without)
    series = next((value for value in (*arguments, *named.values()) if _is_series(value)), None)
    return array if series is None else _series(array, series)
