"""What the module needs of Python, and what turns the catalogue into Python's own terms."""

from datetime import date, datetime
from decimal import Decimal
from typing import Any, Dict, List, Optional, Union


class RunTimeError(Exception):
    """An error of the library, with its number; docs/errors.md says what raises each.

    Host code that stands in for a device or a service raises it with a number and a text.
    """

    class_name: Optional[str] = None
    """Of the object."""
    operation: Optional[str] = None
    """That was called."""
    parameter: Optional[str] = None
    """The one whose argument is wrong."""
    input: Optional[str] = None
    """That argument as a text, whole."""
    row: Optional[int] = None
    """Of a column, from 0."""
    message: Optional[str] = None

    def __init__(self, number: int, text: str = "") -> None:
        super().__init__(number, text)
        self.number = number
        self.text = text

    def __str__(self) -> str:
        message = self.text if self.message is None else self.message
        return message if self.row is None else f"row {self.row}: {message}"


class WrongCall(RunTimeError, TypeError):
    """448, 449, 450: an unknown keyword, a missing argument, too many arguments."""


# What a parameter takes and an operation returns, by the catalogue's types.
TAKEN = {
    "Text": "str",
    "Byte": "int | Decimal",
    "Integer": "int | Decimal",
    "Long": "int | Decimal",
    "Single": "float | Decimal",
    "Double": "float | Decimal",
    "Boolean": "bool",
    "Date": "date",
    "Currency": "float | Decimal",
    "TextList": "List[str] | Tuple[str, ...]",
    "SerialPort": "object",
    "PrintPicture": "object",
}
RETURNED = {
    "Nothing": "None",
    "Text": "str",
    "Byte": "int",
    "Integer": "int",
    "Long": "int",
    "Single": "float",
    "Double": "float",
    "Boolean": "bool",
    "Date": "datetime",
    "Currency": "Decimal",
    "TextList": "List[str]",
}


def taken(row: Dict[str, Any]) -> str:
    """The annotation of a parameter; members of enumerations are numbers too."""
    text = TAKEN.get(row["type"], row["type"] + " | int")
    return text + " | None" if row["nullable"] and text != "object" else text


def returned(name: str) -> str:
    return RETURNED.get(name, name)


_NAMES: Dict[str, Any] = {
    "str": str,
    "int": int,
    "float": float,
    "bool": bool,
    "date": date,
    "datetime": datetime,
    "Decimal": Decimal,
    "List[str]": List[str],
    "Tuple[str, ...]": tuple,
    "object": object,
    "None": None,
}


def describe(method: Any, row: Dict[str, Any], owner: str, enumerations: Dict[str, Any]) -> None:
    """Writes what `help` and `inspect` read to a method."""
    method.__name__ = row["name"]
    method.__qualname__ = f"{owner}.{row['name']}"
    method.__module__ = "zq7standard"
    method.__doc__ = row["documentation"]
    method._row = row
    _NAMES.update(enumerations)


def _annotation(text: str) -> Any:
    return Union[tuple(_NAMES[name] for name in text.split(" | "))]


def signature_of(method: Any) -> Any:
    """The `inspect.Signature` of a method; `inspect` is slow to import and rarely needed."""
    import inspect

    row = method._row
    parameters = [inspect.Parameter("self", inspect.Parameter.POSITIONAL_ONLY)]
    for parameter in row["parameters"]:
        # "..." stands for a default that the operation itself chooses.
        missing = ... if parameter["optional"] else inspect.Parameter.empty
        parameters.append(
            inspect.Parameter(
                parameter["name"],
                inspect.Parameter.POSITIONAL_OR_KEYWORD,
                default=parameter.get("default", missing),
                annotation=_annotation(taken(parameter)),
            )
        )
    return inspect.Signature(parameters, return_annotation=_annotation(returned(row["result"])))
