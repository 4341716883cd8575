#pragma once

#include <string>
#include <vector>

#include "quorvel/widgets.h"

namespace quorvel {

class TextCatalogue;

/// A line of a window that tells what there is to say of text boxes, as that the device lacks a
/// character. One line may serve several boxes, which it then calls by name; each note stays until
/// there is none on its box any more. Screen readers have it from the box itself.
class NoteLine {
 public:
  /// Asks for its texts now: a text source may do anything while it is asked.
  NoteLine(const TextCatalogue& texts, Label& line);
  NoteLine(const NoteLine&) = delete;
  NoteLine& operator=(const NoteLine&) = delete;
  ~NoteLine() = default;

  /// Adds a box, once it has its name.
  void Serve(TextBox& box);
  /// Reserves space for these notes as well.
  void MakeRoomFor(const std::vector<std::string>& notes);
  /// Tells something of a box, or with nothing to tell takes back what was told.
  void Tell(TextBox& box, std::string note);
  /// What the box did not take of what was typed last, in words; `replaced` when characters were,
  /// because the device lacks them. Nothing when it took everything.
  [[nodiscard]] std::string LeftOut(const TextBox& box, bool replaced) const;

 private:
  [[nodiscard]] std::string Line(const TextBox& box, const std::string& note) const;
  void Reserve();

  Label& line_;
  std::string unknown_character_;
  std::string control_left_out_;
  std::string lines_left_over_;
  std::vector<std::string> notes_;  ///< that there may be
  std::vector<TextBox*> boxes_;
};

}  // namespace quorvel
