"""The structs of quorvel.h and quorvel/c_screen.h, under their names and those of their members."""

from ctypes import CFUNCTYPE, POINTER, Structure, c_char_p, c_double, c_int32, c_size_t, c_uint8
from ctypes import c_void_p, sizeof
from typing import Annotated, Any, Optional, Type, TypeVar


class Platform(c_void_p):
    """quorvel_platform*"""


class Control(c_void_p):
    """quorvel_control*"""


# A callback: its first argument is the `user` of whoever gave it.
Visit = CFUNCTYPE(c_int32, c_void_p, c_void_p)
Task = CFUNCTYPE(None, c_void_p)
TextOfId = CFUNCTYPE(c_void_p, c_void_p, c_int32)
AtModal = CFUNCTYPE(c_int32, c_void_p, Platform, c_char_p)
Shows = CFUNCTYPE(None, c_void_p, Platform, c_void_p)
Logs = CFUNCTYPE(None, c_void_p, Platform, c_int32, c_char_p)
Event = CFUNCTYPE(None, c_void_p, Control)
ByteEvent = CFUNCTYPE(None, c_void_p, Control, c_uint8)
DataEvent = CFUNCTYPE(None, c_void_p, Control, c_void_p, c_size_t)
ModelEvent = CFUNCTYPE(None, c_void_p, Control, c_char_p, c_uint8, c_uint8)
Progress = CFUNCTYPE(None, c_void_p, Control, c_int32, c_int32, c_int32)
Ended = CFUNCTYPE(None, c_void_p, Control, c_int32, c_int32, c_char_p)

Int = Annotated[int, c_int32]
Byte = Annotated[int, c_uint8]
Size = Annotated[int, c_size_t]
Double = Annotated[float, c_double]
Text = Annotated[Optional[bytes], c_char_p]
Bytes = Annotated[Any, POINTER(c_uint8)]
User = Annotated[Optional[int], c_void_p]

Struct = TypeVar("Struct", bound=Structure)


def _declared(struct: Type[Struct]) -> Type[Struct]:
    """Makes the members of a struct from its annotations."""
    struct._fields_ = [(name, it.__metadata__[0]) for name, it in struct.__annotations__.items()]
    return struct


class Sized(Structure):
    """A struct that begins with its size."""

    _fields_ = [("size", c_size_t)]
    size: int

    def __init__(self, **members: Any) -> None:
        super().__init__(sizeof(self), **members)


@_declared
class quorvel_message(Sized):
    text: Text
    title: Text
    kind: Int
    can_cancel: Int


@_declared
class quorvel_file_request(Sized):
    title: Text
    default_name: Text
    filter: Text
    default_extension: Text
    saves: Int
    asks_before_overwriting: Int
    must_exist: Int


@_declared
class quorvel_platform_events(Sized):
    user: User
    at_modal: Annotated[Any, AtModal]
    message: Annotated[Any, Shows]
    file: Annotated[Any, Shows]
    log: Annotated[Any, Logs]


@_declared
class quorvel_time(Sized):
    year: Int
    month: Int
    day: Int
    hour: Int
    minute: Int
    second: Int


@_declared
class quorvel_events(Sized):
    user: User
    request_combo_blocks: Annotated[Any, Event]
    send_combo_blocks: Annotated[Any, DataEvent]
    ul_succeeded_with_str: Annotated[Any, ModelEvent]
    request_blk: Annotated[Any, ByteEvent]
    upload_succeeded: Annotated[Any, Event]
    download_data: Annotated[Any, DataEvent]
    act_grid_pop: Annotated[Any, ByteEvent]
    act_grid_data: Annotated[Any, DataEvent]
    click: Annotated[Any, Event]
    dbl_click: Annotated[Any, Event]


@_declared
class quorvel_properties(Sized):
    enabled: Int
    host_comm_id: Int
    font_family: Text
    font_points: Double
    font_bold: Int
    font_italic: Int


@_declared
class quorvel_setting(Sized):
    name: Text
    value: Text


@_declared
class quorvel_difference(Sized):
    name: Text
    value: Text
    other: Text
    blocks: Bytes
    block_count: Size


@_declared
class quorvel_setting_code(Structure):
    text: Text
    value: Int


@_declared
class quorvel_setting_place(Structure):
    at: Int
    length: Int
    is_mark: Int
    block: Byte
    mask: Byte


@_declared
class quorvel_setting_description(Sized):
    name: Text
    unit: Text
    allowed: Text
    type: Int
    writable: Int
    least: Int
    most: Int
    codes: Annotated[Any, POINTER(quorvel_setting_code)]
    code_count: Size
    codes_only: Int
    places: Annotated[Any, POINTER(quorvel_setting_place)]
    place_count: Size
    blocks: Bytes
    block_count: Size


@_declared
class quorvel_setting_finding(Sized):
    name: Text
    value: Text
    reason: Text


@_declared
class quorvel_observer(Sized):
    user: User
    progress: Annotated[Any, Progress]
    ended: Annotated[Any, Ended]


@_declared
class quorvel_send_choice(Sized):
    modified_only: Int
    with_macros: Int
    without_data: Int
    accept_macro_size: Int


@_declared
class quorvel_state(Sized):
    has_image: Int
    transfer: Int
    combined: Int
    done: Int
    total: Int


@_declared
class quorvel_window(Sized):
    name: Text
    caption: Text
    takes_input: Int


@_declared
class quorvel_widget(Sized):
    name: Text
    caption: Text
    spoken: Text
    value: Text
    kind_name: Text
    kind: Int
    visible: Int
    showing: Int
    enabled: Int
    items: Annotated[Any, POINTER(c_char_p)]
    item_count: Size
    current: Int
    least: Int
    most: Int
    rows: Int
    columns: Int
    header_rows: Int
    row: Int
    column: Int
    first_selected: Int
    last_selected: Int


@_declared
class quorvel_menu_item(Sized):
    name: Text
    caption: Text
    depth: Int
    separator: Int
    visible: Int
    enabled: Int
    checked: Int
    opens: Int
