#include "muxhost/report/report.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "muxhost/find/old_values.h"
#include "muxhost/report/html.h"
#include "muxhost/report/setting_names.h"
#include "muxhost/review_text.h"
#include "muxhost/script/report.h"
#include "quorvel/settings_file.h"
#include "settings_files/file_parts.h"

namespace quorvel::muxhost {

namespace {

constexpr const char* kStyle = R"(
body { font-family: sans-serif; font-size: 9pt; }
h1 { font-size: 16pt; } h2 { font-size: 13pt; } h3 { font-size: 11pt; }
table { border-collapse: collapse; margin-bottom: 8pt; }
td, th { border: 1px solid #808080; padding: 2px 6px; text-align: left; vertical-align: top; }
th { background-color: #e4e4e4; }
th.line { white-space: nowrap; }
td.changed { background-color: #fff0b3; font-weight: bold; }
span.was { font-weight: normal; font-size: 8pt; }
td.bytes { font-family: monospace; font-size: 8pt; }
td.names { font-size: 8pt; }
@media print { h2 { page-break-after: avoid; } tr { page-break-inside: avoid; } }
)";

/// What marks a change without colour.
constexpr const char* kChanged = "\u25CF ";

using Rows = std::span<const SettingRow>;

/// The first rows that `alike` finds like the very first; they are taken from `rows`.
template <class Alike>
Rows TakeAlike(Rows& rows, Alike alike) {
  std::size_t count = 1;
  while (count < rows.size() && alike(rows.front(), rows[count])) ++count;
  const Rows taken = rows.first(count);
  rows = rows.subspan(count);
  return taken;
}

class Report {
 public:
  Report(MainMenuCtrl& control, Speech say)
      : control_(control),
        say_(std::move(say)),
        settings_(control.AllSettings()),
        changes_(control.Review()),
        was_(changes_) {}

  std::string Write(const ReportHead& head) {
    const auto image = control_.EditedImage();
    const files::FileParts parts{false, {}, image};
    const auto device = files::DeviceOf(parts);
    const std::string name = device ? device->name : "";
    html_.Raw("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n");
    const std::string title = Fill(say_("Settings of %1"), {name});
    html_.Element("title", title);
    html_.Raw(std::string("<style>") + kStyle + "</style>\n</head>\n<body>\n");
    html_.Element("h1", title);
    WriteHead(head, parts);
    WriteContents();
    WriteChanges();
    WriteEditors();
    WriteBlocks(image);
    html_.Raw("</body>\n</html>\n");
    return html_.All();
  }

 private:
  void Fact(const std::string& what, const std::string& value) {
    html_.Open("tr");
    html_.Element("th", what);
    html_.Element("td", value);
    html_.Close("tr");
  }
  [[nodiscard]] std::string Source() const {
    switch (control_.State().origin) {
      case ImageOrigin::kSettingsFile: return say_("a settings file");
      case ImageOrigin::kFactory: return say_("the factory defaults");
      case ImageOrigin::kDevice: break;
    }
    return say_("the device");
  }
  void WriteHead(const ReportHead& head, const files::FileParts& parts) {
    const auto device = files::DeviceOf(parts);
    html_.Open("table");
    if (device) {
      Fact(say_("Model"), files::ModelInWords(device->model));
      Fact(say_("Cameras"), std::to_string(device->cameras));
    }
    if (const auto variant = files::VariantOf(parts)) Fact(say_("Variant"), *variant);
    Fact(say_("Blocks"), std::to_string(parts.image.size() / kBlockSize));
    Fact(say_("From"), head.file.empty() ? Source() : head.file);
    Fact(say_("Report of"),
         DateText(head.made.date) + " " + TimeText(ClockFormat::kHoursMinutes, head.made.time));
    const std::string count = std::to_string(changes_.size());
    Fact(say_("Changed"), changes_.empty()       ? say_("nothing")
                          : changes_.size() == 1 ? say_("1 setting")
                                                 : Fill(say_("%1 settings"), {count}));
    html_.Close("table");
  }

  /// The editors with their rows, in their order; what no editor shows is last, without an item.
  template <class See>
  void ForEachEditor(See see) {
    Rows rest(settings_);
    while (!rest.empty()) {
      see(TakeAlike(rest, [](const SettingRow& a, const SettingRow& b) {
        return a.at.item == b.at.item && a.at.editor == b.at.editor;
      }));
    }
  }
  [[nodiscard]] std::string NameOf(const SettingRow& row) const {
    return row.at.item.empty() ? say_("Settings that no window shows") : row.at.editor;
  }
  void WriteContents() {
    int number = 0;
    html_.Open("p");
    const auto link = [this](const std::string& text, const std::string& anchor) {
      html_.Link(text, anchor);
      html_.Raw("&nbsp; ");
    };
    if (!changes_.empty()) link(say_("What was changed"), "changes");
    ForEachEditor(
        [&](Rows rows) { link(NameOf(rows.front()), "editor" + std::to_string(++number)); });
    link(say_("Blocks"), "blocks");
    html_.Close("p");
  }

  void WriteChanges() {
    if (changes_.empty()) return;
    html_.Heading("h2", say_("What was changed"), "changes");
    html_.Open("table");
    Header({say_("Where"), say_("Was"), say_("Is"), say_("Blocks")});
    for (const ReviewLine& line : changes_) {
      html_.Open("tr");
      html_.Element("td", Place(line.at, line.settings));
      html_.Element("td", line.old_value);
      html_.Element("td", kChanged + line.new_value, "changed");
      html_.Element("td", Fill(line.blocks.size() == 1 ? say_("block %1") : say_("blocks %1"),
                               {Numbers(line.blocks)}));
      html_.Close("tr");
    }
    html_.Close("table");
  }
  void Header(const std::vector<std::string>& texts) {
    html_.Open("thead");
    html_.Open("tr");
    for (const std::string& text : texts) html_.Element("th", text);
    html_.Close("tr");
    html_.Close("thead");
  }

  void WriteEditors() {
    int number = 0;
    ForEachEditor([&](Rows rows) {
      html_.Heading("h2", NameOf(rows.front()), "editor" + std::to_string(++number));
      while (!rows.empty()) {
        WritePage(TakeAlike(
            rows, [](const SettingRow& a, const SettingRow& b) { return a.at.page == b.at.page; }));
      }
    });
  }
  void WritePage(Rows rows) {
    if (!rows.front().at.page.empty()) html_.Element("h3", LabelText(rows.front().at.page));
    while (!rows.empty()) {
      const Rows group = TakeAlike(rows, [](const SettingRow& a, const SettingRow& b) {
        const bool cells = a.at.row >= 0;
        return cells ? a.at.control == b.at.control : b.at.row < 0;
      });
      group.front().at.row >= 0 ? WriteGrid(group) : WriteList(group);
    }
  }
  void WriteList(Rows rows) {
    html_.Open("table");
    while (!rows.empty()) {
      html_.Open("tr");
      if (rows.front().at.item.empty()) {
        WriteArray(TakeAlike(rows, [this](const SettingRow& a, const SettingRow& b) {
          return IsOfArray(a) && IsOfArray(b) && DifferInLastNumber(a, b);
        }));
      } else {
        html_.Element("th", LabelOf(rows.front()));
        WriteValue(&rows.front());
        rows = rows.subspan(1);
      }
      html_.Close("tr");
    }
    html_.Close("table");
  }
  /// What no editor shows is told array by array, but for what was changed.
  [[nodiscard]] bool IsOfArray(const SettingRow& row) const {
    return row.settings.size() == 1 && !was_.Of(row);
  }
  static bool DifferInLastNumber(const SettingRow& a, const SettingRow& b) {
    const auto around = [](const std::string& name) {
      const auto open = name.rfind('(');
      const auto close = name.find(')', open);
      return open == std::string::npos || close == std::string::npos
                 ? std::pair(name, std::string())
                 : std::pair(name.substr(0, open), name.substr(close));
    };
    return around(a.settings.front()) == around(b.settings.front());
  }
  void WriteArray(Rows rows) {
    if (rows.size() == 1) {
      html_.Element("th", Place(rows.front().at, rows.front().settings));
      return WriteValue(&rows.front());
    }
    std::vector<std::string> names;
    std::string values;
    for (const SettingRow& row : rows) {
      names.push_back(row.settings.front());
      values += (values.empty() ? "" : " ") + row.value;
    }
    html_.Element("th", Gathered(names).front());
    html_.Element("td", values);
  }
  static std::string LabelOf(const SettingRow& row) {
    const std::string label = LabelText(row.at.label);
    return row.at.line.empty() ? label : label + " " + row.at.line;
  }
  void WriteGrid(Rows rows) {
    std::map<int, std::string> columns;
    std::map<int, std::map<int, const SettingRow*>> lines;
    for (const SettingRow& row : rows) {
      columns[row.at.column] = LabelText(row.at.label);
      lines[row.at.row][row.at.column] = &row;
    }
    html_.Open("table");
    std::vector<std::string> labels{""};
    for (const auto& [column, label] : columns) labels.push_back(label);
    Header(labels);
    for (const auto& [number, cells] : lines) {
      html_.Open("tr");
      html_.Element("th", cells.begin()->second->at.line, "line");
      for (const auto& [column, label] : columns) {
        const auto cell = cells.find(column);
        WriteValue(cell == cells.end() ? nullptr : cell->second);
      }
      html_.Close("tr");
    }
    html_.Close("table");
  }
  void WriteValue(const SettingRow* row) {
    if (row == nullptr) return html_.Element("td", "");
    const auto was = was_.Of(*row);
    if (!was) return html_.Element("td", row->value);
    html_.Open("td", "changed");
    html_.Text(kChanged + row->value);
    html_.Raw("<br>");
    html_.Element("span",
                  was->empty() ? say_("was empty") : Fill(say_("was %1"), {std::string(*was)}),
                  "was");
    html_.Close("td");
  }

  void WriteBlocks(std::span<const Byte> image) {
    std::map<int, std::vector<std::string>> names;
    for (const SettingDescription& setting : control_.DescribeSettings()) {
      for (const std::uint8_t block : setting.blocks) names[block].push_back(setting.name);
    }
    const auto modified = control_.ModifiedBlocks();
    html_.Heading("h2", say_("Blocks"), "blocks");
    html_.Open("table");
    Header({say_("Block"), say_("Bytes"), say_("Settings")});
    for (std::size_t at = 0; at + kBlockSize <= image.size(); at += kBlockSize) {
      const auto number = static_cast<int>(at / kBlockSize) + 1;
      const bool listed = std::ranges::find(modified, number) != modified.end();
      html_.Open("tr");
      html_.Element("td", (listed ? kChanged : "") + std::to_string(number),
                    listed ? "changed" : "");
      html_.Element("td", HexBytes(image.subspan(at, kBlockSize)), "bytes");
      std::string text;
      for (const std::string& name : Gathered(names[number])) {
        text += (text.empty() ? "" : ", ") + name;
      }
      html_.Element("td", text, "names");
      html_.Close("tr");
    }
    html_.Close("table");
  }

  MainMenuCtrl& control_;
  Speech say_;
  std::vector<SettingRow> settings_;
  std::vector<ReviewLine> changes_;
  OldValues was_;
  Html html_;
};

}  // namespace

std::string HtmlReport(MainMenuCtrl& control, const ReportHead& head) {
  if (control.Image().empty()) return {};
  return Report(control, head.say).Write(head);
}

}  // namespace quorvel::muxhost
