#include "fuzz/call_seeds.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "fuzz/call_player.h"
#include "fuzz/device_host.h"
#include "fuzz/material.h"
#include "fuzz/random_user.h"

namespace quorvel::fuzz {

namespace {

/// A sequence of calls as bytes.
class Sequence {
 public:
  explicit Sequence(int manner) : bytes_{static_cast<Byte>(manner)} {}

  Sequence& Then(Call call, std::initializer_list<int> operands = {}) {
    bytes_.push_back(static_cast<Byte>(call));
    for (const int operand : operands) bytes_.push_back(static_cast<Byte>(operand));
    return *this;
  }
  Sequence& Command(int number, int param1 = 0, int param2 = 0) {
    return Then(Call::kCustom, {number - 9, param1, param2});
  }
  /// A control of a dialog that the user then clicks, or uses as the operands say.
  Sequence& Use(const std::vector<std::string>& controls, const std::string& name,
                std::initializer_list<int> operands = {}) {
    const auto place = std::ranges::find(controls, name) - controls.begin();
    Then(Call::kUser, {static_cast<int>(place)});
    for (const int operand : operands) bytes_.push_back(static_cast<Byte>(operand));
    return *this;
  }
  [[nodiscard]] const std::vector<Byte>& Bytes() const { return bytes_; }

 private:
  std::vector<Byte> bytes_;
};

constexpr int kPrompt = HostManner::kAnswersInside | HostManner::kAcknowledges;
constexpr int kPromptAndShort = kPrompt | HostManner::kShortImage;
/// An event goes on with the sequence when its byte is this.
constexpr int kGoOn = 0x80;

/// The names of the controls of the modal dialog that a command opens.
std::vector<std::string> ControlsOf(DeviceHost& host, std::int16_t command) {
  std::vector<std::string> names;
  host.desk.at_modal = [&names](Dialog& dialog) {
    for (const Widget* widget : dialog.Widgets()) names.push_back(widget->Name());
    return dialog.CloseWindow() == Answer::kDone;
  };
  host.control->Custom(command, 0, 0);
  host.desk.at_modal = nullptr;
  return names;
}

/// What a person can do with a control, once.
void UseOnce(Sequence& sequence, const Widget& widget, int place) {
  switch (widget.Kind()) {
    case WidgetKind::kButton: return;  // at the end
    case WidgetKind::kTextBox: sequence.Then(Call::kUser, {place, 2, '1', '2'}); return;
    case WidgetKind::kListBox:
    case WidgetKind::kTabStrip: sequence.Then(Call::kUser, {place, 2}); return;
    case WidgetKind::kGrid:
      sequence.Then(Call::kUser, {place, 0, 2, 2});
      sequence.Then(Call::kUser, {place, 1, 2, 4});
      return;
    default: sequence.Then(Call::kUser, {place}); return;
  }
}

/// The editor behind a menu item: opens it, uses some of its controls, presses its first button,
/// and sends what has changed.
class EditorSequences {
 public:
  EditorSequences(const Corpus& corpus, int item, std::string name)
      : corpus_(corpus), item_(item), name_(std::move(name)) {}

  void Add(const Dialog& dialog) {
    const auto& widgets = dialog.Widgets();
    const auto button = std::ranges::find(widgets, WidgetKind::kButton, &Widget::Kind);
    button_ = static_cast<int>(button - widgets.begin());
    Begin();
    // Pages behind others come to the front on the way, so from the last to the first.
    for (int place = static_cast<int>(widgets.size()) - 1; place >= 0; --place) {
      if (sequence_.Bytes().size() > kLength) {
        End();
        Begin();
      }
      UseOnce(sequence_, *widgets[static_cast<std::size_t>(place)], place);
    }
    End();
  }

 private:
  static constexpr std::size_t kLength = 100;

  void Begin() {
    sequence_ = Sequence(kPrompt);
    sequence_.Then(Call::kSizes, {0}).Then(Call::kArray, {0}).Then(Call::kMenu);
    sequence_.Then(Call::kMenu, {item_});
  }
  void End() {
    sequence_.Then(Call::kUser, {button_}).Command(11).Then(Call::kUser, {3});
    sequence_.Then(Call::kWait, {9});
    corpus_.Add("editor-" + name_ + "-" + std::to_string(++count_), sequence_.Bytes());
  }

