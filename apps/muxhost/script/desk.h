#pragma once

#include <exception>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "muxhost/find/setting_table.h"
#include "muxhost/host_session.h"
#include "muxhost/texts/speech.h"
#include "quorvel/headless_platform.h"

namespace quorvel::muxhost {

/// Works a modal dialog, as a user would, while a command waits for it.
class Attendant {
 public:
  /// `window` is the name of the dialog to work.
  explicit Attendant(std::string window) : window_(std::move(window)) {}
  virtual ~Attendant() = default;
  Attendant(const Attendant&) = delete;
  Attendant& operator=(const Attendant&) = delete;

  [[nodiscard]] const std::string& Window() const { return window_; }
  /// Acts on the dialog and returns true, or returns false to let time pass.
  virtual bool Act(Dialog& dialog) = 0;

 private:
  std::string window_;
};

/// The platform of a script. Commands that name a file answer the dialog that asks for it, and see
/// what was written.
class DeskPlatform final : public HeadlessPlatform {
 public:
  /// The answer to the next file dialog, before those that are queued.
  std::optional<std::string> named_file;
  /// Bytes of the file written last.
  std::optional<std::size_t> written;

  std::optional<std::string> AskFile(const FileRequest& request) override;
  void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) override;
};

/// What the commands of a script act on: a host without a screen, and its user.
struct Desk {
  explicit Desk(std::ostream& output);

  std::ostream& out;
  DeskPlatform platform;
  HostSession session;
  /// Of reports, which are in the language of the component's texts.
  Speech say = InEnglish;
  /// Message boxes shown since the script last asked.
  std::vector<Message> messages;
  /// Makes a PDF file of HTML; a build without a window cannot.
  std::function<std::vector<std::uint8_t>(const std::string& html)> make_pdf;
  /// What `review` has shown last.
  std::vector<ReviewLine> review;
  SettingTable table{session};
  /// What `find` or `list` has shown last.
  std::vector<SettingRow> found;
  /// Works the modal dialog of the running command; without one, the script's next lines do.
  Attendant* attendant = nullptr;
  /// What the attendant failed at; it cannot be thrown through the control.
  std::exception_ptr failure;
  /// Modal dialogs inside whose loops lines are running.
  int modal_depth = 0;
};

}  // namespace quorvel::muxhost
