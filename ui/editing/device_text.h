#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "quorvel/platform.h"
#include "quorvel/widgets.h"
#include "ui/editing/note_line.h"

namespace quorvel {

/// A text of the device as it can be edited: up to its first zero byte, without blanks at its end.
[[nodiscard]] std::string_view Editable(std::string_view text);

/// A text box over a byte string of the device. While the user types it shows at once what the
/// device's code page can keep, and the line of notes tells what was left out. A box that the user
/// left alone says nothing about the bytes, some of which it may be unable to show. Takes the box's
/// on_change for itself.
class DeviceText {
 public:
  DeviceText(TextBox& box, const Platform& platform, NoteLine& notes);
  DeviceText(const DeviceText&) = delete;
  DeviceText& operator=(const DeviceText&) = delete;
  ~DeviceText() = default;

  void Show(std::string_view bytes);
  /// Shows again what it was filled with.
  void PutBack();
  /// Types a text of the device's as the user does.
  void Type(std::string_view bytes) { box_.Type(platform_.ToUtf8(bytes)); }
  /// What the box was last filled with, UTF-8.
  [[nodiscard]] const std::string& Shown() const { return shown_; }
  /// What the box shows, as the device would hold it.
  [[nodiscard]] std::string Bytes() const { return platform_.FromUtf8(box_.Text()); }
  /// The bytes that the user has typed; nothing when the box reads as it was shown, also after
  /// something else had been typed meanwhile.
  [[nodiscard]] std::optional<std::string> Typed() const;
  /// What there is to say of the text itself, where typing has left nothing out.
  void SetNote(std::function<std::string()> note);

 private:
  void Changed();
  void Tell(std::string left_out);

  TextBox& box_;
  const Platform& platform_;
  NoteLine& notes_;
  std::function<std::string()> note_;
  std::string shown_;
};

}  // namespace quorvel
