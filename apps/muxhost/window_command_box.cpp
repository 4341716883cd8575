#include "apps/muxhost/window_command_box.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>

namespace quorvel::muxhost {

namespace {

struct CommandButton {
  const char* text;
  const char* tool_tip;
  Command command;
  bool needs_data;
  bool needs_screen;  ///< no other window may be open; else none that locks the others
};

// Beside an editor the menu opens, and files are saved; what replaces the data needs it closed.
constexpr CommandButton kButtons[] = {
    {"Download", "Reads the device's configuration", Command::kDownload, false, true},
    {"Menu", "Opens the configuration menu", Command::kMenu, true, false},
    {"Upload", "Writes the configuration to the device", Command::kUpload, true, true},
    {"Save file", "Saves the configuration, with its changes, in a file", Command::kSave, true,
     false},
    {"Restore file", "Takes the configuration from a file", Command::kRestore, false, true},
    {"Defaults", "Takes the factory defaults for the device", Command::kDefaults, false, true},
};
constexpr int kButtonsARow = 3;

}  // namespace

CommandBox::CommandBox(QWidget* parent)
    : QGroupBox("Control", parent), surface_place_(new QVBoxLayout) {
  static_assert(std::size(kButtons) == kCommands);
  auto* const row = new QHBoxLayout(this);
  auto* const border = new QFrame;
  border->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  border->setLayout(surface_place_);
  row->addWidget(border);
  row->addStretch();
  auto* const grid = new QGridLayout;
  for (std::size_t i = 0; i < kCommands; ++i) {
    const CommandButton& about = kButtons[i];
    buttons_.at(i) = new QPushButton(about.text);
    const int place = static_cast<int>(i);
    grid->addWidget(buttons_.at(i), place / kButtonsARow, place % kButtonsARow);
    QObject::connect(buttons_.at(i), &QPushButton::clicked, this,
                     [this, command = about.command] { on_command(command); });
  }
  row->addLayout(grid);
}

QString CommandBox::Busy() { return "Close the other windows first"; }

void CommandBox::Show(const State& state) {
  for (std::size_t i = 0; i < kCommands; ++i) {
    const CommandButton& about = kButtons[i];
    QString why_not;
    if (about.needs_data && !state.loaded) {
      why_not = "Download the device's configuration first";
    } else if (about.needs_screen ? state.others_open : state.locked) {
      why_not = Busy();
    }
    buttons_.at(i)->setEnabled(why_not.isEmpty());
    buttons_.at(i)->setToolTip(why_not.isEmpty() ? about.tool_tip : why_not);
  }
}

}  // namespace quorvel::muxhost
