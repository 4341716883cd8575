#include <ostream>
#include <set>
#include <utility>

#include "muxhost/script/commands.h"
#include "muxhost/script/pages.h"
#include "muxhost/script/parser.h"
#include "muxhost/script/report.h"

namespace quorvel::muxhost::commands {

namespace {

constexpr int kMostBlocks = 255;

void PrintBlock(Desk& desk, Words words, std::span<const std::uint8_t> bytes, const char* owner) {
  const int n = ToNumber("block", words[1], 1, kMostBlocks);
  const auto end = static_cast<std::size_t>(n) * kBlockSize;
  if (bytes.size() < end) throw ScriptError(std::string(owner) + " has no block " + words[1]);
  desk.out << words[0] << ' ' << n << ": " << HexBytes(bytes.subspan(end - kBlockSize, kBlockSize))
           << '\n';
}

}  // namespace

void Show(Desk& desk, Words words) {
  if (words.size() > 1) {
    const std::string& target = words[1];
    const auto dot = target.find('.');
    const Dialog& dialog = desk.platform.Window(target.substr(0, dot));
    desk.out << (dot == std::string::npos
                     ? DescribeDialog(dialog)
                     : DescribeWidget(dialog.Find<Widget>(target.substr(dot + 1))) + '\n');
    return;
  }
  if (desk.platform.Windows().empty()) desk.out << "no window is open\n";
  for (const Dialog* dialog : desk.platform.Windows()) desk.out << DescribeDialog(*dialog);
}

void Pages(Desk& desk, Words words) {
  const auto& windows = desk.platform.Windows();
  if (words.size() == 1 && windows.empty()) throw ScriptError("no window is open");
  const Dialog& dialog = words.size() > 1 ? desk.platform.Window(words[1]) : *windows.back();
  std::set<int> pages;
  for (std::size_t i = 2; i < words.size(); ++i) pages.insert(ToNumber("page", words[i], 0, 99));
  desk.out << DescribePages(dialog, pages);
}

void Help(Desk& desk, Words words) {
  if (words.size() == 1) {
    const Dialog* const window = desk.platform.User().FindWindow({});
    if (window == nullptr) throw ScriptError(NamedUser::NoWindow({}));
    desk.out << window->PageHelp();
    return;
  }
  const Widget* const control = desk.platform.User().FindControl(words[1]);
  if (control == nullptr) throw ScriptError(desk.platform.User().NotFound(words[1]));
  std::string help;
  if (words.size() > 3) {
    constexpr int kMostPlaces = 1000;
    const int row = ToNumber("row", words[2], 0, kMostPlaces);
    help = control->Owner().HelpOf(*control, row, ToNumber("column", words[3], 0, kMostPlaces));
  } else {
    help = control->Owner().HelpOf(*control);
  }
  desk.out << (help.empty() ? "nothing to say of it" : help) << '\n';
}

void MenuItems(Desk& desk, Words /*words*/) {
  desk.out << DescribeMenu(desk.platform.Menu().Root());
}

void Modified(Desk& desk, Words /*words*/) {
  desk.out << "modified:";
  const auto blocks = desk.session.Control().ModifiedBlocks();
  for (const int block : blocks) desk.out << ' ' << block;
  desk.out << (blocks.empty() ? " none\n" : "\n");
}

void Settings(Desk& desk, Words words) {
  const auto lines = desk.session.Control().Settings(words.size() > 1 ? words[1] : "");
  if (lines.empty()) desk.out << "settings: none\n";
  for (const SettingLine& line : lines) desk.out << line.name << " = " << line.value << '\n';
}

void SetSetting(Desk& desk, Words words) {
  const SetAnswer answer = desk.session.Control().SetSetting(words[1], words[2]);
  if (answer != SetAnswer::kSet) desk.out << words[1] << ": " << Describe(answer) << '\n';
}

void DescribeThem(Desk& desk, Words words) {
  const auto found = desk.session.Control().DescribeSettings(words.size() > 1 ? words[1] : "");
  if (found.empty()) desk.out << "settings: none\n";
  for (const SettingDescription& it : found) {
    desk.out << it.name << ": " << AllowedInWords(it) << (it.writable ? "" : ", read only")
             << (it.blocks.size() > 1 ? ", blocks" : ", block");
    for (const int block : it.blocks) desk.out << ' ' << block;
    desk.out << '\n';
  }
}

void Check(Desk& desk, Words /*words*/) {
  const auto findings = desk.session.Control().SettingFindings();
  if (findings.empty()) desk.out << "check: nothing found\n";
  for (const SettingFinding& it : findings) {
    desk.out << it.name << " is " << it.value << ", " << it.reason << '\n';
  }
}

/// The control's settings against the device's, or against those of an image in a file.
void Diff(Desk& desk, Words words) {
  if (words.size() == 1) RequireDevice(desk);
  const auto device = desk.session.Device().Bytes();
  const auto image = words.size() > 1 ? desk.platform.ReadFile(words[1])
                                      : std::vector<std::uint8_t>(device.begin(), device.end());
  const auto differences = desk.session.Control().DifferencesFrom(image);
  if (!differences) {
    throw ScriptError(desk.session.Control().Settings().empty()
                          ? "the component has no configuration"
                          : "not a configuration image: " + words.back());
  }
  if (differences->empty()) desk.out << "diff: none\n";
  for (const SettingDifference& it : *differences) {
    desk.out << it.name << ": " << (it.value.empty() ? "-" : it.value) << " instead of "
             << (it.other.empty() ? "-" : it.other) << ", block";
    for (const int block : it.blocks) desk.out << ' ' << block;
    desk.out << '\n';
  }
}

void DeviceBlock(Desk& desk, Words words) {
  RequireDevice(desk);
  PrintBlock(desk, words, desk.session.Device().Bytes(), "the device");
}

void ImageBlock(Desk& desk, Words words) {
  const auto image = desk.session.Control().Image();
  PrintBlock(desk, words, image, "the component");
}

void Events(Desk& desk, Words /*words*/) {
  const auto entries = desk.session.TakeLog();
  if (entries.empty()) desk.out << "events: none\n";
  for (const std::string& entry : entries) desk.out << "event " << entry << '\n';
}

void Messages(Desk& desk, Words /*words*/) {
  const auto messages = std::exchange(desk.messages, {});
  if (messages.empty()) desk.out << "messages: none\n";
  for (const Message& message : messages) desk.out << DescribeMessage(message) << '\n';
}

}  // namespace quorvel::muxhost::commands
