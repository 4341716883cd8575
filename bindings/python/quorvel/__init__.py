"""Quorvel, the configuration menu of video multiplexers, for hosts in Python.

A Control edits the configuration of one device. It is made on a Platform, which has a clock,
windows without a screen and a user, and raises Events of its host's, which moves the blocks.
"""

from ._c.calls import c as _c
from ._version import VERSION as __version__
from .control import Control
from .enums import Command, LogLevel, MessageKind, Result, SettingType, Transfer, TransferEnd
from .enums import WidgetKind
from .errors import Error, InvalidError, NoImageError, NoMemoryError, NotAValueError, NotFoundError
from .errors import ReadOnlyError, RefusedError, UnsupportedError
from .events import Events
from .platform import Platform
from .screen import FileRequest, MenuItem, Message, Widget, Window
from .settings import Description, Difference, Finding, Place, Setting, Value
from .settings import format_value, parse_value
from .state import Properties, State
from .user import User

__all__ = [
    "Command",
    "Control",
    "Description",
    "Difference",
    "Error",
    "Events",
    "FileRequest",
    "Finding",
    "InvalidError",
    "LogLevel",
    "MenuItem",
    "Message",
    "MessageKind",
    "NoImageError",
    "NoMemoryError",
    "NotAValueError",
    "NotFoundError",
    "Place",
    "Platform",
    "Properties",
    "ReadOnlyError",
    "RefusedError",
    "Result",
    "Setting",
    "SettingType",
    "State",
    "Transfer",
    "TransferEnd",
    "UnsupportedError",
    "User",
    "Value",
    "Widget",
    "WidgetKind",
    "Window",
    "format_value",
    "library_version",
    "parse_value",
]


def library_version() -> str:
    """The version of the C library, as "0.1.0"."""
    version: bytes = _c.version()
    return version.decode()
