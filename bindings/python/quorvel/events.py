"""What a control asks of its host and tells it."""

from __future__ import annotations

from ctypes import c_char_p, c_void_p, string_at
from typing import TYPE_CHECKING, Any

from ._c import structs
from ._c.calls import callback, handle_in_turn
from ._c.convert import text
from .enums import Transfer, TransferEnd

if TYPE_CHECKING:
    from .control import Control


class Events:
    """Derive from this and override what your host needs. Each may call everything, and close the
    control. What one raises comes out of the call that has led to it, when that call is over."""

    def request_combo_blocks(self, control: Control) -> None:
        """Read the whole configuration and hand it to control.fill_combo_blk."""

    def send_combo_blocks(self, control: Control, array: bytes) -> None:
        """Write this combined array (header, blocks, macro data) to the device."""

    def ul_succeeded_with_str(
        self, control: Control, model_name: str, model_code: int, cameras: int
    ) -> None:
        """A whole image has arrived from a host whose communication id is not 0."""

    def request_blk(self, control: Control, number: int) -> None:
        """Read a block, from 1, and hand it to control.fill_data_blk."""

    def upload_succeeded(self, control: Control) -> None:
        """The device's data has arrived in the control."""

    def download_data(self, control: Control, packet: bytes) -> None:
        """Write a block to the device, then call control.trigger_upload_timer. 18 bytes: the block
        number, its 16 bytes, 0. Block number 255 with zero bytes ends the send."""

    def act_grid_pop(self, control: Control, cameras: int) -> None:
        """The user wants to edit activity grids, of that many cameras."""

    def act_grid_data(self, control: Control, grid: bytes) -> None:
        """The grid that command 17 asked for."""

    def click(self, control: Control) -> None:
        """The control's surface was clicked."""

    def dbl_click(self, control: Control) -> None:
        """The control's surface was double-clicked."""

    def progress(self, control: Control, transfer: Transfer, done: int, total: int) -> None:
        """Blocks have been received, or written; in the combined exchange 1 of 1."""

    def ended(self, control: Control, transfer: Transfer, end: TransferEnd, cause: str) -> None:
        """A transfer has ended, or could not begin; `cause` is "" when it has finished."""


def _handed(kinds: tuple[Any, ...], given: tuple[Any, ...]) -> list[Any]:
    """Arguments in Python's types; bytes come as an address and their number."""
    if kinds[:1] == (c_void_p,):
        address, length = given
        return [string_at(address, length) if length else b""]
    return [text(it) if kind is c_char_p else it for kind, it in zip(kinds, given)]


@callback(structs.ByteEvent)
def _request_blk(control: Control, _: Any, number: int) -> None:
    def act() -> None:
        if not control.closed:
            control.events.request_blk(control, number)

    handle_in_turn(act)


def _raises(name: str, prototype: Any) -> Any:
    @callback(prototype)
    def event(control: Control, _: Any, *given: Any) -> None:
        kinds = prototype._argtypes_[2:]
        getattr(control.events, name)(control, *_handed(kinds, given))

    return event


@callback(structs.Progress)
def _progress(control: Control, _: Any, transfer: int, done: int, total: int) -> None:
    control.events.progress(control, Transfer(transfer), done, total)


@callback(structs.Ended)
def _ended(control: Control, _: Any, transfer: int, end: int, cause: bytes) -> None:
    control.events.ended(control, Transfer(transfer), TransferEnd(end), text(cause))


_EVENTS = {
    name: _raises(name, kind) for name, kind in structs.quorvel_events._fields_ if name != "user"
}
_EVENTS["request_blk"] = _request_blk


def events_struct(number: int) -> structs.quorvel_events:
    return structs.quorvel_events(user=number, **_EVENTS)


def observer_struct(number: int) -> structs.quorvel_observer:
    return structs.quorvel_observer(user=number, progress=_progress, ended=_ended)
