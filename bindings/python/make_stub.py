#!/usr/bin/env python3
"""Writes the type stub of the package, src/zq7standard/__init__.pyi, from the built module.

    PYTHONPATH=build/dev/bindings/python bindings/python/make_stub.py [--check]

With --check it only tells whether the stored stub is up to date.
"""

import enum
import pathlib
import sys

import zq7standard
from zq7standard import _native, _support

STUB = pathlib.Path(__file__).parent / "src/zq7standard/__init__.pyi"

HEAD = '''\
# Made by bindings/python/make_stub.py.
from datetime import date, datetime
from decimal import Decimal
from enum import IntEnum
from os import PathLike
from typing import Callable, List, Literal, Mapping, NoReturn, Sequence, Tuple

from . import _native
from ._support import RunTimeError as RunTimeError, WrongCall as WrongCall

_Convention = Literal["mdy", "dmy", "mdy-buddhist", "dmy-buddhist"]

class Object(_native.Object):
    def __init__(
        self,
        *,
        clock: datetime | Callable[[], datetime] | None = None,
        convention: _Convention | Callable[[], _Convention] | None = None,
        message_box: Callable[[str, str], object] | None = None,
        random: Callable[[], float] | None = None,
        drives: Mapping[str, str | PathLike[str]] | None = None,
        serial_devices: Mapping[int, str] | None = None,
        os: str | None = None,
        pdf_folder: str | PathLike[str] | None = None,
        silent_printers: Sequence[str] | None = None,
        memory_registry: bool = False,
        sodium_cipher: bool = False,
    ) -> None: ...
'''

PICTURE = '''\
    def __init__(
        self, path: str, *, drives: Mapping[str, str | PathLike[str]] | None = None
    ) -> None: ...
'''


def parameter(row):
    text = f"{row['name']}: {_support.taken(row)}"
    if not row["optional"]:
        return text
    default = row.get("default", ...)
    if default is ... or isinstance(default, enum.Enum):
        return f"{text} = ..."
    return f"{text} = {default!r}"


def operation(row):
    parameters = ", ".join(["self", *map(parameter, row["parameters"])])
    return f"    def {row['name']}({parameters}) -> {_support.returned(row['result'])}: ..."


def prop(row):
    name = row["name"]
    read = _support.returned(row["type"]) if row["readable"] else "NoReturn"
    lines = [f"    @property\n    def {name}(self) -> {read}: ..."]
    if row["writable"]:
        taken = _support.TAKEN.get(row["type"], row["type"])
        lines.append(f"    @{name}.setter\n    def {name}(self, value: {taken}) -> None: ...")
    return "\n".join(lines)


def event(row):
    name = row["name"]
    taken = ", ".join(_support.returned(one["type"]) for one in row["parameters"])
    handler = f"Callable[[{taken}], object] | None"
    return (
        f"    @property\n    def {name}(self) -> {handler}: ...\n"
        f"    @{name}.setter\n    def {name}(self, handler: {handler}) -> None: ..."
    )


def stub():
    parts = [HEAD]
    for row in _native.enumerations():
        members = [f"    {member.name} = {member.value}" for member in row]
        parts.append("\n".join([f"class {row.__name__}(IntEnum):", *members]) + "\n")
    for row in _native.classes():
        lines = [f"class {row['name']}(Object):"]
        if not row["creatable"]:
            lines.append(PICTURE.rstrip())
        lines += [prop(one) for one in row["properties"]]
        lines += [operation(one) for one in row["operations"]]
        lines += [event(one) for one in row["events"]]
        parts.append("\n".join(lines) + "\n")
    names = "".join(f'    "{name}",\n' for name in zq7standard.__all__)
    parts.append(f"__all__ = [\n{names}]\n")
    return "\n".join(parts)


def main():
    if sys.argv[1:] == ["--check"]:
        if STUB.read_text(encoding="utf-8") != stub():
            sys.exit(f"{STUB} is out of date: bindings/python/make_stub.py writes it")
    else:
        STUB.write_text(stub(), encoding="utf-8")


if __name__ == "__main__":
    main()
