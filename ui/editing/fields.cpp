#include "ui/editing/fields.h"

#include <algorithm>
#include <utility>

namespace quorvel {

FieldGroup& FieldGroup::AlsoUnder(CommitFlag flag) {
  flag_ = flag;
  return *this;
}

FieldGroup& FieldGroup::Then(std::function<void(MuxData&)> rule) {
  rule_ = std::move(rule);
  return *this;
}

FieldGroup& FieldGroup::InOrderWhile(std::function<bool()> holds, std::vector<std::size_t> order) {
  reordered_while_ = std::move(holds);
  order_ = std::move(order);
  return *this;
}

Field& FieldGroup::Add(std::unique_ptr<Field> field) {
  return *fields_.emplace_back(std::move(field));
}

void FieldGroup::Fill(MuxData& record) {
  for (int line = 0; line < lines_; ++line) {
    for (const auto& field : fields_) field->FillLine(record, line);
  }
}

void FieldGroup::Write(MuxData& record, CommitFlags& flags) {
  std::optional<CommitScope> commit;
  if (flag_) commit.emplace(flags, *flag_);
  const bool reordered = reordered_while_ && reordered_while_();
  for (int line = 0; line < lines_; ++line) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
      fields_.at(reordered ? order_.at(i) : i)->WriteLine(record, line);
    }
  }
  if (rule_ && lines_ > 0) rule_(record);
}

void FieldGroup::Tell(MuxData& record, std::vector<ShownSetting>& told) const {
  for (int line = 0; line < lines_; ++line) {
    for (const auto& field : fields_) field->TellLine(record, line, told);
  }
}

void FieldGroup::List(std::vector<FieldLine>& lines) const {
  for (int line = 0; line < lines_; ++line) {
    for (const auto& field : fields_) {
      if (field->Exists()) lines.push_back({field.get(), line});
    }
  }
}

bool FieldGroup::Differs() const {
  for (int line = 0; line < lines_; ++line) {
    const auto differs = [line](const auto& field) { return field->Differs(line); };
    if (std::any_of(fields_.begin(), fields_.end(), differs)) return true;
  }
  return false;
}

void Fields::Fill(MuxData& record) {
  for (FieldGroup& group : groups_) group.Fill(record);
}

void Fields::Write(MuxData& record, CommitFlags& flags) {
  for (FieldGroup& group : groups_) group.Write(record, flags);
}

std::vector<ShownSetting> Fields::Tell(MuxData& record) const {
  std::vector<ShownSetting> told;
  for (const FieldGroup& group : groups_) group.Tell(record, told);
  return told;
}

std::vector<FieldLine> Fields::Lines() const {
  std::vector<FieldLine> lines;
  for (const FieldGroup& group : groups_) group.List(lines);
  return lines;
}

bool Fields::Differ() const {
  return std::any_of(groups_.begin(), groups_.end(),
                     [](const FieldGroup& group) { return group.Differs(); });
}

}  // namespace quorvel
