"""What is on a platform's screen."""

from __future__ import annotations

from dataclasses import dataclass

from .enums import MessageKind, WidgetKind


@dataclass(frozen=True)
class Message:
    """A message box."""

    text: str
    title: str
    kind: MessageKind
    can_cancel: bool  # OK and Cancel, else OK


@dataclass(frozen=True)
class FileRequest:
    """What a file dialog asks for."""

    title: str
    default_name: str
    filter: str  # as "*.bin"
    default_extension: str  # without the dot
    saves: bool  # a name to save under, else a file to open
    asks_before_overwriting: bool
    must_exist: bool


@dataclass(frozen=True)
class Window:
    name: str  # as "frm_CameraSetup"
    caption: str
    takes_input: bool  # not behind a modal window


@dataclass(frozen=True)
class Widget:
    """A control of a window, as it was when it was looked at."""

    name: str  # as "cmd_OK", "m_CameraTitle(3)"
    caption: str
    spoken: str  # what screen readers call it
    value: str  # what the user can change, as one line; "" for kinds without
    kind_name: str  # as "text box"
    kind: WidgetKind
    visible: bool  # its own state
    showing: bool  # visible, in visible frames, on the page in front
    enabled: bool
    items: tuple[str, ...]  # of lists; the captions of pages; the panels of a status bar
    current: int  # the current item or page, from 0; -1: none
    least: int  # of sliders and progress bars
    most: int
    rows: int  # of a grid, the header among them; else 0
    columns: int
    header_rows: int
    row: int  # of a grid: the current cell, and the selected rows
    column: int
    first_selected: int
    last_selected: int


@dataclass(frozen=True)
class MenuItem:
    name: str  # as "mnu_CSetup"
    caption: str
    depth: int  # 0 in the menu, 1 in a submenu of it, ...
    separator: bool
    visible: bool
    enabled: bool
    checked: bool
    opens: bool  # a submenu: its items follow
