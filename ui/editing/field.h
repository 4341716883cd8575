#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/record/mux_data.h"
#include "quorvel/widgets.h"
#include "ui/editing/choices.h"
#include "ui/editing/setting_ref.h"
#include "ui/widgets/gestures.h"

namespace quorvel {

/// What an editor tells of a setting that it shows.
struct ShownSetting {
  std::vector<std::string> settings;  ///< "CamInfo(3).SignalGain"; several behind one control
  const Widget* control = nullptr;    ///< the grid, for a cell; the first of an array
  const Widget* edited_by = nullptr;  ///< the control beside the grid that edits the cell
  int row = Grid::kNone;              ///< of a cell, counted with the header
  int column = Grid::kNone;
  std::string page;     ///< caption of its page; empty in an editor without pages
  std::string caption;  ///< what the control or the column is called
  std::string line;     ///< what the cell's row is called
  std::string was;      ///< as it read when the editor opened
  std::string is;       ///< as it reads now
  /// The device's value that the control stands at; nothing for texts, or while it is blank.
  std::optional<int> value;
  /// As `value`; of what was not changed, what the setting held as the control was filled, also
  /// where the control has no words for it or reads it as another value.
  std::optional<int> stored;
  bool differs = false;  ///< from when the editor opened
};

class Field;
class GridEditing;

/// One line of a field.
struct FieldLine {
  const Field* field;
  int line;
};

/// Where something was changed, and how it read before.
struct FieldChange {
  const Widget* control = nullptr;
  int row = Grid::kNone;  ///< of a cell
  int column = Grid::kNone;
  std::optional<std::string> was = {};  ///< nothing where the change tells it
};

/// A control, or a column of a grid, bound to a setting: one description that fills the control and
/// writes the setting. Lines are 0-based; a control that is no array has one.
class Field {
 public:
  Field() = default;
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;
  virtual ~Field() = default;

  /// Unless the model has it, it is neither filled nor written nor told.
  Field& When(bool exists);
  /// It is shown, and written only where, or while, this holds.
  Field& WrittenWhen(bool written);
  Field& WrittenWhen(std::function<bool()> written);
  /// A change lists this block, of a setting that the record does not track.
  Field& Lists(std::function<int(int line)> block);

  void FillLine(MuxData& record, int line) {
    if (exists_) Fill(record, line);
  }
  void WriteLine(MuxData& record, int line);
  /// Shows again what it was filled with.
  virtual void PutBack(int line) = 0;
  /// Appends what it shows of a line.
  void TellLine(MuxData& record, int line, std::vector<ShownSetting>& told) const;
  /// How a line read when it was filled; nothing where it was blank because its control has no
  /// words for what the setting holds.
  [[nodiscard]] virtual std::optional<std::string> OpenedText(int line) const = 0;
  [[nodiscard]] bool Differs(int line) const { return exists_ && LineDiffers(line); }
  [[nodiscard]] bool Exists() const { return exists_; }
  /// Appends what has changed in a line and is written so.
  void AddChanges(int line, std::vector<FieldChange>& changes) const {
    if (IsWritten() && Differs(line)) TellChanges(line, changes);
  }
  /// Whether a choice in `control` is one for a line now; of a grid, for its selected cells.
  [[nodiscard]] bool IsEditedBy(const Widget& control, int line) const {
    return exists_ && EditedBy(control, line);
  }
  /// Makes it stand at what another record holds, as the user does.
  virtual void TakeFrom(MuxData& record, int line) = 0;
  /// Of a column: what edits its grid; and the row of a line.
  [[nodiscard]] virtual GridEditing* Editing() const { return nullptr; }
  [[nodiscard]] virtual int RowOf(int /*line*/) const { return Grid::kNone; }
  /// True for a cell that a choice elsewhere in its row has emptied.
  [[nodiscard]] virtual bool WasEmptied(int /*line*/) const { return false; }
  /// Appends what it stands at in a line.
  void AddValue(int line, EditedValues& values) const {
    if (exists_) values.push_back(ValueOf(line));
  }

