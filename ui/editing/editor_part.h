#pragma once

#include <string>

#include "quorvel/widgets.h"
#include "ui/editing/choices.h"
#include "ui/editing/fields.h"
#include "ui/texts/text_catalogue.h"

namespace quorvel {

struct Context;
struct Identity;
class Editor;
class LineGrid;

/// What an editor and each of its pages have at hand to declare, caption and bind their controls.
/// All texts are asked for while the editor is built, before anything of the record is shown: a
/// text source may do anything meanwhile, even bring another image.
class EditorPart {
 public:
  EditorPart(const EditorPart&) = delete;
  EditorPart& operator=(const EditorPart&) = delete;

  /// Controls are declared in the editor's window.
  operator Dialog&() const;  // NOLINT: converts by design

  /// False for a page that the model does not have: its fields are neither filled nor written.
  [[nodiscard]] bool Exists() const { return exists_; }

 protected:
  explicit EditorPart(Editor& editor, bool exists = true) : editor_(editor), exists_(exists) {}
  ~EditorPart() = default;

  [[nodiscard]] Context& Ctx() const;
  [[nodiscard]] MuxData& Record() const;
  /// The device that the editor has opened for, which stays the same while a text source of the
  /// host's brings another image.
  [[nodiscard]] const Identity& Id() const;
  [[nodiscard]] std::string Text(int id) const;
  [[nodiscard]] const GlobalCnst& Words() const;
  [[nodiscard]] const ObjStr& Objects() const;

  /// Fields of one line each, and fields of `lines` lines that are written line by line. Groups are
  /// written in the order in which they are made.
  [[nodiscard]] FieldGroup& Once() const { return Each(1); }
  [[nodiscard]] FieldGroup& Each(int lines) const;

  /// Has `handler` called once the controls are filled: for what depends on what they show.
  void AfterFill(Handler handler) const;

  /// What the device calls a camera, from 0; UTF-8.
  [[nodiscard]] std::string TitleOf(int camera) const;
  /// See Editor::Counts.
  void Counts(CheckBox& box) const;

  /// Choices of 0 and 1.
  [[nodiscard]] Choices OffOn() const { return {{0, Words().cnstrOFF}, {1, Words().cnstrON}}; }
  [[nodiscard]] Choices NoYes() const { return {{0, Words().cnstrNo}, {1, Words().cnstrYes}}; }
  [[nodiscard]] Choices DisableEnable() const {
    return {{0, Words().cnstrDisable}, {1, Words().cnstrEnable}};
  }
  /// What an alarm makes of the recording that is under way.
  [[nodiscard]] Choices AlarmRecordModes() const {
    return {{0, Words().cnstrInter}, {1, Words().cnstrExcl}, {2, Words().cnstrNoChg}};
  }
  /// Of a relay's contact, and of the relays that something switches.
  [[nodiscard]] Choices ClosedOpen() const {
    return {{0, Words().cnstrClose}, {1, Words().cnstrOpen}};
  }
  [[nodiscard]] Choices Relays() const {
    return {{0, Words().cnstrNone},
            {1, Words().cnstrFirst},
            {2, Words().cnstrSecond},
            {3, Words().cnstrFPlusS}};
  }

 private:
  friend class LineGrid;
  Editor& editor_;
  bool exists_;
};

}  // namespace quorvel
