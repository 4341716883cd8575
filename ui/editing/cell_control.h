#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "quorvel/widgets.h"
#include "ui/editing/choices.h"

namespace quorvel {

/// A control as one or two columns of a grid see it: as something that stands at a value of the
/// device, and says how values read in a cell. `part` is 0, or 1 for the second of two columns.
class CellControl {
 public:
  static constexpr int kNone = Grid::kNone;
  virtual ~CellControl() = default;
  CellControl(const CellControl&) = delete;
  CellControl& operator=(const CellControl&) = delete;

  /// The control, and another that stands at the same value, if there is one.
  [[nodiscard]] virtual Widget& Control() const = 0;
  [[nodiscard]] virtual Widget* OtherControl() const { return nullptr; }
  /// Whether `widget` is one of them.
  [[nodiscard]] bool Is(const Widget& widget) const {
    return &Control() == &widget || OtherControl() == &widget;
  }
  /// True where the second of two columns always stands at the value of the first.
  [[nodiscard]] virtual bool StandsAtOneValue() const { return false; }
  /// Cell text of a value; empty for one that reads as nothing.
  [[nodiscard]] virtual std::string TextOf(int part, int value) const = 0;
  /// The first value that the user can choose and whose cell reads so, or kNone.
  [[nodiscard]] virtual int ValueOf(int part, const std::string& text) const = 0;
  /// True for a value that the user can choose.
  [[nodiscard]] virtual bool Offers(int part, int value) const = 0;
  /// Shows the cells of `row`: a value for each part, or kNone. What the control does not offer
  /// leaves it blank.
  virtual void Show(int row, const std::vector<int>& values) = 0;
  /// The value that the control stands at, or kNone while it is blank.
  [[nodiscard]] virtual int Chosen(int part) const = 0;

 protected:
  CellControl() = default;
};

/// The lines that a list offers for the cell of a row, where that is not the same for all.
using ChoicesOfRow = std::function<Choices(int row)>;

[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(ChoiceWidget& list, Choices choices,
                                                           ChoicesOfRow of_row = {});
/// Two lists that always stand at the same value, each with a column of its own.
[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(ChoiceWidget& one,
                                                           Choices choices_of_one,
                                                           ChoiceWidget& other,
                                                           Choices choices_of_other);
[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(Slider& slider, Label& shown);
/// Times as minutes of the day.
[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(TimePicker& picker);
[[nodiscard]] std::unique_ptr<CellControl> MakeHourAndMinute(TimePicker& picker);

}  // namespace quorvel
