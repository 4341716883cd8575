#include "apps/quorvel/desk.h"

#include <cctype>
#include <utility>

#include "apps/quorvel/trouble.h"
#include "quorvel/settings_file.h"

namespace quorvel::tool {

namespace {

/// Why a combined array has no image; empty when it has one.
std::string LackOfImage(ByteSpan file, const FileParts& parts) {
  if (parts.header.Agrees() && parts.image.size() == parts.header.DataLen) return {};
  try {
    CombinedArray::Parse(file, ComboHeader()).RequireImage();
  } catch (const ImageError& error) {
    return error.what();
  }
  return {};
}

}  // namespace

std::string AsClause(std::string sentence) {
  if (!sentence.empty() && sentence.back() == '.') sentence.pop_back();
  if (!sentence.empty()) {
    sentence.front() =
        static_cast<char>(std::tolower(static_cast<unsigned char>(sentence.front())));
  }
  return sentence;
}

MainMenuCtrl& Desk::NewControl() {
  control_.emplace(platform_, no_host_);
  // That of an interactive host locks the keyboard of some models in what it loads.
  constexpr std::uint8_t kNotInteractive = 1;
  control_->HostCommId(kNotInteractive);
  return *control_;
}

LoadAnswer Desk::Load(ByteSpan file, const FileParts& parts) {
  MainMenuCtrl& control = NewControl();
  if (parts.combined) {
    // The control goes by the length alone, and a part of an array is as short as a plain image. Of
    // a whole one it must know how many blocks there are.
    if (std::string why = LackOfImage(file, parts); !why.empty()) return {false, std::move(why)};
    control.FillComboInfo(file.subspan(kSizesAt, kSizesLength));
  }
  LoadAnswer answer = control.LoadSettings(file);
  answer.cause = AsClause(std::move(answer.cause));
  return answer;
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
