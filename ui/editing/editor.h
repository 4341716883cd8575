#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/commit.h"
#include "quorvel/identity.h"
#include "quorvel/widgets.h"
#include "ui/editing/editor_part.h"

namespace quorvel {

struct Context;

/// A dialog that edits part of the record. It describes its controls once: what each shows, and
/// which setting it is bound to. Opening runs the description to fill them; they hold the only
/// working copy. OK runs it to write them back under the editor's commit flags, and closes; Cancel,
/// Escape and the window's close button write nothing. However it closes, on_closed tells the menu.
///
/// An editor that stays open while another image arrives belongs to settings that are gone: its OK
/// says so and writes nothing, and what was typed stays on screen.
class Editor : public Dialog, public EditorPart {
 public:
  /// What the editor shows, in the order in which it is written. The reference stays valid as long
  /// as the editor; a record that was replaced meanwhile is asked for names only.
  [[nodiscard]] std::vector<ShownSetting> ShownSettings() const;
  /// The same lines, to be asked one by one; valid as long as the editor.
  [[nodiscard]] std::vector<FieldLine> FieldLines() const { return fields_.Lines(); }
  /// Brings a control into view and sends the keyboard focus there; of a grid, to a cell, whose
  /// control beside it shows it. False when it is not to be seen.
  bool GoTo(std::string_view control, int row, int column);
  /// Whether anything differs from when the editor opened.
  [[nodiscard]] bool Differs() const { return fields_.Differ(); }

  [[nodiscard]] std::string HelpOf(const Widget& control, int row = -1,
                                   int column = -1) const override;

  /// Chooses an item of the menu that the editor offers, too. Set by the menu.
  std::function<void(std::string_view item)> choose_item;

  /// Tells what is doubtful of what the user has typed into a control; empty for nothing. It asks
  /// for no texts.
  using Doubt = std::function<std::string()>;
  /// Has OK ask whether to store what is doubtful, whatever page is in front. Who goes back finds
  /// the first such control in front.
  void AddDoubt(Widget& control, Doubt doubt);

 protected:
  Editor(Context& context, std::string name, int caption, std::initializer_list<CommitFlag> flags);

  /// Last in the constructor of an editor: makes `ok` and `cancel` its buttons and fills the
  /// controls. Of the pages of `tabs`, each begins at the first cell of its grids when it comes to
  /// the front.
  void Open(Button& ok, Button& cancel, TabStrip* tabs = nullptr);
  /// What writing does beyond the description; the commit flags are raised.
  virtual void WriteRest(MuxData& /*record*/) {}
  /// False refuses OK; the editor has told why.
  virtual bool MayWrite() { return true; }

  /// Names a box whose tick OK asks for, though no setting is bound to it, and a number that it
  /// asks for besides: as the settings, they are what the user edits.
  void Counts(CheckBox& box) { counted_boxes_.push_back({&box, false}); }
  void Counts(std::function<int()> number) { counted_.push_back(std::move(number)); }

  /// Asks whether what the user has changed may be lost.
  bool MayClose() override;

  /// False once another image has arrived: then nothing may be written any more.
  [[nodiscard]] bool BelongsToImage() const;

 private:
  friend class EditorPart;
  friend class EditorSteps;
  friend class LineGrid;
  void Ok();
  void Write();
  /// False, with a message, while a cell waits for a choice; it becomes the current one.
  [[nodiscard]] bool CellsAreFilled();
  /// Asks about what is doubtful; false when the user goes back to it.
  [[nodiscard]] bool DoubtsAreSettled();

  Context& context_;
  std::vector<CommitFlag> flags_;
  int generation_;
  Identity id_;
  Fields fields_;
  std::vector<LineGrid*> grids_;
  std::vector<Handler> after_fill_;
  struct DoubtOf {
    Widget& control;
    Doubt doubt;
  };
  std::vector<DoubtOf> doubts_;
  struct CountedBox {
    CheckBox* box;
    bool opened;  ///< whether it was ticked when the editor opened
  };
  std::vector<CountedBox> counted_boxes_;
  std::vector<std::function<int()>> counted_;
  std::string store_like_this_;
  std::string choose_a_value_;
};

}  // namespace quorvel
