#include "muxhost/block_contents.h"

#include <map>

#include "muxhost/script/report.h"
#include "quorvel/image_settings.h"

namespace quorvel::muxhost {

namespace {

std::vector<Byte> BytesOf(std::span<const Byte> image, int n) {
  const auto end = static_cast<std::size_t>(n) * kBlockSize;
  if (n < 1 || image.size() < end) return {};
  const auto block = image.subspan(end - kBlockSize, kBlockSize);
  return {block.begin(), block.end()};
}

std::vector<BlockSetting> SettingsOf(const std::vector<Byte>& image) {
  try {
    return SettingsByBlock(BlockImage(image));
  } catch (const ImageError&) {
    return {};
  }
}

std::string Line(const std::string& where, std::span<const Byte> bytes) {
  return bytes.empty() ? std::string() : where + "\n" + HexBytes(bytes) + '\n';
}

}  // namespace

BlockContents ContentsOf(const MainMenuCtrl& control, std::span<const Byte> device, int n) {
  const std::vector<Byte> image = control.EditedImage();
  BlockContents contents{BytesOf(image, n), BytesOf(device, n), {}};
  if (contents.in_control.empty()) return contents;
  // A change that is not listed is not in the image; the list of settings has it.
  std::map<std::string, std::string> values;
  for (SettingLine& line : control.Settings()) values[line.name] = std::move(line.value);
  for (BlockSetting& setting : SettingsOf(image)) {
    if (setting.block != n) continue;
    const auto edited = values.find(setting.name);
    contents.settings.push_back(
        {setting.name, edited == values.end() ? std::move(setting.value) : edited->second});
  }
  return contents;
}

std::string InWords(const BlockContents& contents, bool has_device, const Speech& say) {
  const bool alike = contents.in_control == contents.in_device;
  std::string text;
  if (alike) {
    text = Line(has_device ? say("In control and device:") : say("In the control, as opened:"),
                contents.in_control);
  } else {
    text = Line(say("In the control:"), contents.in_control) +
           Line(has_device ? say("In the device:") : say("As opened:"), contents.in_device);
  }
  for (const SettingLine& line : contents.settings) text += line.name + " = " + line.value + '\n';
  if (contents.in_control.empty()) {
    text +=
        say("Its settings are known when the device's configuration has been downloaded.") + '\n';
  } else if (contents.settings.empty()) {
    text += say("No setting lives in it.") + '\n';
  }
  return text;
}

}  // namespace quorvel::muxhost
