"""What controls are made on."""

from __future__ import annotations

import datetime
import logging
import os
import weakref
from ctypes import addressof, byref, c_int64, create_string_buffer
from typing import Any, Callable, Optional

from . import screen
from ._c import structs
from ._c.calls import asked, c, callback, collect, logger, number_of, read, shown, text_at
from ._c.convert import all_shown, made, text
from ._c.handles import Family, Handle
from .enums import LogLevel
from .user import User

AtModal = Callable[[str], Optional[bool]]
OnMessage = Callable[[screen.Message], None]
OnFile = Callable[[screen.FileRequest], None]
OnLog = Callable[[LogLevel, str], None]

_LEVELS = {
    LogLevel.DEBUG: logging.DEBUG,
    LogLevel.INFORMATION: logging.INFO,
    LogLevel.WARNING: logging.WARNING,
    LogLevel.ERROR: logging.ERROR,
}


def log(level: LogLevel, words: str) -> None:
    """Hands a line of the library's log to Python's, as "quorvel"."""
    logger.log(_LEVELS.get(level, logging.ERROR), "%s", words)


class _Task:
    def __init__(self, platform: Platform, act: Callable[[], None]) -> None:
        self.platform, self.act = platform, act
        self.number = number_of(self)
        platform._tasks[self.number] = self


class _Texts:
    def __init__(self, source: Callable[[int], str | None]) -> None:
        self.source = source
        self.last: Any = None  # what C reads after the callback
        self.number = number_of(self)


@callback(structs.Task)
def _run(task: _Task) -> None:
    task.platform._tasks.pop(task.number, None)
    task.act()


@callback(structs.TextOfId)
def _text_of(texts: _Texts, number: int) -> int:
    texts.last = create_string_buffer((texts.source(number) or "").encode())
    return addressof(texts.last)


@callback(structs.AtModal, otherwise=0)
def _at_modal(platform: Platform, _: Any, window: bytes) -> int:
    return 1 if platform.at_modal is not None and platform.at_modal(text(window)) else 0


@callback(structs.Shows)
def _message(platform: Platform, _: Any, address: int) -> None:
    message = made(screen.Message, shown(structs.quorvel_message, address))
    platform._messages.append(message)
    if platform.on_message is not None:
        platform.on_message(message)


@callback(structs.Shows)
def _file(platform: Platform, _: Any, address: int) -> None:
    request = made(screen.FileRequest, shown(structs.quorvel_file_request, address))
    platform._requests.append(request)
    if platform.on_file is not None:
        platform.on_file(request)


@callback(structs.Logs)
def _log(platform: Platform, _: Any, level: int, words: bytes) -> None:
    platform.on_log(LogLevel(level), text(words))


class Platform(Handle):
    """A clock that you move, windows without a screen, and a user who acts as you say. Several
    controls may share one. A platform and its controls belong to one thread at a time."""

    _what = "platform"

    def __init__(self, at_modal: AtModal | None = None) -> None:
        super().__init__(Family())
        #: A modal window, of this name, is open and nothing is due at this moment: act on it and
        #: return True, or let time pass. When nothing is left to happen, the platform closes it.
        self.at_modal = at_modal
        #: A message box, a file dialog: answer it with answer_message, answer_file, or before.
        self.on_message: OnMessage | None = None
        self.on_file: OnFile | None = None
        #: A line of the library's log. It may call nothing.
        self.on_log: OnLog = log
        self.user = User(self)
        self._messages: list[screen.Message] = []
        self._requests: list[screen.FileRequest] = []
        self._tasks: dict[int, _Task] = {}
        self._texts: list[_Texts] = []
        events = structs.quorvel_platform_events(
            user=self._number, at_modal=_at_modal, message=_message, file=_file, log=_log
        )
        self._held = structs.Platform()
        c.platform_new(byref(events), byref(self._held))
        self._family.platform = self._held
        weakref.finalize(self, self._family.end)

    def close(self) -> None:
        """Its controls stay usable until they are closed; it calls nothing back any more."""
        self._family.platform = None
        c.platform_free(self._release())
        self._tasks.clear()

    # The clock stands still while code runs. Times are in milliseconds.

    def run_until_idle(self) -> None:
        """Jumps from one event to the next until nothing is left to happen."""
        c.platform_run_until_idle(self._handle)

    def advance(self, milliseconds: int) -> None:
        c.platform_advance(self._handle, milliseconds)

    @property
    def elapsed(self) -> int:
        return int(asked(c.platform_elapsed, c_int64, self._handle))

    @property
    def next_due(self) -> int | None:
        """How long it is until the next event; None when none is to come."""
        due = int(asked(c.platform_next_due, c_int64, self._handle))
        return None if due < 0 else due

    def post(self, task: Callable[[], None], milliseconds: int = 0) -> None:
        """Calls `task` once, when that time has passed on the clock."""
        posted = _Task(self, task)
        c.platform_post(self._handle, milliseconds, _run, posted.number)

    def set_time(self, time: datetime.datetime) -> None:
        """The date and time that the clock shows. A new platform shows the computer's."""
        parts = {it: getattr(time, it) for it, _ in structs.quorvel_time._fields_}
        c.platform_set_time(self._handle, byref(structs.quorvel_time(**parts)))

    # Answers, in the order of the calls, and what was shown since last asked.

    def answer_message(self, ok: bool) -> None:
        """Answers the next message box. Without an answer it gets OK where it has nothing else,
        else Cancel."""
        c.platform_answer_message(self._handle, ok)

    def answer_file(self, path: str | os.PathLike[str] | None) -> None:
        """Answers the next file dialog; None is Cancel, and what one without an answer gets."""
        c.platform_answer_file(self._handle, None if path is None else os.fsencode(path))

    def take_messages(self) -> list[screen.Message]:
        taken, self._messages = self._messages, []
        return taken

    def take_file_requests(self) -> list[screen.FileRequest]:
        taken, self._requests = self._requests, []
        return taken

    def take_stalled(self) -> list[str]:
        """The names of modal windows that were left open and closed by the platform."""
        return collect(text_at, c.platform_take_stalled, self._handle)

    def offer_texts(self, class_id: str, source: Callable[[int], str | None]) -> None:
        """Offers texts under a class identifier, for Command.TEXTS: those of an id, None for the
        built-in one."""
        texts = _Texts(source)
        self._texts.append(texts)
        c.platform_offer_texts(self._handle, class_id, _text_of, texts.number)

    # The screen.

    def windows(self) -> list[screen.Window]:
        """The windows on screen, the one in front last."""
        return all_shown(screen.Window, structs.quorvel_window, c.platform_windows, self._handle)

    def widgets(self, window: str | None = None) -> list[screen.Widget]:
        """The controls of a window, of the one in front, in the order of their declaration."""
        return all_shown(
            screen.Widget, structs.quorvel_widget, c.platform_widgets, self._handle, window
        )

    def widget(self, name: str) -> screen.Widget:
        """One control, named as User names it."""
        return all_shown(
            screen.Widget, structs.quorvel_widget, c.platform_widget, self._handle, name
        )[0]

    def cell(self, grid: str, row: int, column: int) -> str:
        """The text of a grid's cell; rows count the header."""
        return text(read(c.platform_cell, self._handle, grid, row, column)[:-1])

    def menu(self) -> list[screen.MenuItem]:
        """The menu that is up; NotFoundError when none is."""
        return all_shown(screen.MenuItem, structs.quorvel_menu_item, c.platform_menu, self._handle)
