"""The user of a platform, who does as you say."""

from __future__ import annotations

from typing import TYPE_CHECKING

from ._c.calls import c

if TYPE_CHECKING:
    from .platform import Platform


class User:
    """Works windows, controls and the menu by name. A control is CONTROL or WINDOW.CONTROL; without
    a window it is the one in the frontmost window that has a control of that name. What a user
    could not do raises RefusedError, an unknown name NotFoundError."""

    def __init__(self, platform: Platform) -> None:
        self._platform = platform

    def choose_menu(self, item: str) -> None:
        """Picks an item of the menu, which goes down."""
        c.user_choose_menu(self._platform._handle, item)

    def dismiss_menu(self) -> None:
        c.user_dismiss_menu(self._platform._handle)

    def click(self, name: str) -> None:
        """A button, check box or option."""
        c.user_click(self._platform._handle, name)

    def type(self, name: str, text: str) -> None:
        """Replaces the text of a text box."""
        c.user_type(self._platform._handle, name, text)

    def select(self, name: str, item: int) -> None:
        """Clicks on an item, from 0, of a list or drop-down list."""
        c.user_select(self._platform._handle, name, item)

    def slide(self, name: str, value: int) -> None:
        c.user_slide(self._platform._handle, name, value)

    def pick(self, name: str, text: str) -> None:
        """A time as "07:45" or "07:45:30", a date as "2024-02-29"."""
        c.user_pick(self._platform._handle, name, text)

    def turn_page(self, name: str, page: int) -> None:
        """Brings a page, from 0, to the front."""
        c.user_turn_page(self._platform._handle, name, page)

    def press(self, name: str, row: int, column: int) -> None:
        """Presses on a cell of a grid. Rows count the header, here and below."""
        c.user_press(self._platform._handle, name, row, column)

    def release(self, name: str, first: int, last: int) -> None:
        """Ends a drag over rows in the current column, which writes what its control shows."""
        c.user_release(self._platform._handle, name, first, last)

    def drag(self, name: str, column: int, first: int, last: int) -> None:
        """Presses in row `first` and releases in row `last`."""
        c.user_drag(self._platform._handle, name, column, first, last)

    def mark(self, name: str, row: int) -> None:
        """Selects from the current row to another, and writes nothing."""
        c.user_mark(self._platform._handle, name, row)

    def empty(self, name: str) -> None:
        """Empties the selected rows."""
        c.user_empty(self._platform._handle, name)

    def paste(self, name: str, text: str) -> None:
        """Puts cells in from the current one on: a tab between columns, a line for each row."""
        c.user_paste(self._platform._handle, name, text)

    def undo(self, window: str | None = None) -> None:
        """Takes back what was done last in an editor; None: in the window in front."""
        c.user_undo(self._platform._handle, window)

    def redo(self, window: str | None = None) -> None:
        """Does again what was taken back last."""
        c.user_redo(self._platform._handle, window)

    def put_back(self, name: str, *, to_device: bool = False) -> None:
        """Puts back what a control edits, of a grid the selected cells of the current column: to
        what it was when the window opened, or to what the device has."""
        c.user_put_back(self._platform._handle, name, int(to_device))

    def close_window(self, window: str | None = None) -> None:
        """The close button of a window; None: of the one in front."""
        c.user_close_window(self._platform._handle, window)
