#include "ui/editing/device_text.h"

namespace quorvel {

DeviceText::DeviceText(TextBox& box, const Platform& platform) : box_(box), platform_(platform) {
  box_.on_change = [this] {
    const std::string kept = platform_.ToUtf8(Bytes());
    if (kept != box_.Text()) box_.RewriteText(kept);
    if (on_change) on_change();
  };
}

void DeviceText::Show(std::string_view bytes) {
  shown_ = platform_.ToUtf8(bytes);
  box_.SetText(shown_);
}

std::optional<std::string> DeviceText::Typed() const {
  if (!box_.Edited() || box_.Text() == shown_) return std::nullopt;
  return Bytes();
}

}  // namespace quorvel