 protected:
  virtual void Fill(MuxData& record, int line) = 0;
  virtual void Write(MuxData& record, int line) = 0;
  /// Names, control, present text and value; the rest is added.
  virtual void Tell(MuxData& record, int line, ShownSetting& shown) const = 0;
  [[nodiscard]] virtual bool LineDiffers(int line) const = 0;
  [[nodiscard]] virtual EditedValue ValueOf(int line) const = 0;
  virtual void TellChanges(int line, std::vector<FieldChange>& changes) const = 0;
  [[nodiscard]] bool IsWritten() const { return written_ && (!written_while_ || written_while_()); }
  [[nodiscard]] virtual bool EditedBy(const Widget& control, int line) const = 0;

 private:
  bool exists_ = true;
  bool written_ = true;
  std::function<bool()> written_while_;
  std::function<int(int)> block_;
};

/// A field whose control stands at a number of the device. What still is as it was filled is not
/// written: another editor, or the host, may have changed the setting since.
class ValueField : public Field {
 public:
  static constexpr int kNone = Choices::kNone;
  void PutBack(int line) override { Show(line, Opened(line)); }
  [[nodiscard]] std::optional<std::string> OpenedText(int line) const override;
  void TakeFrom(MuxData& record, int line) override;

 protected:
  explicit ValueField(SettingRef setting) : setting_(std::move(setting)) {}

  /// Makes the control stand at a value; one that it does not offer leaves it blank, or reads as it
  /// can.
  virtual void Show(int line, int value) = 0;
  /// The value that the control stands at, or kNone while it is blank.
  [[nodiscard]] virtual int Present(int line) const = 0;
  [[nodiscard]] virtual bool Offers(int value) const = 0;
  [[nodiscard]] virtual std::string TextOf(int value) const = 0;
  [[nodiscard]] virtual const Widget& ControlOf(int line) const = 0;
  /// False while the line has no such setting: it shows nothing and is not written.
  [[nodiscard]] virtual bool HasLine(int /*line*/) const { return true; }
  /// True for a value that an emptied cell stands for.
  [[nodiscard]] virtual bool MeansEmpty(int /*value*/) const { return false; }
  /// True while the user must choose before it can be written.
  [[nodiscard]] virtual bool Waits(int /*line*/) const { return false; }
  /// Adds what a cell tells of its place.
  virtual void TellPlace(int /*line*/, ShownSetting& /*shown*/) const {}

  void Fill(MuxData& record, int line) override;
  void Write(MuxData& record, int line) override;
  void Tell(MuxData& record, int line, ShownSetting& shown) const override;
  [[nodiscard]] bool LineDiffers(int line) const override;
  [[nodiscard]] EditedValue ValueOf(int line) const override { return {Standing(line), {}}; }
  void TellChanges(int line, std::vector<FieldChange>& changes) const override {
    changes.push_back({&ControlOf(line), Grid::kNone, Grid::kNone, TextOf(Opened(line))});
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int line) const override {
    return &control == &ControlOf(line);
  }
  [[nodiscard]] int StoredIn(MuxData& record, int line) const {
    return setting_.Access().Get(record, line);
  }
  /// What the control was filled with; kNone for a line that had no such setting.
  [[nodiscard]] int Opened(int line) const;
  /// What lines 0 to `line` were filled with, kNone where they differ: what one control for all
  /// lines shows.
  [[nodiscard]] int CommonUpTo(int line) const;

 private:
  /// What the control stands at, or what it was filled with while the user has chosen nothing;
  /// kNone where nothing is to be written.
  [[nodiscard]] int Standing(int line) const;
  /// The value where the control offers it, else `instead`.
  [[nodiscard]] int OfferedOr(int value, int instead) const;

  struct Filled {
    int stored = kNone;  ///< the setting's value
    int shown = kNone;   ///< what the control was made to stand at
  };
  [[nodiscard]] Filled FilledFrom(MuxData& record, int line) const;

  SettingRef setting_;
  std::vector<Filled> filled_;
};

}  // namespace quorvel
