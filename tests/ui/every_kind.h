#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "quorvel/widgets.h"

namespace quorvel {

/// A dialog with one control of every kind, each called by its kind, which notes what its handlers
/// saw. `lengthen` makes the texts that a translation might be.
class EveryKind : public Dialog {
 public:
  using Lengthen = std::string (*)(std::string);
  static std::string AsIs(std::string text) { return text; }
  static std::string HalfAgain(std::string text) {
    const std::size_t half = (text.size() + 1) / 2;
    return text + " " + text.substr(0, half);
  }

  explicit EveryKind(Platform& platform, Lengthen lengthen = AsIs)
      : Dialog(platform, "frm_EveryKind") {
    const auto texts = [lengthen](std::vector<std::string> all) {
      std::transform(all.begin(), all.end(), all.begin(), lengthen);
      return all;
    };
    frame.SetCaption(lengthen("Dwell & switching"));
    label.SetCaption(lengthen("R&D title"));
    text.SetMaxLength(12);
    check.SetCaption(lengthen("Buzzer & lamp"));
    const auto modes = texts({"Latched", "Transparent", "Timed", "Off"});
    for (int i = 0; i < option.Count(); ++i) {
      option(i).SetCaption(modes.at(static_cast<std::size_t>(i)));
    }
    option(0).Select();
    list.SetItems(texts({"Off", "On", "Record at the alarm rate"}));
    combo.SetItems(texts({"Black & white", "Colour"}));
    slider.SetRange(0, 20);
    time.SetFormat(ClockFormat::kTwelveHours);
    time.SetTime({7, 45, 0});
    date.SetDate({2024, 2, 29});
    grid.SetSize(5, 3);
    const auto header = texts({"Camera", "Picture rate under alarm", "Buzzer while latched"});
    for (int column = 0; column < 3; ++column) {
      grid.SetCell(0, column, header.at(static_cast<std::size_t>(column)));
      for (int row = 1; row < 5; ++row) grid.SetCell(row, column, std::to_string(10 * row));
    }
    grid.SetCell(1, 2, lengthen("15 s, latched"));
    grid.SetLeastWidth(0, 12);
    status.SetPanel(1, lengthen("Receiving block 12"));
    progress.SetValue(40);
    button.SetCaption(lengthen("Save & close"));
    cancel.SetCaption(lengthen("Cancel"));
    SetLayout(
        Column(Tabs(tabs,
                    Page{lengthen("Titles & texts"),
                         Column(Framed(frame, Lines(LabelledRow(label, text), Row(check, option),
                                                    Row(combo, slider), Row(time, date))),
                                Row(grid, list))},
                    Page{lengthen("Spare page"), Column(spare)}, Page{lengthen("Last"), Column()}),
               progress, status, Row(Stretch(), button, cancel)));
    SetKeyButtons(&button, &cancel);
    button.on_click = [this] { notes += "button; "; };
    cancel.on_click = [this] { notes += "cancel; "; };
    on_closed = [this] { notes += "closed; "; };
    check.on_click = Note(check);
    for (OptionButton& it : option) it.on_click = Note(it);
    text.on_change = Note(text);
    list.on_click = Note(list);
    combo.on_click = Note(combo);
    slider.on_change = Note(slider);
    time.on_change = Note(time);
    date.on_change = Note(date);
    tabs.on_change = Note(tabs);
    grid.on_press = [this] {
      notes += "press " + std::to_string(grid.Row()) + "," + std::to_string(grid.Column()) + "; ";
    };
    grid.on_release = [this] {
      notes += "grid " + std::to_string(grid.FirstSelected()) + "-" +
               std::to_string(grid.LastSelected()) + "@" + std::to_string(grid.Column()) + "; ";
    };
  }

  TabStrip tabs{*this, "tabs"};
  Frame frame{*this, "frame"};
  Label label{*this, "label"};
  TextBox text{*this, "text"};
  CheckBox check{*this, "check"};
  ControlArray<OptionButton> option{*this, "option", 4};
  ComboBox combo{*this, "combo"};
  Slider slider{*this, "slider"};
  TimePicker time{*this, "time"};
  DatePicker date{*this, "date"};
  Grid grid{*this, "grid"};
  ListBox list{*this, "list"};
  Button spare{*this, "spare", "Spare"};
  ProgressBar progress{*this, "progress"};
  StatusBar status{*this, "status", 2};
  Button button{*this, "button"};
  Button cancel{*this, "cancel"};
  std::string notes;

 private:
  Handler Note(const Widget& of) {
    return [this, &of] { notes += of.Name() + " " + of.ValueText() + "; "; };
  }
};

}  // namespace quorvel
