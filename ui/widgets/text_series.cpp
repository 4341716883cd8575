#include "quorvel/widgets/text_series.h"

#include <algorithm>
#include <string>

#include "quorvel/widgets/dialog.h"
#include "ui/widgets/pasted.h"

namespace quorvel {

namespace {

/// True for what an address has between two dots, also while it is typed.
bool IsNumberOrNothing(std::string_view part) {
  return part.find_first_not_of("0123456789 \t\r\n") == std::string_view::npos;
}

}  // namespace

TextSeries::TextSeries(ControlArray<TextBox>& boxes, Kind kind) : kind_(kind) {
  for (TextBox& box : boxes) {
    boxes_.push_back(&box);
    box.JoinSeries(this);
  }
}

/// A line end that the box holds already stays in its line.
TextSeries::Parts TextSeries::PartsOf(std::string_view text, const TextBox& box) const {
  if (kind_ == Kind::kLines) {
    const std::size_t held = box.HeldBefore(text);
    Parts lines = Lines(text.substr(held));
    lines.front() = text.substr(0, held + lines.front().size());
    return lines;
  }
  Parts parts = Split(text, '.');
  while (parts.size() > boxes_.size() && parts.back().empty())
    parts.pop_back();  // a sentence's end
  // Other texts with dots are no address: the rules of the one box say what becomes of them.
  return std::ranges::all_of(parts, &IsNumberOrNothing) ? parts : Parts{text};
}

bool TextSeries::Spread(TextBox& box, std::string_view text, std::string_view after) {
  const std::string whole(text);  // the caller's may be a box's own
  const std::string behind(after);
  const Parts parts = PartsOf(whole, box);
  const auto place = static_cast<std::size_t>(std::ranges::find(boxes_, &box) - boxes_.begin());
  if (kind_ == Kind::kDotted && parts.size() == 1) return false;
  box.Raise([&] {
    if (kind_ == Kind::kDotted) {
      FillDotted(place, parts, behind);
    } else {
      FillLines(place, parts, behind);
    }
  });
  return true;
}

void TextSeries::FillDotted(std::size_t place, const Parts& parts, std::string_view after) {
  if (parts.size() == boxes_.size()) place = 0;
  const std::size_t last = std::min(place + parts.size(), boxes_.size()) - 1;
  for (std::size_t i = 0; place + i <= last; ++i) {
    const std::string_view behind = i == 0 ? after : std::string_view();
    TextBox& box = *boxes_[place + i];
    const bool open = NextOpen(place + i) == place + i;
    if (open && !(parts[i].empty() && behind.empty())) box.Take(parts[i], behind);
  }
  boxes_[last]->Owner().MoveFocus(*boxes_[last]);
}

void TextSeries::FillLines(std::size_t place, const Parts& lines, std::string_view after) {
  std::vector<TextBox*> taking;
  for (std::size_t to = NextOpen(place); to < boxes_.size() && taking.size() < lines.size();
       to = NextOpen(to + 1)) {
    taking.push_back(boxes_[to]);
  }
  for (std::size_t i = 0; i < taking.size(); ++i) {
    taking[i]->Take(lines[i], i == 0 ? after : std::string_view(),
                    i == 0 && taking.size() < lines.size());
  }
}

std::size_t TextSeries::NextOpen(std::size_t place) const {
  while (place < boxes_.size() && boxes_[place]->Refusal() != Answer::kDone) ++place;
  return place;
}

}  // namespace quorvel
