#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "quorvel/block_image.h"
#include "quorvel/default_images.h"
#include "quorvel/headless_platform.h"
#include "quorvel/identity.h"
#include "quorvel/main_menu_ctrl.h"
#include "quorvel/whole_files.h"
#include "tests/allocation/failing_allocation.h"

namespace quorvel {
namespace {

namespace fs = std::filesystem;

using Bytes = std::vector<std::uint8_t>;

/// What must be all of before or all of after.
struct State {
  Bytes image;
  std::vector<SettingLine> settings;
  Bytes modified;
  Bytes file;
  bool operator==(const State&) const = default;
};

/// A control with an edited configuration, the host's device, a file, and the user. The host's and
/// the user's own memory never fails.
class Desk : public HeadlessPlatform, public MainMenuEvents, public TransferObserver {
 public:
  static constexpr std::uint8_t kZones = 1;  ///< the edit: the grid of camera 1, all of this byte

  explicit Desk(const std::string& folder)
      : folder_(::testing::TempDir() + "quorvel_scarce_" + folder), device_(LoadDefaultImage(401)) {
    constexpr Byte kCameras = 4;
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    device_.ResizeBlocks(kBlocks);
    device_.Block(1)[kBlockCountByte] = kBlocks;
    WriteIdentityBlock(device_, kCameras, 6, "UNIT 1");
    control_ = std::make_unique<MainMenuCtrl>(*this, *this);
    control_->InitProperties();
    control_->SaveConnectedInfo(Bytes{0, kCameras, 6, 'U', 'N', 'I', 'T', ' ', '1'});
    // In one piece, which is quick.
    control_->HostCommId(1);
    Bytes image(device_.Bytes().begin(), device_.Bytes().end());
    image.push_back(0);
    control_->Custom(10, 0, 0);
    control_->FillDataBlk(image);
    control_->HostCommId(0);
    control_->UpdateActGrid(Bytes(33, kZones));
    device_.Block(2)[0] = 'D';
    PutIntoFile(Bytes(5000, 'O'));
    at_modal = [this](Dialog& dialog) { return Attend(dialog); };
    TakeMessages();
  }
  ~Desk() override { fs::remove_all(folder_); }
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  // What is put to the test.

  template <int kCommand>
  void Command() {
    Call([this] { control_->Custom(kCommand, 0, 0); });
  }
  void Upload() {
    started_ = false;
    Command<11>();
  }
  void Receive() {
    control_->Observe(this);
    Call([this] { control_->StartReceive(); });
    Call([this] { RunUntilIdle(); });
  }
  void Send() {
    const bool combined = !combined_.empty();
    control_->Observe(this);
    Call([&] { control_->StartSend({combined, true, combined, false}); });
    Call([this] { RunUntilIdle(); });
  }
  void Load() {
    Call([this] { told += control_->LoadSettings(combined_).loaded ? 0 : 1; });
  }
  void OpenEditor() {
    Call([this] { control_->Custom(15, 1, 0); });
    Call([this] { RunUntilIdle(); });
    if (MenuIsUp()) Call([this] { ChooseMenu(item_); });
  }
  void PressOk() {
    if (Editor() != nullptr) Call([this] { Editor()->Find<Button>("cmd_OK").Click(); });
    Call([this] { RunUntilIdle(); });
  }

  // What comes before.

  void BeCombined() {
    control_->FillComboInfo(Bytes{0, 4, 2, 0, kBlocks, 5, 6});
    combined_ = {0, 13, 0x0E, 0x10, 0, 8, 0, 4, 2, 0, kBlocks, 5, 6};
    combined_.insert(combined_.end(), device_.Bytes().begin(), device_.Bytes().end());
    combined_.resize(combined_.size() + 8, 'M');
  }
  void HaveFewBlocks() {
    constexpr Byte kFew = 20;
    device_.ResizeBlocks(kFew);
    device_.Block(1)[kBlockCountByte] = kFew;
  }
  void PutDeviceIntoFile() { PutIntoFile(device_.Bytes()); }
  void PutArrayIntoFile() {
    BeCombined();
    PutIntoFile(combined_);
  }
  void OpenCamerasAndType() {
    OpenEditor();
    Editor()->Find<TextBox>("m_CameraTitle(0)").Type("Typed");
  }
  void OpenAlarmsAndType() {
    item_ = "mnu_Alarm";
    OpenEditor();
    auto& tabs = Editor()->Find<TabStrip>("SSTab1");
    tabs.Choose(5);
    Editor()->Find<OptionButton>("opt_AlLatch(1)").Click();
    tabs.Choose(7);
    Editor()->Find<TextBox>("txtUser1Addr").Type("a.long.name.of.a.user@a.long.name.of.a.domain");
  }

