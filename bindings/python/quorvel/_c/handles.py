"""What the library holds for a Python object, until it is closed or nobody refers to it any more.

A platform and its controls belong to one thread at a time, but Python may find on any thread, in
the middle of a call, that nobody refers to a control. It is freed with the next call on its
platform or another of its controls then, or when nobody refers to the platform either: nothing of
it can be running then.
"""

from __future__ import annotations

from typing import Any, TypeVar

from ..errors import InvalidError
from .calls import c, forget, number_of

Self = TypeVar("Self", bound="Handle")


class Family:
    """The handles of a platform and of the controls that nobody refers to any more."""

    def __init__(self) -> None:
        self.platform: Any = None
        self.forgotten: list[Any] = []
        self.is_over = False

    def leave(self, control: Any) -> None:
        self.forgotten.append(control)
        if self.is_over:
            self.free_forgotten()

    def free_forgotten(self) -> None:
        while self.forgotten:
            c.control_free(self.forgotten.pop())

    def end(self) -> None:
        self.is_over = True
        self.free_forgotten()
        c.platform_free(self.platform)


class Handle:
    """Base of what is closed: a context manager that answers nothing any more after its end."""

    _what = ""

    def __init__(self, family: Family) -> None:
        self._family = family
        self._number = number_of(self)
        self._held: Any = None

    @property
    def _handle(self) -> Any:
        if self._held is None:
            raise InvalidError(f"the {self._what} is closed")
        if self._family.forgotten:
            self._family.free_forgotten()
        return self._held

    @property
    def closed(self) -> bool:
        return self._held is None

    def _release(self) -> Any:
        """The handle, which is the caller's to free; None when it is closed."""
        handle, self._held = self._held, None
        forget(self._number)
        return handle

    def __enter__(self: Self) -> Self:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def close(self) -> None:
        raise NotImplementedError
