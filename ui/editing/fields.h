#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/commit.h"
#include "quorvel/widgets.h"
#include "ui/editing/field.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {

struct Context;

/// Fields that are written line by line: all of the first camera, then all of the second. Within a
/// line they are written in the order in which they were added, which is the order in which an
/// installer finds the blocks listed.
class FieldGroup {
 public:
  FieldGroup(const Context& context, int lines) : context_(context), lines_(lines) {}
  FieldGroup(const FieldGroup&) = delete;
  FieldGroup& operator=(const FieldGroup&) = delete;
  ~FieldGroup() = default;

  /// The group is written while this flag is raised besides those of its editor.
  FieldGroup& AlsoUnder(CommitFlag flag);
  /// Has `rule` called once the group is written: for what the settings together demand.
  FieldGroup& Then(std::function<void(MuxData&)> rule);
  /// While `holds`, the fields of a line are written in another order: `order` names them by their
  /// places, in that of their description.
  FieldGroup& InOrderWhile(std::function<bool()> holds, std::vector<std::size_t> order);
  [[nodiscard]] int Lines() const { return lines_; }

  /// A box that is ticked for 1; element k of an array is line k. Any other value but 0 shows as
  /// unticked, and stays until the user clicks.
  Field& Check(CheckBox& box, SettingRef setting);
  Field& Check(ControlArray<CheckBox>& boxes, SettingRef setting);
  /// A group of options, one for each line of `choices`, which captions them. A `name` is what
  /// screen readers say before their captions; without one they know the frame around.
  Field& Options(ControlArray<OptionButton>& options, Choices choices, SettingRef setting,
                 std::string name = {});
  /// In a group of several lines, one list or slider stands for all of them: it is blank where they
  /// differ, and what the user chooses is written into each.
  Field& List(ChoiceWidget& list, Choices choices, SettingRef setting);
  /// `shown` repeats the slider's value.
  Field& Slide(Slider& slider, Label& shown, SettingRef setting);
  Field& Pick(TimePicker& picker, SettingRef hour, SettingRef minute, SettingRef second);
  Field& Pick(DatePicker& picker, SettingRef day, SettingRef month, SettingRef year);
  /// A number from `least` to `most`; what is typed otherwise becomes `otherwise`.
  Field& Port(TextBox& box, int least, int most, int otherwise, SettingRef setting);
  /// The four numbers of a network address; `octets` is the setting of the first, in line 0.
  Field& Octets(ControlArray<TextBox>& boxes, SettingRef octets);
  /// Texts of the device, element k of the array in line k. Pasted lines fill the boxes below;
  /// `notes` tells what of a text the device cannot keep.
  Field& Texts(ControlArray<TextBox>& boxes, Label& notes, TextRef setting);
  /// A column whose cells GridEditing knows already. Line 0 is the first row of data.
  Field& Column(GridEditing& editing, Grid& grid, int column, SettingRef setting);
  /// A field of an editor's own.
  Field& Add(std::unique_ptr<Field> field);

  void Fill(MuxData& record);
  void Write(MuxData& record, CommitFlags& flags);
  void Tell(MuxData& record, std::vector<ShownSetting>& told) const;
  /// Appends the lines of its fields, in the order in which they are told.
  void List(std::vector<FieldLine>& lines) const;
  [[nodiscard]] bool Differs() const;
  /// Calls `act` for each of its fields in each line.
  template <class Act>
  void ForEach(const Act& act) const {
    for (int line = 0; line < lines_; ++line) {
      for (const auto& field : fields_) act(*field, line);
    }
  }

 private:
  const Context& context_;
  int lines_;
  std::optional<CommitFlag> flag_;
  std::function<void(MuxData&)> rule_;
  std::function<bool()> reordered_while_;
  std::vector<std::size_t> order_;
  std::vector<std::unique_ptr<Field>> fields_;
};

/// All fields of an editor, in the order in which they are written.
class Fields {
 public:
  explicit Fields(const Context& context) : context_(context) {}

  /// A new group behind the others.
  FieldGroup& Group(int lines) { return groups_.emplace_back(context_, lines); }

  void Fill(MuxData& record);
  void Write(MuxData& record, CommitFlags& flags);
  [[nodiscard]] std::vector<ShownSetting> Tell(MuxData& record) const;
  [[nodiscard]] std::vector<FieldLine> Lines() const;
  [[nodiscard]] bool Differ() const;
  template <class Act>
  void ForEach(const Act& act) const {
    for (const FieldGroup& group : groups_) group.ForEach(act);
  }

 private:
  const Context& context_;
  std::deque<FieldGroup> groups_;
};

}  // namespace quorvel
