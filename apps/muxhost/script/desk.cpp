#include "muxhost/script/desk.h"

#include <utility>

namespace quorvel::muxhost {

namespace {

bool Interrupt(const HeadlessPlatform& platform, const Interruption& what) {
  for (Dialog* const dialog : platform.Windows()) {
    if (dialog->Name() != what.window) continue;
    if (what.button == nullptr) return dialog->CloseWindow() == Answer::kDone;
    return dialog->Find<Button>(what.button).Click() == Answer::kDone;
  }
  return false;
}

}  // namespace

std::optional<std::string> DeskPlatform::AskFile(const FileRequest& request) {
  if (named_file) return std::exchange(named_file, std::nullopt);
  return HeadlessPlatform::AskFile(request);
}

void DeskPlatform::StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  HeadlessPlatform::StoreFile(path, bytes);
  written = bytes.size();
}

Desk::Desk(std::ostream& output)
    : out(output), session(platform, [this](int milliseconds, std::function<void()> task) {
        platform.PostIn(milliseconds, std::move(task));
      }) {
  session.interrupt = [this](const Interruption& what) { return Interrupt(platform, what); };
}

}  // namespace quorvel::muxhost
