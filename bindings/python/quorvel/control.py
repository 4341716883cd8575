"""The configuration menu of one device."""

from __future__ import annotations

import weakref
from ctypes import byref, c_int32, c_uint8
from typing import Any, Iterator

from ._c import structs
from ._c.calls import asked, c, collect, data, read, text_at
from ._c.convert import all_shown, made, struct_of, text
from ._c.handles import Handle
from .errors import NoImageError, NotFoundError
from .events import Events, events_struct, observer_struct
from .platform import Platform
from .settings import Description, Difference, Finding, Setting, Value, format_value, parse_value
from .state import Properties, State


class Control(Handle):
    """Edits the configuration of one device. `control["AlarmMode"]` is a setting's value, as a
    bool, an int or a str, and is set as by an edit of the user."""

    _what = "control"

    def __init__(self, platform: Platform | None = None, events: Events | None = None) -> None:
        """Without a platform it is made on one of its own."""
        self.platform = platform if platform is not None else Platform()
        super().__init__(self.platform._family)
        self.events = events if events is not None else Events()
        self._held = structs.Control()
        raised = events_struct(self._number)
        c.control_new(self.platform._handle, byref(raised), byref(self._held))
        self._left = weakref.finalize(self, self._family.leave, self._held)
        c.control_observe(self._held, byref(observer_struct(self._number)))

    def close(self) -> None:
        """Also from inside its events."""
        self._left.detach()
        c.control_free(self._release())

    # The host's calls. Bytes may be of any type that has them.

    def custom(self, command: int, param1: int = 0, param2: int = 0) -> None:
        """Gives a command, one of Command."""
        c.control_custom(self._handle, command, param1, param2)

    def custom_with_string(self, command: int, text: str, param1: int = 0, param2: int = 0) -> None:
        c.control_custom_with_string(self._handle, command, param1, param2, text)

    def save_connected_info(self, info: bytes) -> None:
        """[1] cameras, [2] model code, from [3] the model name."""
        c.control_save_connected_info(self._handle, *data(info))

    def fill_combo_info(self, info: bytes) -> None:
        """[0..1] macro record size, [2] macro records, [3..4] blocks, [5..6] firmware version, the
        most significant byte first."""
        c.control_fill_combo_info(self._handle, *data(info))

    def fill_combo_blk(self, array: bytes) -> None:
        """The answer to Events.request_combo_blocks."""
        c.control_fill_combo_blk(self._handle, *data(array))

    def fill_data_blk(self, block: bytes) -> None:
        """The answer to Events.request_blk: the block number, then its 16 bytes."""
        c.control_fill_data_blk(self._handle, *data(block))

    def trigger_upload_timer(self) -> None:
        """The last packet of Events.download_data has been written."""
        c.control_trigger_upload_timer(self._handle)

    def update_act_grid(self, grid: bytes) -> None:
        """[0] camera, from 0, then 32 bytes."""
        c.control_update_act_grid(self._handle, *data(grid))

    def click(self) -> None:
        """The user clicks on the control's surface."""
        c.control_click(self._handle)

    def double_click(self) -> None:
        c.control_double_click(self._handle)

    # Without dialogs.

    def start_receive(self) -> None:
        """Asks for the first block, or for the array, and returns; the host's answers drive what
        follows, and Events.ended tells of its end."""
        c.control_start_receive(self._handle)

    def start_send(
        self,
        modified_only: bool = False,
        with_macros: bool = False,
        without_data: bool = False,
        accept_macro_size: bool = False,
    ) -> None:
        """Sends all blocks or the modified ones, as start_receive receives them. The combined
        exchange alone can send macros without data, and may be told to send them also where their
        stated size is not the array's."""
        choice = structs.quorvel_send_choice(
            modified_only=modified_only,
            with_macros=with_macros,
            without_data=without_data,
            accept_macro_size=accept_macro_size,
        )
        c.control_start_send(self._handle, byref(choice))

    def cancel_transfer(self) -> None:
        c.control_cancel_transfer(self._handle)

    @property
    def state(self) -> State:
        state = structs.quorvel_state()
        c.control_state(self._handle, byref(state))
        return made(State, state)

    def load_settings(self, file: bytes) -> str:
        """Loads the bytes of a settings file; returns what is missing from it in words, else "".
        When they are refused, all is as it was."""
        return "".join(collect(text_at, c.control_load_settings, self._handle, *data(file)))

    def save_settings(self) -> bytes:
        """The bytes of a settings file, edits included; b"" without a configuration."""
        return read(c.control_save_settings, self._handle)

    def load_defaults(self, cameras: int, model_code: int, model_name: str, variant: str) -> None:
        """Loads the factory defaults of a model, without a device."""
        c.control_load_defaults(self._handle, cameras, model_code, model_name, variant)

    # Settings by name.

    def __getitem__(self, name: str) -> Value:
        return parse_value(self.get(name))

    def __setitem__(self, name: str, value: Value) -> None:
        self.set(name, format_value(value))

    def __contains__(self, name: object) -> bool:
        try:
            return isinstance(name, str) and bool(self.get(name))
        except (NotFoundError, NoImageError):
            return False

    def __iter__(self) -> Iterator[str]:
        return iter([setting.name for setting in self.settings()])

    def get(self, name: str) -> str:
        """A setting's value as it is listed: "yes", "10 s", '"Front door"'."""
        return text(read(c.control_get_setting, self._handle, name)[:-1])

    def set(self, name: str, value: str) -> bool:
        """Sets it to a value as it is listed, a number without its unit, or a code's text
        ("Disable"); tells whether it had another value."""
        return bool(asked(c.control_set_setting, c_int32, self._handle, name, value))

    def settings(self, pattern: str = "") -> list[Setting]:
        """The settings that the device has, as edited so far, in the order of the blocks. "*" and
        "?" stand for any characters and any one; without them the pattern is looked for anywhere in
        a name, case aside."""
        return all_shown(
            Setting, structs.quorvel_setting, c.control_settings, self._handle, pattern
        )

    def differences(self, image: bytes) -> list[Difference]:
        """The settings that differ from those of an image, such as one read back."""
        return all_shown(
            Difference,
            structs.quorvel_difference,
            c.control_differences,
            self._handle,
            *data(image),
        )

    def describe(self, name: str) -> Description:
        return self._descriptions(c.control_describe_setting, name)[0]

    def descriptions(self, pattern: str = "") -> list[Description]:
        return self._descriptions(c.control_describe_settings, pattern)

    def _descriptions(self, function: Any, name: str) -> list[Description]:
        struct = structs.quorvel_setting_description
        return all_shown(Description, struct, function, self._handle, name)

    def findings(self) -> list[Finding]:
        """The settings whose stored value is not one that they can have."""
        return all_shown(
            Finding,
            structs.quorvel_setting_finding,
            c.control_setting_findings,
            self._handle,
        )

    def undo(self) -> None:
        """Takes back what was accepted last, in a window or by name; Error when there is nothing,
        or while a send is under way."""
        c.control_undo(self._handle)

    def redo(self) -> None:
        c.control_redo(self._handle)

    @property
    def undo_text(self) -> str:
        """What undo would take back, as "Camera Setup"; "" for nothing."""
        return text(read(c.control_undo_text, self._handle)[:-1])

    @property
    def redo_text(self) -> str:
        return text(read(c.control_redo_text, self._handle)[:-1])

    def modified_blocks(self) -> list[int]:
        """Numbers of the blocks that hold changes, in the order of the changes."""
        return list(read(c.control_modified_blocks, self._handle))

    def image(self) -> bytes:
        """The configuration as last received and encoded, block 1 first."""
        return read(c.control_image, self._handle)

    def edited_image(self) -> bytes:
        """The image as it would be sent now."""
        return read(c.control_edited_image, self._handle)

    # Properties.

    @property
    def use_pc_time(self) -> bool:
        """Whether the device's clock takes the computer's time with the next send."""
        return bool(asked(c.control_use_pc_time, c_int32, self._handle))

    @use_pc_time.setter
    def use_pc_time(self, use: bool) -> None:
        c.control_set_use_pc_time(self._handle, use)

    @property
    def enabled(self) -> bool:
        return bool(asked(c.control_enabled, c_int32, self._handle))

    @enabled.setter
    def enabled(self, enabled: bool) -> None:
        c.control_set_enabled(self._handle, enabled)

    @property
    def host_comm_id(self) -> int:
        """0: blocks are moved one by one; else, to 255: the whole image at once."""
        return int(asked(c.control_host_comm_id, c_uint8, self._handle))

    @host_comm_id.setter
    def host_comm_id(self, number: int) -> None:
        c.control_set_host_comm_id(self._handle, number)

    @property
    def properties_changed(self) -> bool:
        """Whether one was set since they were last kept or set as a whole."""
        return bool(asked(c.control_properties_changed, c_int32, self._handle))

    def keep_properties(self) -> Properties:
        """What a host keeps between runs; it counts as kept then."""
        return all_shown(
            Properties, structs.quorvel_properties, c.control_properties, self._handle
        )[0]

    def set_properties(self, properties: Properties) -> None:
        taken = struct_of(structs.quorvel_properties, properties)
        c.control_set_properties(self._handle, byref(taken))
