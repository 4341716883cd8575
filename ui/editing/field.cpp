#include "ui/editing/field.h"

#include <utility>

namespace quorvel {

Field& Field::When(bool exists) {
  exists_ = exists;
  return *this;
}

Field& Field::WrittenWhen(bool written) {
  written_ = written_ && written;
  return *this;
}

Field& Field::WrittenWhen(std::function<bool()> written) {
  written_while_ = std::move(written);
  return *this;
}

Field& Field::Lists(std::function<int(int)> block) {
  block_ = std::move(block);
  return *this;
}

void Field::WriteLine(MuxData& record, int line) {
  if (!exists_ || !IsWritten()) return;
  Write(record, line);
  if (block_ && LineDiffers(line)) record.MarkModified(block_(line));
}

void Field::TellLine(MuxData& record, int line, std::vector<ShownSetting>& told) const {
  if (!exists_) return;
  ShownSetting shown;
  Tell(record, line, shown);
  shown.was = OpenedText(line).value_or("");
  shown.differs = LineDiffers(line);
  shown.page = shown.control->PageCaption();
  if (shown.caption.empty()) shown.caption = shown.control->SpokenName();
  told.push_back(std::move(shown));
}

int ValueField::Opened(int line) const {
  const auto place = static_cast<std::size_t>(line);
  return place < filled_.size() ? filled_[place].shown : kNone;
}

int ValueField::CommonUpTo(int line) const {
  const int value = Opened(0);
  for (int i = 1; i <= line; ++i) {
    if (Opened(i) != value) return kNone;
  }
  return value;
}

int ValueField::Standing(int line) const {
  if (!HasLine(line) || Waits(line)) return kNone;
  const int present = Present(line);
  return present == kNone ? Opened(line) : present;
}

/// Looking a value up takes long: only where something else is to stand for it.
int ValueField::OfferedOr(int value, int instead) const {
  return instead == value || Offers(value) ? value : instead;
}

ValueField::Filled ValueField::FilledFrom(MuxData& record, int line) const {
  Filled filled{StoredIn(record, line), kNone};
  if (HasLine(line)) {
    filled.shown = OfferedOr(filled.stored, setting_.ShownFor(filled.stored));
  }
  return filled;
}

void ValueField::Fill(MuxData& record, int line) {
  const Filled filled = FilledFrom(record, line);
  const auto place = static_cast<std::size_t>(line);
  if (filled_.capacity() == 0) filled_.reserve(kMostCameras);
  if (filled_.size() <= place) filled_.resize(place + 1);
  filled_[place] = filled;
  Show(line, filled.shown);
}

/// A control of several lines shows what they have in common, so that all up to this one count.
void ValueField::TakeFrom(MuxData& record, int line) {
  const std::vector<Filled> opened = filled_;
  for (int i = 0; i <= line; ++i) filled_.at(static_cast<std::size_t>(i)) = FilledFrom(record, i);
  Show(line, Opened(line));
  filled_ = opened;
}

void ValueField::Write(MuxData& record, int line) {
  int value = Standing(line);
  if (value == kNone) return;
  value = OfferedOr(value, setting_.WrittenFor(value));
  const auto place = static_cast<std::size_t>(line);
  if (place >= filled_.size() || value == filled_[place].stored) return;
  setting_.Access().Set(record, line, value);
}

void ValueField::Tell(MuxData& record, int line, ShownSetting& shown) const {
  setting_.Access().AddNames(record, line, shown.settings);
  shown.control = &ControlOf(line);
  const int standing = Standing(line);
  shown.is = TextOf(standing);
  if (Offers(standing)) shown.value = standing;
  const bool as_filled = standing != kNone && standing == Opened(line);
  shown.stored = as_filled ? filled_.at(static_cast<std::size_t>(line)).stored : shown.value;
  TellPlace(line, shown);
}

std::optional<std::string> ValueField::OpenedText(int line) const {
  const int opened = Opened(line);
  std::string text = TextOf(opened);
  if (text.empty() && HasLine(line) && !Offers(opened) && !MeansEmpty(opened)) return std::nullopt;
  return text;
}

bool ValueField::LineDiffers(int line) const { return Standing(line) != Opened(line); }

}  // namespace quorvel
