#include "apps/quorvel/desk.h"

#include "apps/quorvel/trouble.h"
#include "quorvel/settings_file.h"

namespace quorvel::tool {

MainMenuCtrl& Desk::NewControl() {
  control_.emplace(platform_, no_host_);
  // That of an interactive host locks the keyboard of some models in what it loads.
  constexpr std::uint8_t kNotInteractive = 1;
  control_->HostCommId(kNotInteractive);
  return *control_;
}

LoadAnswer Desk::Load(ByteSpan file, const FileParts& parts) {
  if (parts.combined && parts.image.size() < parts.header.DataLen) {
    // By its length alone it could be taken for a plain image.
    return {false, "The combined array is cut short: it states " +
                       std::to_string(parts.header.DataLen) + " bytes of blocks and holds " +
                       std::to_string(parts.image.size()) + "."};
  }
  MainMenuCtrl& control = NewControl();
  // Else it goes by the length alone, and a small device's array is as short as a plain image.
  if (parts.combined) control.FillComboInfo(file.subspan(kSizesAt, kSizesLength));
  return control.LoadSettings(file);
}

void Desk::MustLoad(const std::string& name, ByteSpan file, const FileParts& parts) {
  if (file.empty()) throw Trouble(name, "is empty");
  if (file.size() >= kRestoreLimit) {
    throw Trouble(name, "has " + std::to_string(kRestoreLimit) +
                            " bytes or more, which no settings file has");
  }
  if (const LoadAnswer answer = Load(file, parts); !answer) throw Trouble(name, answer.cause);
}

}  // namespace quorvel::tool
