"""The functions of quorvel.h and quorvel/c_screen.h."""

from ctypes import POINTER, c_char, c_char_p, c_int32, c_int64, c_size_t, c_uint8, c_void_p
from typing import Any

from . import structs as s


class Text(c_char_p):
    """UTF-8, or NULL."""


class Data(c_char_p):
    """Bytes, whose number follows."""


_P, _C, _I, _B, _N, _U = s.Platform, s.Control, c_int32, c_uint8, c_size_t, c_void_p
_IOUT, _LOUT = POINTER(c_int32), POINTER(c_int64)
_GIVEN = [Data, _N]
_BYTES = [c_void_p, _N, POINTER(_N)]  # a buffer of ours
_SEEN = [s.Visit, _U]

# By name: what they take. The others, which return no result, are below.
RESULTS: dict[str, list[Any]] = {
    "quorvel_platform_new": [POINTER(s.quorvel_platform_events), POINTER(_P)],
    "quorvel_platform_run_until_idle": [_P],
    "quorvel_platform_advance": [_P, _I],
    "quorvel_platform_elapsed": [_P, _LOUT],
    "quorvel_platform_next_due": [_P, _LOUT],
    "quorvel_platform_post": [_P, _I, s.Task, _U],
    "quorvel_platform_set_time": [_P, POINTER(s.quorvel_time)],
    "quorvel_platform_answer_message": [_P, _I],
    "quorvel_platform_answer_file": [_P, Text],
    "quorvel_platform_take_messages": [_P, *_SEEN],
    "quorvel_platform_take_file_requests": [_P, *_SEEN],
    "quorvel_platform_take_stalled": [_P, *_SEEN],
    "quorvel_platform_offer_texts": [_P, Text, s.TextOfId, _U],
    "quorvel_control_new": [_P, POINTER(s.quorvel_events), POINTER(_C)],
    "quorvel_control_custom": [_C, _I, _I, _I],
    "quorvel_control_custom_with_string": [_C, _I, _I, _I, Text],
    "quorvel_control_save_connected_info": [_C, *_GIVEN],
    "quorvel_control_fill_combo_info": [_C, *_GIVEN],
    "quorvel_control_fill_combo_blk": [_C, *_GIVEN],
    "quorvel_control_fill_data_blk": [_C, *_GIVEN],
    "quorvel_control_trigger_upload_timer": [_C],
    "quorvel_control_update_act_grid": [_C, *_GIVEN],
    "quorvel_control_use_pc_time": [_C, _IOUT],
    "quorvel_control_set_use_pc_time": [_C, _I],
    "quorvel_control_undo": [_C],
    "quorvel_control_redo": [_C],
    "quorvel_control_undo_text": [_C, *_BYTES],
    "quorvel_control_redo_text": [_C, *_BYTES],
    "quorvel_control_properties": [_C, *_SEEN],
    "quorvel_control_set_properties": [_C, POINTER(s.quorvel_properties)],
    "quorvel_control_properties_changed": [_C, _IOUT],
    "quorvel_control_enabled": [_C, _IOUT],
    "quorvel_control_set_enabled": [_C, _I],
    "quorvel_control_host_comm_id": [_C, c_void_p],
    "quorvel_control_set_host_comm_id": [_C, _B],
    "quorvel_control_click": [_C],
    "quorvel_control_double_click": [_C],
    "quorvel_control_modified_blocks": [_C, *_BYTES],
    "quorvel_control_image": [_C, *_BYTES],
    "quorvel_control_edited_image": [_C, *_BYTES],
    "quorvel_control_settings": [_C, Text, *_SEEN],
    "quorvel_control_differences": [_C, *_GIVEN, *_SEEN],
    "quorvel_control_describe_setting": [_C, Text, *_SEEN],
    "quorvel_control_describe_settings": [_C, Text, *_SEEN],
    "quorvel_control_get_setting": [_C, Text, *_BYTES],
    "quorvel_control_set_setting": [_C, Text, Text, _IOUT],
    "quorvel_control_setting_findings": [_C, *_SEEN],
    "quorvel_control_observe": [_C, POINTER(s.quorvel_observer)],
    "quorvel_control_start_receive": [_C],
    "quorvel_control_start_send": [_C, POINTER(s.quorvel_send_choice)],
    "quorvel_control_cancel_transfer": [_C],
    "quorvel_control_state": [_C, POINTER(s.quorvel_state)],
    "quorvel_control_load_settings": [_C, *_GIVEN, *_SEEN],
    "quorvel_control_save_settings": [_C, *_BYTES],
    "quorvel_control_load_defaults": [_C, _B, _B, Text, c_char],
    "quorvel_platform_windows": [_P, *_SEEN],
    "quorvel_platform_widgets": [_P, Text, *_SEEN],
    "quorvel_platform_widget": [_P, Text, *_SEEN],
    "quorvel_platform_cell": [_P, Text, _I, _I, *_BYTES],
    "quorvel_platform_menu": [_P, *_SEEN],
    "quorvel_user_choose_menu": [_P, Text],
    "quorvel_user_dismiss_menu": [_P],
    "quorvel_user_click": [_P, Text],
    "quorvel_user_type": [_P, Text, Text],
    "quorvel_user_select": [_P, Text, _I],
    "quorvel_user_slide": [_P, Text, _I],
    "quorvel_user_pick": [_P, Text, Text],
    "quorvel_user_turn_page": [_P, Text, _I],
    "quorvel_user_press": [_P, Text, _I, _I],
    "quorvel_user_release": [_P, Text, _I, _I],
    "quorvel_user_drag": [_P, Text, _I, _I, _I],
    "quorvel_user_mark": [_P, Text, _I],
    "quorvel_user_empty": [_P, Text],
    "quorvel_user_paste": [_P, Text, Text],
    "quorvel_user_undo": [_P, Text],
    "quorvel_user_redo": [_P, Text],
    "quorvel_user_put_back": [_P, Text, _I],
    "quorvel_user_close_window": [_P, Text],
}
OTHERS: dict[str, tuple[Any, list[Any]]] = {
    "quorvel_version": (c_char_p, []),
    "quorvel_last_error": (c_char_p, []),
    "quorvel_platform_free": (None, [_P]),
    "quorvel_control_free": (None, [_C]),
}
