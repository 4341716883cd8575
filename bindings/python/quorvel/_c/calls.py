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
from ctypes import CDLL, byref, c_int32, c_size_t, c_uint8, create_string_buffer, memmove, sizeof
from ctypes import string_at
from types import SimpleNamespace
from typing import Any, Callable, TypeVar

from .. import errors
from . import functions, library, structs

logger = logging.getLogger("quorvel")
Result = TypeVar("Result")


class _Running(threading.local):
    """What callbacks have raised during the call that runs on this thread; None: no call does."""

    raised: list[BaseException] | None = None


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
    if _running.raised is not None:
        _running.raised.append(error)
    else:
        logger.error("A callback has failed outside of any call", exc_info=error)


def callback(prototype: Any, otherwise: Any = None) -> Callable[[Callable[..., Any]], Any]:
    """Makes a C function; what it is made of gets the object that `user` stands for."""

    def made_of(function: Callable[..., Any]) -> Any:
        def guarded(user: int | None, *given: Any) -> Any:
            try:
                target = _known.get(user)
                return otherwise if target is None else function(target, *given)
            except BaseException as error:
                keep(error)
                return otherwise

        return prototype(guarded)

    return made_of


def _whole(least: int, most: int) -> Callable[[Any], int]:
    def checked(value: Any) -> int:
        number = operator.index(value)
        if not least <= number <= most:
            raise OverflowError(f"{number} is not {least} to {most}")
        return number

    return checked


def _text(value: Any) -> bytes | None:
    if value is None:
        return None
    if not isinstance(value, (str, bytes)):
        raise TypeError(f"{value!r} is no text")
    text = value.encode("utf-8", "surrogateescape") if isinstance(value, str) else value
    if b"\0" in text:
        raise ValueError("the text has a zero character")
    return text


# C would cut off what these do not let through.
_CHECKS: dict[Any, Callable[[Any], Any]] = {
    c_int32: _whole(-(2**31), 2**31 - 1),
    c_uint8: _whole(0, 255),
    functions.Text: _text,
}


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


def _caller(function: Any, last_error: Any) -> Callable[..., None]:
    checks = [_CHECKS.get(kind) for kind in function.argtypes]

    def call(*given: Any) -> None:
        prepared = [check(it) if check else it for check, it in zip(checks, given)]
        outer, _running.raised = _running.raised, []
        try:
            result = function(*prepared)
        finally:
            raised, _running.raised = _running.raised, outer
        if raised:
            _raise_kept(raised)
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
        is_asked = gives not in (None, c_int32)
        made = function if is_asked else _caller(function, to.quorvel_last_error)
        setattr(bound, name[len("quorvel_") :], made)
    return bound


c = _bound(library.load())


def data(given: Any) -> tuple[bytes, int]:
    """Any bytes, and how many; a number is none, of which bytes() would make zeros."""
    taken = bytes(memoryview(given))
    return taken, len(taken)


def read(function: Callable[..., None], *given: Any) -> bytes:
    """What a function writes into a buffer."""
    needed = c_size_t()
    function(*given, None, 0, byref(needed))
    buffer = create_string_buffer(max(needed.value, 1))
    function(*given, buffer, needed.value, byref(needed))
    return buffer.raw[: needed.value]


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
    made_of: Callable[[int], Result], function: Callable[..., None], *given: Any
) -> list[Result]:
    """What a function shows to a visitor, one by one, by address."""
    found: list[Result] = []

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
