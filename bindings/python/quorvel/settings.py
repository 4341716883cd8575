"""Settings by name, and their values.

The library lists a value as a line of text: "yes", "10 s", '"Front door"'. In Python it is a bool,
an int or a str.
"""

from __future__ import annotations

import operator
import re
from dataclasses import dataclass
from typing import NamedTuple, Union

from .enums import SettingType

Value = Union[bool, int, str]

# The devices' code page; bytes that it leaves undefined stand for the same control character.
_CHARACTERS = [bytes([byte]).decode("cp1252", "ignore") or chr(byte) for byte in range(256)]


def parse_value(listed: str) -> Value:
    """The value that the library lists so."""
    if listed in ("yes", "no"):
        return listed == "yes"
    if listed.startswith('"'):
        return re.sub(r"\\x(..)", lambda it: _CHARACTERS[int(it[1], 16)], listed[1:-1])
    return int(listed.split(" ")[0])


def format_value(value: Value) -> str:
    """A value as the library takes it. A text may also be a code's ("Disable") or have a unit."""
    if isinstance(value, bool):
        return "yes" if value else "no"
    if not isinstance(value, str):
        return str(operator.index(value))
    if not value.startswith('"') and "\0" not in value:
        return value
    return '"' + re.sub(r'["\\\0]', lambda it: f"\\x{ord(it[0]):02X}", value) + '"'


class Setting(NamedTuple):
    name: str
    value: str  # as listed


@dataclass(frozen=True)
class Difference:
    """A setting that differs from that of an image. Values are as listed, "" where one has none."""

    name: str
    value: str
    other: str
    blocks: tuple[int, ...]


@dataclass(frozen=True)
class Place:
    """`length` bytes from byte `at`, from 0, of a block; of a single byte, the bits of `mask`. A
    mark is the device's note about a setting that is kept elsewhere."""

    block: int
    at: int
    length: int
    mask: int
    is_mark: bool


@dataclass(frozen=True)
class Description:
    """What can be said of a setting."""

    name: str
    type: SettingType
    unit: str  # "s", "min" or ""
    allowed: str  # in words: "0 to 20 or 99 = Turbo", "yes or no"
    writable: bool
    least: int  # of a text, its characters
    most: int
    codes: dict[int, str]  # values with a meaning of their own; allowed also outside the range
    codes_only: bool  # no other numbers are allowed than those
    places: tuple[Place, ...]
    blocks: tuple[int, ...]  # in which it is kept, in rising order


@dataclass(frozen=True)
class Finding:
    """A setting whose stored value is not one that it can have."""

    name: str
    value: str  # as listed
    reason: str
