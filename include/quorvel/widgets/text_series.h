#pragma once

#include <string_view>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/control_array.h"
#include "quorvel/widgets/text_box.h"

namespace quorvel {

/// Text boxes that are typed through as one. Boxes that are hidden or disabled are passed over.
class QUORVEL_API TextSeries {
 public:
  enum class Kind {
    /// The numbers of a dotted address. "." goes on to the next box, and erases nothing. An address
    /// with as many numbers as there are boxes fills them all, wherever it is pasted.
    kDotted,
    /// Texts below one another. Pasted lines fill the box and those below it.
    kLines,
  };
  TextSeries(ControlArray<TextBox>& boxes, Kind kind);
  TextSeries(const TextSeries&) = delete;
  TextSeries& operator=(const TextSeries&) = delete;
  ~TextSeries() = default;

  /// See TextBox::GoesOnWith.
  [[nodiscard]] char GoesOnWith() const { return kind_ == Kind::kDotted ? '.' : '\0'; }

 private:
  friend class TextBox;
  using Parts = std::vector<std::string_view>;
  /// Types a text for several boxes into them, `box` the one that has got it. False when the text
  /// is for that box alone.
  bool Spread(TextBox& box, std::string_view text, std::string_view after);
  [[nodiscard]] Parts PartsOf(std::string_view text, const TextBox& box) const;
  void FillDotted(std::size_t place, const Parts& parts, std::string_view after);
  void FillLines(std::size_t place, const Parts& lines, std::string_view after);
  /// The first box from a place on that takes input, or the number of boxes.
  [[nodiscard]] std::size_t NextOpen(std::size_t place) const;

  std::vector<TextBox*> boxes_;
  Kind kind_;
};

}  // namespace quorvel
