#include "ui/editing/note_line.h"

#include <algorithm>
#include <utility>

#include "resources/text_table.h"
#include "ui/texts/text_catalogue.h"

namespace quorvel {

NoteLine::NoteLine(const TextCatalogue& texts, Label& line)
    : line_(line),
      unknown_character_(texts.GetText(kTextUnknownCharacter)),
      control_left_out_(texts.GetText(kTextControlLeftOut)),
      lines_left_over_(texts.GetText(kTextLinesLeftOver)),
      notes_{unknown_character_, control_left_out_} {}

void NoteLine::Serve(TextBox& box) {
  boxes_.push_back(&box);
  if (boxes_.size() == 2) notes_.push_back(lines_left_over_);
  Reserve();
}

void NoteLine::MakeRoomFor(const std::vector<std::string>& notes) {
  notes_.insert(notes_.end(), notes.begin(), notes.end());
  Reserve();
}

void NoteLine::Reserve() {
  const auto longest = std::ranges::max_element(
      boxes_, {}, [](const TextBox* box) { return box->SpokenName().size(); });
  if (longest == boxes_.end()) return;
  std::vector<std::string> lines;
  for (const std::string& note : notes_) lines.push_back(Line(**longest, note));
  line_.SetRoomFor(std::move(lines));
}

std::string NoteLine::Line(const TextBox& box, const std::string& note) const {
  return note.empty() || boxes_.size() == 1 ? note : box.SpokenName() + ": " + note;
}

void NoteLine::Tell(TextBox& box, std::string note) {
  const TextBox* told = &box;
  if (note.empty()) {
    const auto other = std::ranges::find_if(
        boxes_, [&box](const TextBox* it) { return it != &box && !it->Note().empty(); });
    if (other != boxes_.end()) told = *other;
  }
  box.SetNote(std::move(note));
  line_.SetCaption(Line(*told, told->Note()));
}

std::string NoteLine::LeftOut(const TextBox& box, bool replaced) const {
  if (replaced) return unknown_character_;
  if (box.NotTaken().lines) return lines_left_over_;
  return box.NotTaken().controls ? control_left_out_ : std::string();
}

}  // namespace quorvel
