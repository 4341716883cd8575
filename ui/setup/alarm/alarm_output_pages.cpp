#include "ui/setup/alarm/alarm_output_pages.h"

#include "ui/editing/number_texts.h"
#include "ui/editing/numbered_grid.h"

namespace quorvel {

namespace {
constexpr int kColumn = 1;
constexpr int kLastExternalAction = 7;
}  // namespace

ExternalAlarmPage::ExternalAlarmPage(Editor& editor)
    : EditorPage(editor),
      MSFG_AlExt(editor, "MSFG_AlExt"),
      Label6(editor, "Label6", Text(93)),
      lst_AlExternal(editor, "lst_AlExternal") {
  MSFG_AlExt.SetSpokenName(Text(77));
  BuildNumberedGrid(MSFG_AlExt, Id().MaxCam, {Text(104), Text(93)});
}

Layout ExternalAlarmPage::Contents() { return Row(MSFG_AlExt, Labelled(Label6, lst_AlExternal)); }

void ExternalAlarmPage::Fill() {
  const auto& words = Words();
  lst_AlExternal.SetItems({words.cnstrNone, words.cnstrFirst, words.cnstrSecond, words.cnstrFPlusS,
                           words.cnstrExt1, words.cnstrExt2, words.cnstrExt3, words.cnstrExt4});
  ColumnRules rules;
  rules.writes = ColumnRules::Reach::kInRow;
  editing_.Bind(kColumn, lst_AlExternal, rules);
  for (int i = 0; i < Id().MaxCam; ++i) {
    editing_.SetItem(i + 1, kColumn, Record().AlarmInfo(i)->ExtAlmAction());
  }
}

void ExternalAlarmPage::Write() {
  for (int i = 0; i < Id().MaxCam; ++i) {
    const int item = editing_.ItemAt(i + 1, kColumn);
    Record().AlarmInfo(i)->ExtAlmAction(
        static_cast<Byte>(item == Grid::kNone ? kLastExternalAction : item));
  }
}

void ExternalAlarmPage::GoToStart() { editing_.GoTo(1, kColumn); }

MacroLinkPage::MacroLinkPage(Editor& editor)
    : EditorPage(editor),
      MSFG_AlMacro(editor, "MSFG_AlMacro"),
      Label7(editor, "Label7", Text(88)),
      lst_AlMacro(editor, "lst_AlMacro") {
  MSFG_AlMacro.SetSpokenName(Text(86));
  BuildNumberedGrid(MSFG_AlMacro, Id().MaxCam, {Ctx().texts.Objects().objstAlarm, Text(88)});
}

Layout MacroLinkPage::Contents() { return Row(MSFG_AlMacro, Labelled(Label7, lst_AlMacro)); }

void MacroLinkPage::Fill() {
  auto macros = NumberTexts(1, Id().MaxCam);
  macros.insert(macros.begin(), Words().cnstrNone);
  lst_AlMacro.SetItems(std::move(macros));
  editing_.Bind(kColumn, lst_AlMacro, EmptyFor(lst_AlMacro, 0));
  for (int i = 0; i < Id().MaxCam; ++i) {
    editing_.SetItem(i + 1, kColumn, Record().AlarmInfo(i)->MacroLnk());
  }
}

void MacroLinkPage::Write() {
  for (int i = 0; i < Id().MaxCam; ++i) {
    const int macro = editing_.ItemAt(i + 1, kColumn);
    if (macro != Grid::kNone) Record().AlarmInfo(i)->MacroLnk(static_cast<Byte>(macro));
  }
}

void MacroLinkPage::GoToStart() { editing_.GoTo(1, kColumn); }

}  // namespace quorvel
