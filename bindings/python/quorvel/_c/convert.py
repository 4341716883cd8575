"""Turns structs into classes of ours, by the names and types of the fields that both have."""

from __future__ import annotations

from ctypes import Structure, c_char_p
from typing import Any, Callable, TypeVar

from .. import enums
from ..settings import Place
from .calls import checked, collect, shown
from .functions import Text

Made = TypeVar("Made")
Filled = TypeVar("Filled", bound=Structure)


def text(given: bytes | None) -> str:
    return (given or b"").decode("utf-8", "surrogateescape")


_FIELDS: dict[str, Callable[[Any], Any]] = {
    "str": text,
    "str | None": lambda given: None if given is None else text(given),
    "bool": bool,
    "int": int,
    "float": float,
    "MessageKind": enums.MessageKind,
    "SettingType": enums.SettingType,
    "Transfer": enums.Transfer,
    "WidgetKind": enums.WidgetKind,
}
_ARRAYS: dict[str, Callable[[list[Any]], Any]] = {
    "tuple[int, ...]": tuple,
    "tuple[str, ...]": lambda texts: tuple(text(it) for it in texts),
    "tuple[Place, ...]": lambda places: tuple(made(Place, it) for it in places),
    "dict[int, str]": lambda codes: {it.value: text(it.text) for it in codes},
}


def _field(struct: Structure, name: str, kind: str) -> Any:
    value = getattr(struct, name)
    if kind in _FIELDS:
        return _FIELDS[kind](value)
    count = getattr(struct, name[:-1] + "_count")
    return _ARRAYS[kind](value[:count] if count else [])


def _types_of(kind: type[Any]) -> dict[str, str]:
    """Of the fields, as they are written."""
    types = kind.__annotations__.items()
    return {name: getattr(it, "__forward_arg__", it) for name, it in types}


def made(kind: type[Made], struct: Structure) -> Made:
    return kind(**{name: _field(struct, name, it) for name, it in _types_of(kind).items()})


def all_shown(
    kind: type[Made], struct: type[Structure], function: Callable[..., None], *given: Any
) -> list[Made]:
    """All that a function shows to a visitor."""
    return collect(lambda address: made(kind, shown(struct, address)), function, *given)


def struct_of(kind: type[Filled], given: Any) -> Filled:
    """The struct that is made of an object of ours."""
    kinds = {name: Text if it is c_char_p else it for name, it in kind._fields_}
    return kind(**{name: checked(kinds[name], it) for name, it in vars(given).items()})
