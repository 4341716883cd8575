#include "bindings/c/handles.h"

namespace quorvel::c {

void Watcher::Progress(TransferKind which, int done, int total) {
  if (observer_.progress == nullptr) return;
  observer_.progress(observer_.user, control_, static_cast<std::int32_t>(which), done, total);
}

void Watcher::Ended(TransferKind which, TransferEnd end, std::string_view cause) {
  // A transfer that ends inside the host's call has words of its own.
  const auto words = std::make_shared<const std::string>(cause);
  last_->words = words;
  if (observer_.ended == nullptr) return;
  observer_.ended(observer_.user, control_, static_cast<std::int32_t>(which),
                  static_cast<std::int32_t>(end), words->c_str());
}

}  // namespace quorvel::c

using namespace quorvel::c;

namespace {

/// Refuses with the cause that the control has given for not starting a transfer.
template <class Start>
void RequireStart(quorvel_control* control, const Start& start) {
  const auto held = Of(control);
  const auto last = control->watcher.Last();
  if (!start(*held.control)) Refuse(QUORVEL_FAILED, *last->words);
}

quorvel::SendChoice Chosen(const quorvel_send_choice& choice) {
  quorvel::SendChoice chosen;
  chosen.IncludeMacros = choice.with_macros != 0;
  chosen.IncludeData = choice.without_data == 0;
  chosen.all_blocks = choice.modified_only == 0;
  chosen.accept_macro_size = choice.accept_macro_size != 0;
  return chosen;
}

}  // namespace

quorvel_result quorvel_control_observe(quorvel_control* control, const quorvel_observer* observer) {
  return Run([&] {
    const auto held = Of(control);
    control->watcher.Tell(observer == nullptr ? quorvel_observer{} : Taken(observer, "observer"));
  });
}

quorvel_result quorvel_control_start_receive(quorvel_control* control) {
  return Run(
      [&] { RequireStart(control, [](quorvel::MainMenuCtrl& it) { return it.StartReceive(); }); });
}

quorvel_result quorvel_control_start_send(quorvel_control* control,
                                          const quorvel_send_choice* choice) {
  return Run([&] {
    const auto held = Of(control);
    const auto taken = choice == nullptr ? quorvel_send_choice{} : Taken(choice, "the choice");
    RequireStart(control,
                 [&taken](quorvel::MainMenuCtrl& it) { return it.StartSend(Chosen(taken)); });
  });
}

quorvel_result quorvel_control_cancel_transfer(quorvel_control* control) {
  return Run([&] { Of(control)->CancelTransfer(); });
}

quorvel_result quorvel_control_state(quorvel_control* control, quorvel_state* state) {
  return Run([&] {
    const auto held = Of(control);
    const quorvel::ControlState now = held->State();
    quorvel_state filled{};
    filled.has_image = now.has_image ? 1 : 0;
    filled.transfer = static_cast<std::int32_t>(now.under_way);
    filled.combined = now.combined ? 1 : 0;
    filled.done = now.done;
    filled.total = now.total;
    Fill(state, filled, "the state");
  });
}

quorvel_result quorvel_control_load_settings(quorvel_control* control, const uint8_t* file,
                                             size_t length, quorvel_visit_text note, void* user) {
  return Run([&] {
    const auto held = Of(control);
    const quorvel::LoadAnswer answer = held->LoadSettings(Bytes(file, length));
    if (!answer) Refuse(QUORVEL_FAILED, answer.cause);
    if (note != nullptr && !answer.cause.empty()) note(user, answer.cause.c_str());
  });
}

quorvel_result quorvel_control_save_settings(quorvel_control* control, uint8_t* buffer, size_t size,
                                             size_t* needed) {
  return Run([&] { Put({buffer, size, needed}, Of(control)->SaveSettings()); });
}

quorvel_result quorvel_control_load_defaults(quorvel_control* control, uint8_t cameras,
                                             uint8_t model_code, const char* model_name,
                                             char variant) {
  return Run([&] {
    const auto held = Of(control);
    const std::string name = held.platform->FromUtf8(Given(model_name, "the model name"));
    const quorvel::LoadAnswer answer = held->LoadDefaults(cameras, model_code, name, variant);
    if (!answer) Refuse(QUORVEL_FAILED, answer.cause);
  });
}
