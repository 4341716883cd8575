#include "ui/editing/device_text.h"

#include <utility>

namespace quorvel {

std::string_view Editable(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

DeviceText::DeviceText(TextBox& box, const Platform& platform, NoteLine& notes)
    : box_(box), platform_(platform), notes_(notes) {
  notes_.Serve(box_);
  box_.on_change = [this] { Changed(); };
}

void DeviceText::Show(std::string_view bytes) {
  shown_ = platform_.ToUtf8(bytes);
  PutBack();
}

void DeviceText::PutBack() {
  box_.SetText(shown_);
  Tell({});
}

void DeviceText::Changed() {
  const std::string kept = platform_.ToUtf8(Bytes());
  const bool replaced = kept != box_.Text();
  if (replaced) box_.RewriteText(kept);
  Tell(notes_.LeftOut(box_, replaced));
}

void DeviceText::Tell(std::string left_out) {
  if (left_out.empty() && note_) left_out = note_();
  notes_.Tell(box_, std::move(left_out));
}

void DeviceText::SetNote(std::function<std::string()> note) {
  note_ = std::move(note);
  Tell({});
}

std::optional<std::string> DeviceText::Typed() const {
  if (!box_.Edited() || box_.Text() == shown_) return std::nullopt;
  return Bytes();
}

}  // namespace quorvel
