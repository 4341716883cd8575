#pragma once

#include <string>
#include <utility>

#include "ui/editing/field.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {

/// A column of a grid. Line 0 is the first row of data.
class ColumnField : public ValueField {
 public:
  ColumnField(GridEditing& editing, Grid& grid, int column, SettingRef setting)
      : ValueField(std::move(setting)), editing_(editing), grid_(grid), column_(column) {}

  [[nodiscard]] GridEditing* Editing() const override { return &editing_; }
  [[nodiscard]] int RowOf(int line) const override { return line + grid_.HeaderRows(); }
  [[nodiscard]] bool WasEmptied(int line) const override {
    return HasLine(line) && Present(line) == kNone && Opened(line) != kNone;
  }

 protected:
  void Show(int line, int value) override { editing_.SetValue(RowOf(line), column_, value); }
  [[nodiscard]] int Present(int line) const override {
    return editing_.ValueAt(RowOf(line), column_);
  }
  [[nodiscard]] bool Offers(int value) const override { return editing_.Offers(column_, value); }
  [[nodiscard]] bool MeansEmpty(int value) const override {
    return editing_.MeansEmpty(column_, value);
  }
  [[nodiscard]] std::string TextOf(int value) const override {
    return editing_.TextOf(column_, value);
  }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return grid_; }
  [[nodiscard]] bool HasLine(int line) const override { return editing_.Has(RowOf(line), column_); }
  [[nodiscard]] bool Waits(int line) const override { return editing_.Waits(RowOf(line), column_); }
  void TellChanges(int line, std::vector<FieldChange>& changes) const override {
    ValueField::TellChanges(line, changes);
    FieldChange& change = changes.back();
    if (change.control != &grid_) return;
    change.row = RowOf(line);
    change.column = column_;
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int line) const override {
    return editing_.IsPutBackBy(control, RowOf(line), column_);
  }
  void TellPlace(int line, ShownSetting& shown) const override {
    shown.edited_by = editing_.ControlOf(column_);
    shown.row = RowOf(line);
    shown.column = column_;
    shown.caption = grid_.ColumnName(column_);
    shown.line = grid_.Cell(shown.row, 0);
  }

 private:
  GridEditing& editing_;
  Grid& grid_;
  int column_;
};

}  // namespace quorvel
