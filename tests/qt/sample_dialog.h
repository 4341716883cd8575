#pragma once

#include <memory>
#include <string>
#include <vector>

#include "quorvel/platform.h"
#include "quorvel/widgets.h"

namespace quorvel {

/// A dialog with every kind of control, which notes what its handlers saw.
class SampleDialog : public Dialog {
 public:
  explicit SampleDialog(Platform& platform) : Dialog(platform, "frm_Sample") {
    SetCaption("Alarm & recording");
    Fill();
    SetLayout(Column(
        Tabs(pages,
             Page{"Titles & texts", Row(Framed(titles, Lines(lbl_Title, m_Title)),
                                        Framed(latch, Lines(lbl_Latch, opt_Latch, chk_Buzzer)))},
             Page{"Actions", Row(grid, Column(list))}, Page{"Spare", Column(spare)}),
        progress, status, Row(Stretch(), cmd_OK, cmd_Cancel)));
    SetKeyButtons(&cmd_OK, &cmd_Cancel);
    Note(m_Title(0).on_change, "type", [this] { return m_Title(0).Text(); });
    Note(chk_Buzzer.on_click, "check", [this] { return chk_Buzzer.ValueText(); });
    Note(opt_Latch(1).on_click, "option", [this] { return opt_Latch(1).ValueText(); });
    Note(list.on_click, "choose", [this] { return std::to_string(list.Current()); });
    Note(pages.on_change, "page", [this] { return std::to_string(pages.Current()); });
    Note(cmd_OK.on_click, "click", [] { return "OK"; });
    Note(cmd_Cancel.on_click, "click", [] { return "Cancel"; });
    Note(grid.on_press, "press",
         [this] { return std::to_string(grid.Row()) + "," + std::to_string(grid.Column()); });
    Note(grid.on_release, "release", [this] {
      return std::to_string(grid.FirstSelected()) + "-" + std::to_string(grid.LastSelected());
    });
    Note(on_closed, "closed", [] { return ""; });
  }

  /// What handlers saw since last asked.
  std::vector<std::string> TakeNotes() { return std::exchange(notes_, {}); }

  TabStrip pages{*this, "SSTab1"};
  Frame titles{*this, "Frame1", "Titles"};
  Label lbl_Title{*this, "lbl_Title", "R&D <b>title</b>"};
  ControlArray<TextBox> m_Title{*this, "m_Title", 4};
  Frame latch{*this, "Frame2"};
  Label lbl_Latch{*this, "lbl_Latch", "Latch"};
  ControlArray<OptionButton> opt_Latch{*this, "opt_Latch", 3};
  CheckBox chk_Buzzer{*this, "chk_Buzzer", "Buzzer & lamp"};
  Grid grid{*this, "MSFG_Action"};
  ListBox list{*this, "lst_Action"};
  Button spare{*this, "cmd_Spare", "Spare"};
  ProgressBar progress{*this, "pb_Load"};
  StatusBar status{*this, "sb_Load", 3};
  Button cmd_OK{*this, "cmd_OK", "OK"};
  Button cmd_Cancel{*this, "cmd_Cancel", "Cancel"};

 private:
  template <class Value>
  void Note(Handler& handler, const std::string& what, Value value) {
    handler = [this, what, value] {
      const std::string text = value();
      notes_.push_back(what + (text.empty() ? "" : " " + text));
    };
  }

  void Fill() {
    constexpr int kCameras = 16;
    constexpr int kItems = 101;
    for (TextBox& box : m_Title) box.SetMaxLength(12);
    m_Title(0).SetText("Lobby");
    opt_Latch(0).SetCaption("Transparent");
    opt_Latch(1).SetCaption("Timed");
    opt_Latch(2).SetCaption("Latched");
    grid.SetSize(kCameras + 1, 4);
    const char* const headers[] = {"Camera", "Action", "Record rate", "Buzzer & lamp"};
    for (int column = 0; column < grid.Columns(); ++column)
      grid.SetCell(0, column, headers[column]);
    for (int row = 1; row < grid.Rows(); ++row) {
      grid.SetCell(row, 0, "Camera " + std::to_string(row));
      for (int column = 1; column < grid.Columns(); ++column) grid.SetCell(row, column, "Off");
    }
    std::vector<std::string> items;
    for (int i = 0; i < kItems; ++i) items.push_back(std::to_string(i) + " seconds");
    list.SetItems(items);
    status.SetPanel(1, "Receiving block 12");
    progress.SetValue(40);
  }

  std::vector<std::string> notes_;
};

}  // namespace quorvel
