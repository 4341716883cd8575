#include "bindings/c/handles.h"

using namespace quorvel::c;

namespace {

bool Knows(std::int32_t command) {
  return command == QUORVEL_COMMAND_RECEIVE || command == QUORVEL_COMMAND_SEND ||
         command == QUORVEL_COMMAND_RESTORE ||
         (command >= QUORVEL_COMMAND_SAVE && command <= QUORVEL_COMMAND_DEVICE);
}

std::span<const std::uint8_t> Bytes(const std::uint8_t* data, std::size_t length,
                                    std::size_t least) {
  if (length < least) {
    Refuse(QUORVEL_INVALID,
           std::to_string(length) + " bytes are too few, " + std::to_string(least) + " are needed");
  }
  return quorvel::c::Bytes(data, length);
}

void RequireKnown(bool known, std::int32_t command) {
  if (!known) Refuse(QUORVEL_UNSUPPORTED, "there is no command " + std::to_string(command));
}

void RequireEnabled(quorvel::Answer answer) {
  if (answer != quorvel::Answer::kDone) Refuse(QUORVEL_DISABLED, "the control is disabled");
}

}  // namespace

quorvel_result quorvel_control_new(quorvel_platform* platform, const quorvel_events* events,
                                   quorvel_control** control) {
  return Run([&] {
    *Given(control, "the place of the handle") = nullptr;
    const auto shared = Of(platform);
    const auto taken = events == nullptr ? quorvel_events{} : Taken(events, "events");
    auto made = std::make_unique<quorvel_control>(shared, taken);
    made->control.InitProperties();
    *control = made.release();
  });
}

void quorvel_control_free(quorvel_control* control) {
  if (control == nullptr) return;
  const auto platform = control->platform;
  delete control;
}

quorvel_result quorvel_control_custom(quorvel_control* control, int32_t command, int32_t param1,
                                      int32_t param2) {
  return Run([&] {
    const auto held = Of(control);
    RequireKnown(Knows(command), command);
    held->Custom(static_cast<std::int16_t>(command), param1, param2);
  });
}

quorvel_result quorvel_control_custom_with_string(quorvel_control* control, int32_t command,
                                                  int32_t param1, int32_t param2,
                                                  const char* text) {
  return Run([&] {
    const auto held = Of(control);
    RequireKnown(command == QUORVEL_COMMAND_TEXTS, command);
    held->CustomWithString(static_cast<std::int16_t>(command), param1, param2,
                           Given(text, "the text"));
  });
}

quorvel_result quorvel_control_save_connected_info(quorvel_control* control, const uint8_t* data,
                                                   size_t length) {
  return Run([&] { Of(control)->SaveConnectedInfo(Bytes(data, length, 4)); });
}

quorvel_result quorvel_control_fill_combo_info(quorvel_control* control, const uint8_t* data,
                                               size_t length) {
  return Run([&] { Of(control)->FillComboInfo(Bytes(data, length, 7)); });
}

quorvel_result quorvel_control_fill_combo_blk(quorvel_control* control, const uint8_t* array,
                                              size_t length) {
  return Run([&] { Of(control)->FillComboBlk(Bytes(array, length, 0)); });
}

quorvel_result quorvel_control_fill_data_blk(quorvel_control* control, const uint8_t* block,
                                             size_t length) {
  return Run([&] { Of(control)->FillDataBlk(Bytes(block, length, 0)); });
}

quorvel_result quorvel_control_trigger_upload_timer(quorvel_control* control) {
  return Run([&] { Of(control)->TriggerUploadTimer(); });
}

quorvel_result quorvel_control_update_act_grid(quorvel_control* control, const uint8_t* grid,
                                               size_t length) {
  return Run([&] { Of(control)->UpdateActGrid(Bytes(grid, length, 33)); });
}

quorvel_result quorvel_control_use_pc_time(quorvel_control* control, int32_t* use) {
  return Run([&] {
    const auto held = Of(control);
    *Given(use, "use") = held->UsePcTime() ? 1 : 0;
  });
}

quorvel_result quorvel_control_set_use_pc_time(quorvel_control* control, int32_t use) {
  return Run([&] { Of(control)->UsePcTime(use != 0); });
}

quorvel_result quorvel_control_undo(quorvel_control* control) {
  return Run([&] {
    if (!Of(control)->Undo()) Refuse(QUORVEL_FAILED, "nothing can be taken back now");
  });
}

quorvel_result quorvel_control_redo(quorvel_control* control) {
  return Run([&] {
    if (!Of(control)->Redo()) Refuse(QUORVEL_FAILED, "nothing can be done again now");
  });
}

quorvel_result quorvel_control_undo_text(quorvel_control* control, char* buffer, size_t size,
                                         size_t* needed) {
  return Run([&] { Put({buffer, size, needed}, Of(control)->UndoText()); });
}

quorvel_result quorvel_control_redo_text(quorvel_control* control, char* buffer, size_t size,
                                         size_t* needed) {
  return Run([&] { Put({buffer, size, needed}, Of(control)->RedoText()); });
}

quorvel_result quorvel_control_click(quorvel_control* control) {
  return Run([&] { RequireEnabled(Of(control)->Surface().Click()); });
}

quorvel_result quorvel_control_double_click(quorvel_control* control) {
  return Run([&] { RequireEnabled(Of(control)->Surface().DoubleClick()); });
}

quorvel_result quorvel_control_modified_blocks(quorvel_control* control, uint8_t* buffer,
                                               size_t size, size_t* needed) {
  return Run([&] { Put({buffer, size, needed}, Of(control)->ModifiedBlocks()); });
}

quorvel_result quorvel_control_image(quorvel_control* control, uint8_t* buffer, size_t size,
                                     size_t* needed) {
  return Run([&] { Put({buffer, size, needed}, Of(control)->Image()); });
}

quorvel_result quorvel_control_edited_image(quorvel_control* control, uint8_t* buffer, size_t size,
                                            size_t* needed) {
  return Run([&] { Put({buffer, size, needed}, Of(control)->EditedImage()); });
}