  const Corpus& corpus_;
  int item_;
  std::string name_;
  int button_ = 0;
  int count_ = 0;
  Sequence sequence_{kPrompt};
};

void AddEditor(const Corpus& corpus, DeviceHost& host, int item, const std::string& name) {
  if (host.desk.ChooseMenu(name) != Answer::kDone || host.desk.Windows().empty()) return;
  Dialog& dialog = *host.desk.Windows().back();
  EditorSequences(corpus, item, name).Add(dialog);
  dialog.CloseWindow();
}

void EditorSeeds(const Corpus& corpus, DeviceHost& host) {
  host.control->Custom(15, 1, 0);
  host.desk.RunUntilIdle();
  const auto names = MenuNames(host.desk.Menu());
  Sequence all(kPrompt);
  all.Then(Call::kSizes, {0}).Then(Call::kArray, {0});
  for (int item = 0; item < static_cast<int>(names.size()); ++item) {
    all.Then(Call::kMenu).Then(Call::kMenu, {item});
    host.control->Custom(15, 1, 0);
    host.desk.RunUntilIdle();
    AddEditor(corpus, host, item, names[static_cast<std::size_t>(item)]);
  }
  corpus.Add("menu-items", all.Bytes());
}

void ReceiveSeeds(const Corpus& corpus, const std::vector<std::string>& receive) {
  corpus.Add("receive", Sequence(kPromptAndShort).Command(10).Use(receive, "cmdOK").Bytes());
  corpus.Add("receive-and-save", Sequence(kPromptAndShort)
                                     .Command(10)
                                     .Use(receive, "cmdSaveFile", {1})
                                     .Use(receive, "cmdOK")
                                     .Bytes());
  corpus.Add("receive-later", Sequence(HostManner::kShortImage)
                                  .Command(10)
                                  .Then(Call::kReply, {0})
                                  .Then(Call::kReply, {1, 9})
                                  .Then(Call::kReply, {0})
                                  .Then(Call::kReply, {2, 4})
                                  .Then(Call::kReply, {3, 4})
                                  .Bytes());
  corpus.Add("whole-image", Sequence(kPrompt)
                                .Then(Call::kProperties, {0, 1})
                                .Command(10)
                                .Then(Call::kWholeImage, {0})
                                .Command(17, 3)
                                .Then(Call::kGrid, {3, 0x55})
                                .Bytes());
  corpus.Add("defaults",
             Sequence(kPrompt).Then(Call::kIdentify, {0}).Command(16).Command(14).Bytes());
  corpus.Add("restore", Sequence(kPrompt)
                            .Then(Call::kIdentify, {0})
                            .Then(Call::kCustom, {3, 0, 0, 1})
                            .Use(receive, "cmdOK")
                            .Then(Call::kCustom, {5, 0, 0, 1})
                            .Command(11)
                            .Bytes());
  corpus.Add("restore-array", Sequence(kPrompt)
                                  .Then(Call::kSizes, {0})
                                  .Then(Call::kCustom, {3, 0, 0, 2})
                                  .Use(receive, "cmdOK")
                                  .Then(Call::kDisk, {1})
                                  .Then(Call::kCustom, {5, 0, 0, 2})
                                  .Bytes());
}

void SendSeeds(const Corpus& corpus, const std::vector<std::string>& receive,
               const std::vector<std::string>& send) {
  Sequence all(kPromptAndShort);
  all.Command(18, 48, 1).Command(10).Use(receive, "cmdOK").Then(Call::kGrid, {0, 7});
  all.Command(18, 0, 0).Command(11).Use(send, "cmdOK").Then(Call::kWait, {60});
  corpus.Add("send-all", all.Use(send, "cmdClearBlk").Use(send, "cmdCancel").Bytes());

  Sequence listed(HostManner::kAnswersInside);
  listed.Then(Call::kSizes, {0}).Then(Call::kArray, {0}).Then(Call::kGrid, {2, 7});
  listed.Then(Call::kIdentify, {0}).Command(11).Use(send, "optBlk(1)").Use(send, "cmdOK");
  listed.Then(Call::kWait, {6}).Use(send, "cmdStop").Use(send, "cmdOK").Then(Call::kAcknowledge);
  corpus.Add("send-listed", listed.Then(Call::kWait, {9}).Then(Call::kAcknowledge).Bytes());

  Sequence array(kPrompt);
  array.Then(Call::kSizes, {0}).Command(10).Use(receive, "cmdOK").Command(11);
  array.Use(send, "chkMacro(0)").Use(send, "cmdOK").Use(send, "cmdCancel").Command(14);
  corpus.Add("send-array", array.Bytes());
}

void NestedSeeds(const Corpus& corpus) {
  constexpr int kNested = HostManner::kActsInEvents | HostManner::kFails;
  corpus.Add("destroyed-in-request", Sequence(kNested | HostManner::kShortImage)
                                         .Command(10)
                                         .Then(static_cast<Call>(kGoOn))
                                         .Then(Call::kDestroy)
                                         .Then(Call::kCreate)
                                         .Bytes());
  corpus.Add("texts-of-the-host", Sequence(kNested | HostManner::kAnswersInside)
                                      .Then(Call::kTexts, {0})
                                      .Then(Call::kMenu)
                                      .Then(static_cast<Call>(kGoOn))
                                      .Command(16)
                                      .Command(10)
                                      .Then(Call::kProperties, {5})
                                      .Bytes());
  corpus.Add("properties", Sequence(kNested)
                               .Then(Call::kProperties, {3, 4})
                               .Then(Call::kProperties, {1, 0})
                               .Then(Call::kProperties, {5})
                               .Then(Call::kDevice, {0, 1, 3})
                               .Then(Call::kDevice, {2, 1, 5, 65})
                               .Then(Call::kBytes, {5, 1, 2, 3, 4, 5})
                               .Bytes());
}

}  // namespace

void CallSeeds(const Corpus& corpus) {
  DeviceHost host;
  host.device = DefaultImage(2);
  const auto receive = ControlsOf(host, 10);
  const auto send = ControlsOf(host, 11);
  EditorSeeds(corpus, host);
  ReceiveSeeds(corpus, receive);
  SendSeeds(corpus, receive, send);
  NestedSeeds(corpus);
}

}  // namespace quorvel::fuzz
