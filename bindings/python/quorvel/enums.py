"""Numbers of the C interface by name. A later library may know more of them than this package."""

from __future__ import annotations

from enum import IntEnum
from typing import TypeVar

_Number = TypeVar("_Number", bound="Number")


class Number(IntEnum):
    """A number without a name of ours is kept, as one that is not known."""

    @classmethod
    def _missing_(cls: type[_Number], value: object) -> _Number | None:
        if not isinstance(value, int):
            return None
        unknown = int.__new__(cls, value)
        unknown._name_ = f"UNKNOWN_{value}"
        unknown._value_ = value
        return unknown


class Result(Number):
    """What a function of the C interface has answered."""

    OK = 0
    FAILED = 1
    INVALID = 2
    UNSUPPORTED = 3
    TOO_SMALL = 4
    NOT_FOUND = 5
    NO_IMAGE = 6
    NO_MEMORY = 7
    READ_ONLY = 20
    NOT_A_VALUE = 21
    HIDDEN = 40
    DISABLED = 41
    NO_SUCH_PLACE = 42
    NOT_A_CHOICE = 43
    OUTDATED = 44
    OTHER_KIND = 45


class Command(Number):
    """Commands of Control.custom, and TEXTS of Control.custom_with_string."""

    RECEIVE = 10
    SEND = 11
    RESTORE = 12
    SAVE = 14
    MENU = 15
    DEFAULTS = 16
    ACTIVITY_GRID = 17
    DEVICE = 18
    TEXTS = 191


class MessageKind(Number):
    INFORMATION = 0
    WARNING = 1
    QUESTION = 2
    ERROR = 3


class LogLevel(Number):
    DEBUG = 0
    INFORMATION = 1
    WARNING = 2
    ERROR = 3


class SettingType(Number):
    FLAG = 0
    NUMBER = 1
    TEXT = 2


class Transfer(Number):
    NO_TRANSFER = 0
    RECEIVE = 1
    SEND = 2


class TransferEnd(Number):
    FINISHED = 0
    STOPPED = 1
    REFUSED = 2
    BROKEN_OFF = 3


class WidgetKind(Number):
    LABEL = 0
    BUTTON = 1
    CHECK_BOX = 2
    OPTION_BUTTON = 3
    TEXT_BOX = 4
    LIST_BOX = 5
    COMBO_BOX = 6
    SLIDER = 7
    TIME_PICKER = 8
    DATE_PICKER = 9
    GRID = 10
    TAB_STRIP = 11
    FRAME = 12
    PROGRESS_BAR = 13
    STATUS_BAR = 14
