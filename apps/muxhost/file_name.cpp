#include "muxhost/file_name.h"

#include "quorvel/code_page.h"
#include "quorvel/default_images.h"
#include "settings_files/file_parts.h"

namespace quorvel::muxhost {

namespace {

/// What the systems that files travel between refuse in a name.
bool IsRefused(char letter) {
  constexpr std::string_view kRefused = "<>:\"/\\|?*\x7F";
  return static_cast<unsigned char>(letter) < ' ' ||
         kRefused.find(letter) != std::string_view::npos;
}

std::string Replaced(std::string text) {
  for (char& letter : text) {
    if (IsRefused(letter)) letter = '_';
  }
  return text;
}

}  // namespace

std::string ProposedFileName(std::span<const Byte> image, const CalendarDate& date) {
  std::string name;
  if (const auto device = files::DeviceOf(files::PartsOf(image))) {
    name = CodePageToUtf8(UsualModelName(device->model, device->cameras));
    if (device->name != name && !device->name.empty()) name += ' ' + device->name;
    name += ' ';
  }
  return Replaced(name + DateText(date) + ".bin");
}

}  // namespace quorvel::muxhost
