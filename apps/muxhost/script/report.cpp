#include "muxhost/script/report.h"

#include <algorithm>

namespace quorvel::muxhost {

namespace {

constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kShortestRun = 3;
constexpr std::string_view kIndent = "  ";

std::string HexByte(unsigned byte) { return {kDigits[byte / 16U], kDigits[byte % 16U]}; }

/// Hidden is a control's own state; off screen, one that a page or frame around it hides.
std::string Marks(const Widget& widget) {
  std::string marks;
  if (!widget.Visible()) {
    marks += " [hidden]";
  } else if (!widget.Showing()) {
    marks += " [off screen]";
  }
  if (!widget.Enabled()) marks += " [disabled]";
  if (widget.Change()) marks += " [" + widget.Change()->note + "]";
  return marks;
}

/// A line for each changed cell of a grid.
std::string CellMarks(const Widget& widget) {
  std::string lines;
  const auto* const grid = dynamic_cast<const Grid*>(&widget);
  if (grid == nullptr || !grid->HasChanges()) return lines;
  for (int row = 0; row < grid->Rows(); ++row) {
    for (int column = 0; column < grid->Columns(); ++column) {
      const ChangeMark* const change = grid->CellChange(row, column);
      if (change == nullptr) continue;
      lines += "\n    " + std::to_string(row) + "," + std::to_string(column) + " " +
               Quoted(grid->Cell(row, column)) + " [" + change->note + "]";
    }
  }
  return lines;
}

std::string Value(const Widget& widget) {
  const std::string text = widget.ValueText();
  if (widget.Kind() == WidgetKind::kTextBox) return " = " + Quoted(text);
  return text.empty() ? "" : " = " + text;
}

std::size_t RunLength(std::span<const int> numbers) {
  std::size_t length = 1;
  while (length < numbers.size() && numbers[length] == numbers[length - 1] + 1) ++length;
  return length;
}

void AppendItems(const MenuItem& menu, const std::string& indent, std::string& text) {
  for (const MenuItem& item : menu.children) {
    text += indent + item.name + " " + (item.separator ? "----" : Quoted(item.caption));
    if (!item.visible) text += " [hidden]";
    if (!item.enabled) text += " [disabled]";
    if (item.checked) text += " [ticked]";
    text += '\n';
    AppendItems(item, indent + std::string(kIndent), text);
  }
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20U || byte == 0x7FU) {
      quoted += "\\x" + HexByte(byte);
    } else {
      if (c == '"' || c == '\\') quoted += '\\';
      quoted += c;
    }
  }
  return quoted + '"';
}

std::string AbbreviateRuns(std::span<const std::uint8_t> numbers) {
  return AbbreviateRuns(std::vector<int>(numbers.begin(), numbers.end()));
}

std::string AbbreviateRuns(std::span<const int> numbers) {
  if (numbers.empty()) return "none";
  std::string text;
  while (!numbers.empty()) {
    const std::size_t run = RunLength(numbers);
    const std::size_t taken = run < kShortestRun ? 1 : run;
    if (!text.empty()) text += ' ';
    text += std::to_string(numbers[0]);
    if (taken > 1) text += "-" + std::to_string(numbers[taken - 1]);
    numbers = numbers.subspan(taken);
  }
  return text;
}

std::string HexBytes(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += (text.empty() ? "" : " ") + HexByte(byte);
  return text;
}

std::string DescribeMessage(const Message& message) {
  std::string text = message.title + ": ";
  for (const char c : message.text) {
    if (c == '\r') {
      text += '\n';
      text += kIndent;
    } else {
      text += c;
    }
  }
  return text;
}

std::string DescribeWidget(const Widget& widget) {
  std::string line = widget.Name() + " " + KindName(widget.Kind());
  if (!widget.Caption().empty()) line += " " + Quoted(widget.Caption());
  return line + Marks(widget) + Value(widget) + CellMarks(widget);
}

std::string DescribeDialog(const Dialog& dialog) {
  std::string text = dialog.Name() + " " + Quoted(dialog.Caption()) + '\n';
  for (const Widget* widget : dialog.Widgets()) {
    text += std::string(kIndent) + DescribeWidget(*widget) + '\n';
  }
  return text;
}

std::string DescribeMenu(const MenuItem& root) {
  std::string text;
  AppendItems(root, "", text);
  return text;
}

}  // namespace quorvel::muxhost