  // What came of it.

  [[nodiscard]] State Present() const {
    return {control_->Image(), control_->Settings(), control_->ModifiedBlocks(), File()};
  }
  [[nodiscard]] std::size_t DifferencesFrom(const Bytes& image) const {
    return control_->DifferencesFrom(image).value().size();
  }
  [[nodiscard]] Dialog* Editor() const {
    for (Dialog* const dialog : Windows()) {
      if (dialog->Name() != "frm_ULFrMux" && dialog->Name() != "frm_ToMux") return dialog;
    }
    return nullptr;
  }
  [[nodiscard]] Bytes File() const { return ReadWholeFile(Path()); }
  [[nodiscard]] const BlockImage& Device() const { return device_; }
  [[nodiscard]] const Bytes& SentArray() const { return sent_array_; }
  [[nodiscard]] std::ptrdiff_t Files() const {
    return std::distance(fs::directory_iterator(folder_), {});
  }
  int escaped = 0;  ///< failures that have left a call of the control, or a verb
  int told = 0;     ///< failures that the user was told of

  // The platform and the host.

  bool Ask(const Message& message) override {
    if (message.text.starts_with("Error found in ")) ++told;
    return true;
  }
  void Ended(TransferKind /*which*/, TransferEnd end, std::string_view /*cause*/) override {
    if (end != TransferEnd::kFinished) ++told;
  }
  std::optional<std::string> AskFile(const FileRequest& /*request*/) override { return Path(); }
  void RequestBlk(std::uint8_t number) override {
    const MemoryForAll host;
    Post([this, number] { Answer(number); });
  }
  void RequestComboBlocks() override {
    const MemoryForAll host;
    Post([this] { Call([this] { control_->FillComboBlk(combined_); }); });
  }
  void DownLoadData(std::span<std::uint8_t> packet) override {
    if (packet[0] != 255) {
      std::copy(packet.begin() + 1, packet.begin() + 17, device_.Block(packet[0]).begin());
    }
    Call([this] { control_->TriggerUploadTimer(); });
  }
  void SendComboBlocks(std::span<std::uint8_t> array) override {
    const MemoryForAll host;
    sent_array_.assign(array.begin(), array.end());
  }

 private:
  static constexpr Byte kBlocks = 225;

  template <class Body>
  void Call(Body&& body) {
    try {
      body();
    } catch (...) {
      ++escaped;
    }
  }
  void Answer(int number) {
    std::array<std::uint8_t, 17> reply{static_cast<std::uint8_t>(number)};
    std::ranges::copy(device_.Block(number), reply.begin() + 1);
    Call([&] { control_->FillDataBlk(reply); });
  }
  [[nodiscard]] bool Press(Dialog& dialog, const char* button) {
    bool done = false;
    Call([&] { done = dialog.Find<Button>(button).Click() == quorvel::Answer::kDone; });
    return done;
  }
  /// Receives and presses OK; sends the modified blocks, or the whole array, and closes.
  bool Attend(Dialog& dialog) {
    if (dialog.Name() == "frm_ULFrMux") return Press(dialog, "cmdOK");
    if (std::exchange(started_, true)) {
      return !dialog.Find<Button>("cmdStop").Visible() && Press(dialog, "cmdCancel");
    }
    Call([&] {
      if (combined_.empty()) {
        dialog.Find<OptionButton>("optBlk(1)").Click();
      } else {
        dialog.Find<CheckBox>("chkMacro(0)").Click();
      }
    });
    return Press(dialog, "cmdOK");
  }
  void PutIntoFile(std::span<const std::uint8_t> bytes) const {
    std::ofstream file(Path(), std::ios::binary);
    for (const std::uint8_t byte : bytes) file.put(static_cast<char>(byte));
  }
  [[nodiscard]] std::string Path() const { return (folder_ / "settings.bin").string(); }

