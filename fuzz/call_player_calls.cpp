#include <array>
#include <limits>

#include "fuzz/call_player.h"
#include "fuzz/check.h"
#include "fuzz/material.h"
#include "fuzz/random_user.h"
#include "quorvel/identity.h"
#include "tests/host/text_source.h"

namespace quorvel::fuzz {

namespace {

constexpr std::string_view kTextClass = "Fuzz.Texts";

/// How bytes are mangled on their way. Other values: not at all.
enum Mangle : Byte { kWhole, kOtherNumber, kShort, kLong, kNoBytes, kPoked };

void CheckZero(std::int32_t result) { Check(result == 0, "every call returns 0"); }

}  // namespace

/// Texts from the host: odd ones, none, and some during which the host goes on.
std::string CallPlayer::AnswerText(std::int32_t id) {
  // Tables of texts are made at once; the sequence must not be spent on them.
  if (id % 8 == 3) InEvent();
  switch (id % 5) {
    case 0: return "";
    case 1: return "\xC3";
    case 2: throw HostFault();
    default: return "text " + std::to_string(id);
  }
}

void CallPlayer::Make(Call call) {
  switch (call) {
    case Call::kWait: return desk_.Advance(10 * in_.Next());
    case Call::kUser: return UseFrontWindow();
    case Call::kDevice: return ChangeDevice();
    case Call::kDisk: desk_.disk_fails = in_.Next() % 2 == 1; return;
    case Call::kCreate: return Create();
    default: break;
  }
  if (control_ == nullptr) return;
  switch (call) {
    case Call::kCustom: return Custom();
    case Call::kReply: return Reply(requested_, in_.Next());
    case Call::kAcknowledge: return Acknowledge();
    case Call::kIdentify: return Identify();
    case Call::kSizes: return StateSizes();
    case Call::kArray: return HandOverArray(in_.Next());
    case Call::kWholeImage: return HandOverImage(in_.Next());
    case Call::kBytes: return CheckZero(control_->FillDataBlk(in_.Take(in_.Next())));
    case Call::kGrid: return ChangeGrid();
    case Call::kProperties: return ChangeProperties();
    case Call::kTexts: return UseTexts();
    case Call::kDestroy: outstanding_ = 0; return control_.reset();
    case Call::kMenu: return OpenOrUseMenu();
    case Call::kStartReceive: control_->StartReceive(); return;
    case Call::kStartSend: return StartSend();
    case Call::kCancel: return control_->CancelTransfer();
    case Call::kLoad: return Load();
    case Call::kDefaults: return LoadDefaults();
    case Call::kSave: return SaveAndLoad();
    default: return;
  }
}

void CallPlayer::OpenOrUseMenu() {
  constexpr int kPopupDelay = 5;
  // It comes up by itself after an editor is closed or a language is chosen.
  if (!desk_.MenuIsUp()) desk_.Advance(kPopupDelay);
  if (desk_.MenuIsUp()) return UseMenu(desk_, in_);
  if (control_ != nullptr) CheckZero(control_->Custom(15, 1, 0));
  desk_.Advance(kPopupDelay);
}

void CallPlayer::StartSend() {
  const Byte choice = in_.Next();
  control_->StartSend({(choice & 1) != 0, (choice & 2) == 0, (choice & 4) == 0, (choice & 8) != 0});
}

void CallPlayer::Load() {
  std::vector<Byte> bytes(device_.Bytes().begin(), device_.Bytes().end());
  const Byte choice = in_.Next();
  if (choice % 4 == 1) bytes = CombinedBytes(device_, 16, 2);
  if (choice % 4 == 2)
    bytes.resize(std::min<std::size_t>(bytes.size(), std::size_t{16} * in_.Next()));
  if (choice % 4 == 3) {
    const auto any = in_.Take(in_.Next());
    bytes.assign(any.begin(), any.end());
  }
  const auto before = control_->Image();
  const LoadAnswer answer = Loaded([&] { return control_->LoadSettings(bytes); });
  Check(answer || !answer.cause.empty(), "a refusal has a cause");
  Check(answer || control_->Image() == before, "a refusal changes nothing");
}

void CallPlayer::LoadDefaults() {
  const Byte cameras = in_.Next() % 18;
  const Byte code = in_.Next();
  const char variant = static_cast<char>(in_.Next());
  Loaded([&] { return control_->LoadDefaults(cameras, code, "UNIT", variant); });
}

void CallPlayer::SaveAndLoad() {
  const auto bytes = control_->SaveSettings();
  Check(bytes.empty() == !control_->State().has_image, "an image can be saved");
  if (!bytes.empty()) Loaded([&] { return control_->LoadSettings(bytes); });
}

/// The observer may have gone on with the sequence when this returns, unless it was refused.
LoadAnswer CallPlayer::Loaded(const std::function<LoadAnswer()>& load) {
  const bool was_emptied = std::exchange(list_was_emptied_, false);
  LoadAnswer answer = load();
  if (!answer) list_was_emptied_ = was_emptied;
  return answer;
}

std::int32_t CallPlayer::Parameter() {
  const Byte byte = in_.Next();
  switch (byte) {
    case 255: return std::numeric_limits<std::int32_t>::max();
    case 254: return std::numeric_limits<std::int32_t>::min();
    case 253: return -1;
    case 252: return 65536;
    default: return byte;
  }
}

/// Commands 9 to 18 by their place, any other as two bytes.
void CallPlayer::Custom() {
  constexpr int kFirst = 9;
  int command = kFirst + in_.Below(11);
  if (command == kFirst + 10) {
    command = in_.Next() * 256;
    command += in_.Next();
  }
  const std::int32_t param1 = Parameter();
  const std::int32_t param2 = Parameter();
  CheckZero(control_->Custom(static_cast<std::int16_t>(command), param1, param2));
}

void CallPlayer::Reply(Byte number, Byte mangle) {
  if (mangle == kOtherNumber) number = in_.Next();
  std::vector<Byte> reply{number};
  if (device_.Holds(number)) {
    const auto block = device_.Block(number);
    reply.insert(reply.end(), block.begin(), block.end());
  } else {
    reply.resize(1 + kBlockSize);
  }
  if (mangle == kShort) reply.resize(std::size_t{1} + in_.Next() % 16U);
  if (mangle == kLong) reply.resize(std::size_t{17} + in_.Next() % 64U);
  if (mangle == kNoBytes) reply.clear();
  CheckZero(control_->FillDataBlk(reply));
}

void CallPlayer::UseFrontWindow() {
  if (desk_.Windows().empty()) return;
  const bool listed = control_ != nullptr && !control_->ModifiedBlocks().empty();
  UseAny(*desk_.Windows().back(), in_);
  if (listed && control_ != nullptr && control_->ModifiedBlocks().empty()) list_was_emptied_ = true;
}

void CallPlayer::Acknowledge() {
  if (control_ == nullptr) return;
  if (outstanding_ == 0 && !Is(HostManner::kAcknowledgesAny)) return;
  outstanding_ = 0;
  CheckZero(control_->TriggerUploadTimer());
}

void CallPlayer::Identify() {
  if (in_.Next() % 2 == 1) {
    return CheckZero(
        control_->SaveConnectedInfo(in_.Take(static_cast<std::size_t>(in_.Below(20)))));
  }
  std::vector<Byte> identity{0, kMostCameras, 6, 'T', 'X', '1', '6'};
  if (device_.Holds(kIdentityBlock)) {
    const auto block = device_.Block(kIdentityBlock);
    std::copy(block.begin(), block.begin() + 6, identity.begin() + 1);
  }
  CheckZero(control_->SaveConnectedInfo(identity));
}

void CallPlayer::StateSizes() {
  if (in_.Next() % 2 == 1) {
    return CheckZero(control_->FillComboInfo(in_.Take(static_cast<std::size_t>(in_.Below(9)))));
  }
  const std::vector<Byte> sizes{0, 16, 2, 0, device_.BlkCountOrZero(), 5, 6};
  CheckZero(control_->FillComboInfo(sizes));
}

void CallPlayer::HandOverArray(Byte mangle) {
  std::vector<Byte> array = CombinedBytes(device_, 16, 2);
  if (mangle == kShort)
    array.resize(std::min<std::size_t>(array.size(), std::size_t{16} * in_.Next()));
  if (mangle == kNoBytes) array.clear();
  if (mangle == kPoked) {
    Byte& field = array[static_cast<std::size_t>(in_.Below(13))];
    field = in_.Next();
  }
  CheckZero(control_->FillComboBlk(array));
}

void CallPlayer::HandOverImage(Byte mangle) {
  std::vector<Byte> bytes(device_.Bytes().begin(), device_.Bytes().end());
  bytes.push_back(0);
  if (mangle == kShort)
    bytes.resize(std::min<std::size_t>(bytes.size(), std::size_t{16} * in_.Next()));
  if (mangle == kNoBytes) bytes.clear();
  CheckZero(control_->FillDataBlk(bytes));
}

void CallPlayer::ChangeGrid() {
  std::vector<Byte> grid(33);
  const Byte camera = in_.Next();
  std::fill(grid.begin(), grid.end(), in_.Next());
  grid[0] = camera;
  if (camera % 8 == 7) grid.resize(static_cast<std::size_t>(in_.Below(40)));
  CheckZero(control_->UpdateActGrid(grid));
}

void CallPlayer::ChangeDevice() {
  switch (in_.Next() % 4) {
    case 0: {
      device_ = DefaultImage(in_.Below(3));
      const Byte blocks = std::max<Byte>(in_.Next(), 1);
      device_.ResizeBlocks(blocks);
      device_.Block(1)[kBlockCountByte] = blocks;
      return;
    }
    case 1:
      if (device_.Holds(kIdentityBlock)) {
        const Byte cameras = in_.Next();
        WriteIdentityBlock(device_, cameras % 18, in_.Next(), "OTHER");
      }
      return;
    default: {
      const int block = in_.Next();
      const auto byte = static_cast<std::size_t>(in_.Below(kBlockSize));
      const Byte value = in_.Next();
      if (device_.Holds(block)) device_.Block(block)[byte] = value;
      return;
    }
  }
}

void CallPlayer::ChangeProperties() {
  MemoryPropertyBag bag;
  switch (in_.Below(9)) {
    case 0: return control_->HostCommId(in_.Next());
    case 1: return control_->Enabled(in_.Next() % 2 == 1);
    case 2: return control_->Font({"Other", 8.0, true, false});
    case 3: bag.Write("HostCommId", in_.Next()); return control_->ReadProperties(bag);
    case 4: return control_->WriteProperties(bag);
    case 5: control_->Surface().Click(); return;
    case 6: control_->Surface().DoubleClick(); return;
    case 7: return control_->Refresh();
    default: return control_->InitProperties();
  }
}

void CallPlayer::UseTexts() {
  constexpr std::int16_t kTextSource = 191;
  const Byte choice = in_.Next();
  const auto command = choice % 8 == 7 ? std::int16_t{choice} : kTextSource;
  CheckZero(control_->CustomWithString(command, 0, 0, choice % 4 == 3 ? "None" : kTextClass));
}

void CallPlayer::Create() {
  RegisterTexts(desk_.Classes(), std::string(kTextClass),
                [this](std::int32_t id) { return AnswerText(id); });
  outstanding_ = 0;
  list_was_emptied_ = false;
  control_ = std::make_unique<MainMenuCtrl>(desk_, *this);
  control_->InitProperties();
  control_->Observe(this);
}

}  // namespace quorvel::fuzz
