"""Helper classes for Thai business applications: dates, money in words, printing, devices.

Classes, methods, properties, events and enumerations come from the library's catalogue when the
package is imported.
"""

from typing import Any, Dict

from . import _native, _support
from ._support import RunTimeError, WrongCall

__all__ = ["Object", "RunTimeError", "WrongCall"]


class Object(_native.Object):
    """The base of the library's classes. The arguments are the services that its objects use:

    clock: a datetime, or a callable that returns one. Default: the machine's clock.
    convention: how dates are typed: "mdy", "dmy", "mdy-buddhist", "dmy-buddhist", or a callable
        that returns one of them. Default: the locale's.
    message_box: called with the title and the text of each message. Default: the error stream.
    random: called for each number, from 0 up to but not including 1.
    drives: the folders of drive letters: {"C": "/srv/shop"}. Default: the root folder.
    serial_devices: the devices of port numbers: {3: "/dev/ttyUSB0"}.
    os: what stands for the environment variable "OS".
    pdf_folder: where the printer "PDF" writes, if there is no print server.
    silent_printers: the names of printers that print nothing, instead of the machine's.
    memory_registry: whether the registry is in memory, empty at first.
    sodium_cipher: whether the block cipher of libsodium is used, if the library was built with it.
    """

    __slots__ = ("__weakref__",)

    def __init__(
        self,
        *,
        clock: Any = None,
        convention: Any = None,
        message_box: Any = None,
        random: Any = None,
        drives: Any = None,
        serial_devices: Any = None,
        os: Any = None,
        pdf_folder: Any = None,
        silent_printers: Any = None,
        memory_registry: bool = False,
        sodium_cipher: bool = False,
    ) -> None:
        services = {
            "clock": clock,
            "convention": convention,
            "message_box": message_box,
            "random": random,
            "drives": drives,
            "serial_devices": serial_devices,
            "os": os,
            "pdf_folder": pdf_folder,
            "silent_printers": silent_printers,
            "memory_registry": memory_registry or None,
            "sodium_cipher": sodium_cipher or None,
        }
        given = {name: value for name, value in services.items() if value is not None}
        super().__init__(_class_name(type(self)), given)


def _class_name(cls: type) -> str:
    return next(base.__name__ for base in cls.__mro__ if base.__module__ == "zq7standard")


def _init_picture(self: Any, path: str, *, drives: Any = None) -> None:
    """The picture of a PNG or JPEG file, named by its path text and read at once."""
    given = {"path": path} if drives is None else {"path": path, "drives": drives}
    _native.Object.__init__(self, "PrintPicture", given)


def _property(method: Any, row: Dict[str, Any]) -> property:
    def unreadable(self: Any) -> Any:
        raise AttributeError(f"{row['name']} can only be set")

    getter = method if row["readable"] else unreadable
    return property(getter, method if row["writable"] else None, doc=row["documentation"])


def _event(row: Dict[str, Any]) -> property:
    name = row["name"]
    return property(
        lambda self: self._handler(name),
        lambda self, handler: self._set_handler(name, handler),
        doc=row["documentation"],
    )


def _build() -> None:
    enumerations = {row.__name__: row for row in _native.enumerations()}
    made: Dict[str, Any] = dict(enumerations)
    for row in _native.classes():
        members: Dict[str, Any] = {
            "__doc__": row["documentation"],
            "__module__": "zq7standard",
            "__slots__": (),
        }
        for operation in row["operations"]:
            method = _native.method(row["name"], operation["name"])
            _support.describe(method, operation, row["name"], enumerations)
            members[operation["name"]] = method
        for info in row["properties"]:
            method = _native.method(row["name"], info["name"])
            members[info["name"]] = _property(method, info)
        members.update((event["name"], _event(event)) for event in row["events"])
        if not row["creatable"]:
            members["__init__"] = _init_picture
        made[row["name"]] = type(row["name"], (Object,), members)
    globals().update(made)
    __all__.extend(made)


_build()
