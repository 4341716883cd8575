#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "quorvel/widgets.h"

namespace quorvel {

/// A control as one or two columns of a grid see it: as something that stands at an item, and
/// says how items read in a cell. `part` is 0, or 1 for the second of two columns.
class CellControl {
 public:
  static constexpr int kNone = ChoiceWidget::kNone;
  virtual ~CellControl() = default;
  CellControl(const CellControl&) = delete;
  CellControl& operator=(const CellControl&) = delete;

  [[nodiscard]] virtual const Widget& Control() const = 0;
  /// Cell text of an item; empty for one that there is not.
  [[nodiscard]] virtual std::string TextOf(int part, int item) const = 0;
  /// First item whose cell text this is, or kNone.
  [[nodiscard]] virtual int ItemOf(int part, const std::string& text) const = 0;
  /// True for an item that a cell can stand for, and for one that a person can choose.
  [[nodiscard]] virtual bool Has(int part, int item) const = 0;
  [[nodiscard]] virtual bool Offers(int part, int item) const { return Has(part, item); }
  /// Shows a row's cells: an item for each part, or kNone.
  virtual void Show(const std::vector<int>& items) = 0;
  /// The item that the control stands at, or kNone while it is blank.
  [[nodiscard]] virtual int Chosen(int part) const = 0;

 protected:
  CellControl() = default;
};

/// How a list's items read in a cell.
using CellTextRule = std::function<std::string(int item)>;

[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(ChoiceWidget& list,
                                                           std::vector<std::string> items,
                                                           CellTextRule text);
[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(Slider& slider, Label& shown);
[[nodiscard]] std::unique_ptr<CellControl> MakeCellControl(TimePicker& picker);
[[nodiscard]] std::unique_ptr<CellControl> MakeHourAndMinute(TimePicker& picker);

}  // namespace quorvel
