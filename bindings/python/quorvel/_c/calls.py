"""Calls from Python to C and back.

No exception crosses C. One that a callback raises is kept until the C function returns in which it
was raised, and is raised again by the Python call that had called it.

A callback's `user` is a number under which a Python object is known here; what is closed or gone
has none any more. The C functions that callbacks are made of are there for good, so that C may
hold on to them for as long as it likes.
"""

from __future__ import annotations

import itertools
import logging
import operator
import threading
import weakref
from ctypes import CDLL, byref, c_char, c_int32, c_size_t, c_uint8, create_string_buffer
from ctypes import memmove, sizeof, string_at
from types import SimpleNamespace
from typing import Any, Callable, TypeVar

from .. import errors
from ..enums import Result
from . import functions, library, structs

logger = logging.getLogger("quorvel")
Made = TypeVar("Made")
Later = list[Callable[[], None]]


class _Call:
    """A call that is running."""

    def __init__(self, answered: Later | None) -> None:
        self.raised: list[BaseException] = []  # by callbacks
        self.answered = answered  # of the handler whose answer the call is


class _Running(threading.local):
    """What runs on a thread: the innermost call, and the handler that C has called from there."""

    call: _Call | None = None
    handler: Later | None = None


_running = _Running()
_known: weakref.WeakValueDictionary[int, Any] = weakref.WeakValueDictionary()
_numbers = itertools.count(1)


def number_of(target: object) -> int:
    """A number for `user`, under which callbacks find the object as long as others refer to it."""
    number = next(_numbers)
    _known[number] = target
    return number


def forget(number: int) -> None:
    _known.pop(number, None)


def keep(error: BaseException) -> None:
    if _running.call is not None:
        _running.call.raised.append(error)
    else:
        logger.error("A callback has failed outside of any call", exc_info=error)


def handle_in_turn(act: Callable[[], None]) -> None:
    """Has a handler act. What its answer brings about waits until it has returned: C asks for block
    2 while it is handed block 1, and Python does not go as deep as a device has blocks."""
    if _running.call is not None and _running.call.answered is not None:
        _running.call.answered.append(act)
        return
    outer, later = _running.handler, [act]
    while later:
        _running.handler = later
        try:
            later.pop(0)()
        except BaseException as error:
            keep(error)
        finally:
            _running.handler = outer


def callback(prototype: Any, otherwise: Any = None) -> Callable[[Callable[..., Any]], Any]:
    """Makes a C function; what it is made of gets the object that `user` stands for."""

    def made_of(function: Callable[..., Any]) -> Any:
        def guarded(user: int | None, *given: Any) -> Any:
            try:
                target = _known.get(user or 0)
                return otherwise if target is None else function(target, *given)
            except BaseException as error:
                keep(error)
                return otherwise

        return prototype(guarded)

    return made_of


def _whole(least: int, most: int) -> Callable[[Any], int]:
    def whole(value: Any) -> int:
        number = operator.index(value)
        if not least <= number <= most:
            raise OverflowError(f"{number} is not {least} to {most}")
        return number

    return whole


def _text(value: Any) -> bytes | None:
    if value is None:
        return None
    if not isinstance(value, (str, bytes)):
        raise TypeError(f"{value!r} is no text")
    text = value.encode("utf-8", "surrogateescape") if isinstance(value, str) else value
    if b"\0" in text:
        raise ValueError("the text has a zero character")
    return text


def _character(value: str) -> bytes:
    code = value.encode("cp1252")
    if len(code) != 1:
        raise ValueError(f"{value!r} is not one character")
    return code


# C would cut off what these do not let through.
_CHECKS: dict[Any, Callable[[Any], Any]] = {
    c_int32: _whole(-(2**31), 2**31 - 1),
    c_uint8: _whole(0, 255),
    c_char: _character,
    functions.Text: _text,
}


def checked(kind: Any, value: Any) -> Any:
    """A value as a C type of that kind takes it."""
    check = _CHECKS.get(kind)
    return check(value) if check else value


def _raise_kept(raised: list[BaseException]) -> None:
    """The first is raised, or the first that is to end the program; the others are logged."""
    first = min(raised, key=lambda it: isinstance(it, Exception))
    for error in raised:
        if error is not first:
            logger.error("Another callback has failed in the same call", exc_info=error)
    raised.clear()
    try:
        raise first
    finally:
        del first  # else it would keep itself, through its traceback


def _caller(function: Any, is_answer: bool, last_error: Any) -> Callable[..., None]:
    def call(*given: Any) -> None:
        prepared = [checked(kind, it) for kind, it in zip(function.argtypes, given)]
        outer, handler = _running.call, _running.handler
        running = _running.call = _Call(handler if is_answer else None)
        _running.handler = None
        try:
            result = function(*prepared)
        finally:
            _running.call, _running.handler = outer, handler
        if running.raised:
            _raise_kept(running.raised)
        if result:
            raise errors.error_of(result, last_error().decode("utf-8", "replace"))

    return call


def _bound(to: CDLL) -> SimpleNamespace:
    """The functions without "quorvel_" before their names."""
    declared = {name: (c_int32, takes) for name, takes in functions.RESULTS.items()}
    declared.update(functions.OTHERS)
    bound = SimpleNamespace()
    for name, (gives, takes) in declared.items():
        function = getattr(to, name, None)
        if function is None:
            raise ImportError(f"Quorvel's C library has no {name}")
        function.restype, function.argtypes = gives, takes
        if gives in (None, c_int32):
            is_answer = name == "quorvel_control_fill_data_blk"
            function = _caller(function, is_answer, to.quorvel_last_error)
        setattr(bound, name[len("quorvel_") :], function)
    return bound


c = _bound(library.load())


def data(given: Any) -> tuple[bytes, int]:
    """Any bytes, and how many; a number is none, of which bytes() would make zeros."""
    taken = bytes(memoryview(given))
    return taken, len(taken)


def read(function: Callable[..., None], *given: Any) -> bytes:
    """What a function writes into a buffer."""
    needed = c_size_t(4096)
    while True:
        buffer = create_string_buffer(needed.value)
        try:
            function(*given, buffer, len(buffer), byref(needed))
            return buffer.raw[: needed.value]
        except errors.Error as error:
            if error.result != Result.TOO_SMALL:
                raise


def asked(function: Callable[..., None], kind: Any, *given: Any) -> Any:
    """What a function writes to an address."""
    answer = kind()
    function(*given, byref(answer))
    return answer.value


def shown(kind: type[structs.Struct], address: int) -> structs.Struct:
    """A copy of a struct as far as the library has filled it; what it points to stays C's."""
    filled = kind()
    memmove(byref(filled), address, min(c_size_t.from_address(address).value, sizeof(kind)))
    return filled


def collect(
    made_of: Callable[[int], Made], function: Callable[..., None], *given: Any
) -> list[Made]:
    """What a function shows to a visitor, one by one, by address."""
    found: list[Made] = []

    def visit(_: int | None, address: int) -> int:
        try:
            found.append(made_of(address))
            return 0
        except BaseException as error:
            keep(error)
            return 1

    function(*given, structs.Visit(visit), None)
    return found


def text_at(address: int) -> str:
    return string_at(address).decode("utf-8", "surrogateescape")
