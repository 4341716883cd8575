#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/context.h"
#include "ui/editing/editor.h"

namespace quorvel {

/// Every editor that the menu offers for the present device, filled with a record and never shown.
/// They are made in surroundings of their own: what an editor does to the control as it opens
/// happens to a copy.
class UnseenEditors {
 public:
  struct Opened {
    std::string_view item;
    std::shared_ptr<Editor> editor;
    std::size_t first_line;  ///< in Lines()
  };
  /// `known` holds the texts of `of` that were asked for, and gets the others.
  UnseenEditors(Context& of, const MuxData& record,
                std::shared_ptr<TextCatalogue::KnownTexts> known);
  UnseenEditors(const UnseenEditors&) = delete;
  UnseenEditors& operator=(const UnseenEditors&) = delete;
  ~UnseenEditors() = default;

  /// In the menu's order.
  [[nodiscard]] const std::vector<Opened>& All() const { return editors_; }
  /// What all of them show, editor by editor.
  [[nodiscard]] const std::vector<FieldLine>& Lines() const { return lines_; }
  /// True when they show this record.
  [[nodiscard]] bool Show(const MuxData& record) const { return *record_ == record; }
  [[nodiscard]] MuxData& Record() const { return *record_; }
  [[nodiscard]] const Context& Surroundings() const { return context_; }

 private:
  Context context_;
  RecordEnvironment env_;
  std::unique_ptr<MuxData> record_;  ///< as it was before an editor has opened
  std::vector<Opened> editors_;
  std::vector<FieldLine> lines_;
};

}  // namespace quorvel
