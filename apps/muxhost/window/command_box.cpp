#include "muxhost/window/command_box.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>
#include <utility>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

struct CommandButton {
  const char* text;
  const char* tool_tip;
  bool needs_device;  ///< an upload asks for one
  bool needs_link;
  bool needs_data;
  bool needs_screen;  ///< no other window may be open; else none that locks the others
  int row;
  int column;
};

// By Command. Beside an editor the menu opens, and files are saved; what replaces the data, or
// edits the same, needs it closed.
constexpr CommandButton kButtons[] = {
    {ToSay("Download"), ToSay("Reads the device's configuration"), true, true, false, true, 0, 0},
    {ToSay("Menu"), ToSay("Opens the configuration menu with its editors"), false, false, true,
     false, 0, 1},
    {ToSay("Zones"), ToSay("Opens the editor of the cameras' active zones"), false, false, true,
     true, 0, 2},
    {ToSay("Upload modified"), ToSay("Writes the modified blocks to the device"), false, true, true,
     true, 1, 0},
    {ToSay("Upload all"), ToSay("Writes the whole configuration to the device"), false, true, true,
     true, 1, 1},
    {ToSay("Save file"), ToSay("Saves the configuration, with its changes, in a file"), false,
     false, true, false, 2, 0},
    {ToSay("Restore file"), ToSay("Takes the configuration from a file"), true, false, false, true,
     2, 1},
    {ToSay("Defaults"), ToSay("Takes the factory defaults for the device"), true, true, false, true,
     2, 2},
};

QString WhyNot(const CommandButton& about, const CommandBox::State& state) {
  if (about.needs_screen || state.locked || state.waiting) {
    const QString busy = CommandBox::Busy(state);
    if (!busy.isEmpty()) return busy;
  }
  if (about.needs_device && !state.has_device) return Tr("Connect a device first (at the left)");
  if (about.needs_link && state.has_device && !state.link_on)
    return Tr("The link to the device is off");
  if (about.needs_data && !state.loaded) return Tr("Download the device's configuration first");
  return {};
}

}  // namespace

CommandBox::CommandBox(QWidget* parent)
    : QGroupBox(Tr("Control"), parent),
      surface_place_(new QVBoxLayout),
      with_macros_(new QCheckBox(Tr("with macros"))) {
  static_assert(std::size(kButtons) == kCommands);
  constexpr int kMacrosRow = 1;
  constexpr int kMacrosColumn = 2;
  auto* const row = new QHBoxLayout(this);
  auto* const border = new QFrame;
  border->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  border->setLayout(surface_place_);
  row->addWidget(border);
  auto* const grid = new QGridLayout;
  for (std::size_t i = 0; i < kCommands; ++i) {
    const CommandButton& about = kButtons[i];
    QPushButton* const button = buttons_.at(i) = new QPushButton(Tr(about.text));
    button->setAutoDefault(true);
    grid->addWidget(button, about.row, about.column);
    QObject::connect(button, &QPushButton::clicked, this,
                     [this, command = static_cast<Command>(i)] { on_command(command); });
  }
  with_macros_->setToolTip(Tr("An upload brings the macro data, too"));
  grid->addWidget(with_macros_, kMacrosRow, kMacrosColumn);
  row->addLayout(grid);
  row->addStretch();
  setTabOrder(ButtonOf(Command::kUploadAll), with_macros_);
  setTabOrder(with_macros_, ButtonOf(Command::kSave));
}

QString CommandBox::Busy(const State& state) {
  if (state.locked) return Tr("Finish the transfer or the question that is open first");
  if (state.waiting) return Tr("Waiting for the device");
  return state.others_open ? Tr("Close the other windows first") : QString();
}

void CommandBox::Show(const State& state) {
  // Before the button that has it is disabled, and loses it.
  const bool had_focus =
      std::any_of(buttons_.begin(), buttons_.end(),
                  [this](const QPushButton* button) { return button == window()->focusWidget(); });
  for (std::size_t i = 0; i < kCommands; ++i) {
    QString why_not = WhyNot(kButtons[i], state);
    if (why_not.isEmpty() && static_cast<Command>(i) == Command::kUploadModified &&
        !state.modified) {
      why_not = Tr("No block is listed as modified; Upload all writes everything");
    }
    buttons_.at(i)->setEnabled(why_not.isEmpty());
    buttons_.at(i)->setToolTip(why_not.isEmpty() ? Tr(kButtons[i].tool_tip) : why_not);
  }
  with_macros_->setEnabled(ButtonOf(Command::kUploadAll)->isEnabled());
  MarkNext(state.next, had_focus);
}

void CommandBox::MarkNext(const std::optional<Command>& next, bool had_focus) {
  if (next == next_) return;
  for (QPushButton* const button : buttons_) button->setDefault(false);
  next_ = next;
  focus_waits_ = focus_waits_ || had_focus;
  if (!next_) return;
  ButtonOf(*next_)->setDefault(true);
  if (std::exchange(focus_waits_, false)) ButtonOf(*next_)->setFocus();
}

void CommandBox::FocusDefault() {
  focus_waits_ = !next_;
  if (next_) ButtonOf(*next_)->setFocus();
}

void CommandBox::PressDefault() {
  if (next_) ButtonOf(*next_)->click();
}

}  // namespace quorvel::muxhost