  fs::path folder_;
  BlockImage device_;
  std::unique_ptr<MainMenuCtrl> control_;
  Bytes combined_;
  Bytes sent_array_;
  const char* item_ = "mnu_CSetup";  ///< the menu's, that opens the editor
  bool started_ = false;             ///< START was pressed
};

/// Something that a user or a host does, what comes before it, and whether it is done.
struct Operation {
  const char* name;
  void (Desk::*prepare)();
  void (Desk::*run)();
  bool (*done)(const Desk& desk);
};

bool EditorIsOpen(const Desk& desk) { return desk.Editor() != nullptr; }
bool EditorIsClosed(const Desk& desk) { return desk.Editor() == nullptr; }
bool NothingIsModified(const Desk& desk) { return desk.Present().modified.empty(); }
/// The edit is in an image, or behind the header of an array.
bool HasZones(std::span<const std::uint8_t> bytes, std::size_t header = 0) {
  const std::size_t at = header + 88 * kBlockSize - 1;
  return bytes.size() > at && bytes[at] == Desk::kZones;
}
bool ZonesAreInFile(const Desk& desk) { return HasZones(desk.File()); }
bool ZonesAreInArrayFile(const Desk& desk) { return HasZones(desk.File(), 13); }
bool ZonesAreInDevice(const Desk& desk) { return HasZones(desk.Device().Bytes()); }
bool ZonesAreInArray(const Desk& desk) { return HasZones(desk.SentArray(), 13); }

const Operation kOperations[] = {
    {"DownloadOfBlocks", &Desk::HaveFewBlocks, &Desk::Command<10>, NothingIsModified},
    {"DownloadOfAnArray", &Desk::BeCombined, &Desk::Command<10>, NothingIsModified},
    {"RestoreOfAnImage", &Desk::PutDeviceIntoFile, &Desk::Command<12>, NothingIsModified},
    {"RestoreOfAnArray", &Desk::PutArrayIntoFile, &Desk::Command<12>, NothingIsModified},
    {"SaveOfAnImage", nullptr, &Desk::Command<14>, ZonesAreInFile},
    {"SaveOfAnArray", &Desk::BeCombined, &Desk::Command<14>, ZonesAreInArrayFile},
    {"UploadOfBlocks", nullptr, &Desk::Upload, ZonesAreInDevice},
    {"UploadOfAnArray", &Desk::BeCombined, &Desk::Upload, ZonesAreInArray},
    {"ReceiveOfBlocks", &Desk::HaveFewBlocks, &Desk::Receive, NothingIsModified},
    {"ReceiveOfAnArray", &Desk::BeCombined, &Desk::Receive, NothingIsModified},
    {"SendOfBlocks", nullptr, &Desk::Send, ZonesAreInDevice},
    {"SendOfAnArray", &Desk::BeCombined, &Desk::Send, ZonesAreInArray},
    {"LoadOfAnArray", &Desk::BeCombined, &Desk::Load, NothingIsModified},
    {"OpeningAnEditor", nullptr, &Desk::OpenEditor, EditorIsOpen},
    {"OkOfCameras", &Desk::OpenCamerasAndType, &Desk::PressOk, EditorIsClosed},
    {"OkOfAlarms", &Desk::OpenAlarmsAndType, &Desk::PressOk, EditorIsClosed},
};

void PrintTo(const Operation& operation, std::ostream* out) { *out << operation.name; }

class ScarceMemory : public ::testing::TestWithParam<Operation> {
 protected:
  void Prepare() {
    desk_.reset();
    desk_ = std::make_unique<Desk>(GetParam().name);
    if (GetParam().prepare != nullptr) (*desk_.*GetParam().prepare)();
    desk_->told = 0;
  }
  void Run() { (*desk_.*GetParam().run)(); }
  [[nodiscard]] bool Done() const { return GetParam().done(*desk_); }

  /// True for the old state, as far as it can be edited, with the edits in the image: saving and
  /// sending put them there first.
  [[nodiscard]] bool IsEncoded(State before) const {
    before.image = desk_->Present().image;
    return desk_->Present() == before && desk_->DifferencesFrom(before.image) == 0;
  }

  std::unique_ptr<Desk> desk_;
};

/// Whichever request for memory fails: the state is that of before or that of after, a failure is
/// told, and the same can be done again.
TEST_P(ScarceMemory, LeavesTheOldOrTheNew) {
  Prepare();
  const State before = desk_->Present();
  const auto files = desk_->Files();
  Run();
  const State after = desk_->Present();
  ASSERT_TRUE(Done());
  bool struck = true;
  for (long nth = 1; struck && !HasFailure(); ++nth) {
    SCOPED_TRACE(nth);
    Prepare();
    {
      const FailingAllocation failing(nth);
      Run();
      struck = failing.Struck();
    }
    EXPECT_EQ(desk_->escaped, 0);
    const State present = desk_->Present();
    EXPECT_TRUE(present == before || present == after || IsEncoded(before));
    EXPECT_TRUE(Done() || desk_->told > 0);
    EXPECT_EQ(desk_->Files(), files);
    if (Done()) {
      EXPECT_EQ(present.settings, after.settings);
    } else {
      Run();
      EXPECT_TRUE(Done());
      EXPECT_TRUE(desk_->Present() == after);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Operations, ScarceMemory, ::testing::ValuesIn(kOperations),
                         [](const auto& operation) { return operation.param.name; });

}  // namespace
}  // namespace quorvel
