"""What the library refuses, as exceptions with its own words."""

from __future__ import annotations

from .enums import Result


class Error(Exception):
    """The library has refused a call, or could not do it. `result` tells its kind."""

    def __init__(self, words: str, result: Result = Result.FAILED) -> None:
        super().__init__(words)
        self.result = result

    def __str__(self) -> str:  # KeyError would put it in quotes
        return str(self.args[0])


class InvalidError(Error, ValueError):
    """What was handed in is out of range, or too short, or was closed."""


class UnsupportedError(Error, NotImplementedError):
    """This library does not know that number."""


class NotFoundError(Error, KeyError):
    """There is no setting, window, control or item of that name; no menu is up."""


class NoImageError(Error):
    """No configuration has arrived yet."""


class NoMemoryError(Error, MemoryError):
    """The library has not got the memory that it needs."""


class ReadOnlyError(Error):
    """Only the device writes that setting."""


class NotAValueError(Error, ValueError):
    """The setting cannot have that value; Control.describe tells which it can."""


class RefusedError(Error):
    """A user could not do that: `result` is HIDDEN, DISABLED, NO_SUCH_PLACE, NOT_A_CHOICE, OUTDATED
    or OTHER_KIND. Nothing has changed."""


_CLASSES: dict[Result, type[Error]] = {
    Result.INVALID: InvalidError,
    Result.UNSUPPORTED: UnsupportedError,
    Result.NOT_FOUND: NotFoundError,
    Result.NO_IMAGE: NoImageError,
    Result.NO_MEMORY: NoMemoryError,
    Result.READ_ONLY: ReadOnlyError,
    Result.NOT_A_VALUE: NotAValueError,
    Result.HIDDEN: RefusedError,
    Result.DISABLED: RefusedError,
    Result.NO_SUCH_PLACE: RefusedError,
    Result.NOT_A_CHOICE: RefusedError,
    Result.OUTDATED: RefusedError,
    Result.OTHER_KIND: RefusedError,
}


def error_of(number: int, words: str) -> Error:
    result = Result(number)
    return _CLASSES.get(result, Error)(words, result)
