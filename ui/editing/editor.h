#pragma once

#include <string>

#include "core/commit.h"
#include "quorvel/widgets.h"
#include "ui/context.h"

namespace quorvel {

/// A dialog that edits part of the record. Opening copies values into the controls, which hold the
/// only working copy; OK writes them back under the editor's commit flag and closes; Cancel, Escape
/// and the window's close button write nothing. However it closes, on_closed tells the menu.
///
/// An editor that stays open while another image arrives belongs to settings that are gone: its OK
/// says that the data does not match and writes nothing, and what was typed stays on screen. That
/// may be while it opens, from inside a text source: so editors ask for all texts before they fill
/// their controls, and fill them only when BelongsToImage.
class Editor : public Dialog {
 public:
  Editor(Context& context, std::string name, CommitFlag flag);

 protected:
  /// Makes `ok` and `cancel` the editor's buttons and captions them.
  void BindButtons(Button& ok, Button& cancel);
  /// Writes the controls into the record; the commit flag is raised meanwhile.
  virtual void WriteBack(MuxData& record) = 0;

  [[nodiscard]] Context& Ctx() { return context_; }
  /// The device that the editor has opened for, which stays the same while a text source of the
  /// host's, asked for a caption, brings another image.
  [[nodiscard]] const Identity& Id() const { return id_; }
  /// False once another image has arrived: then nothing may be written any more.
  [[nodiscard]] bool BelongsToImage() const { return generation_ == context_.ImageGeneration(); }
  [[nodiscard]] std::string Text(int id) const { return context_.GetText(id); }

 private:
  friend class EditorPage;
  void Ok();

  Context& context_;
  CommitFlag flag_;
  int generation_;
  Identity id_;
};

}  // namespace quorvel
