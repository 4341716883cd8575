// A service: it has no screen, waits for a link that takes its time on a thread of its own, keeps a
// backup, changes a setting in the device and looks whether it has arrived.
#include <iostream>
#include <thread>

#include "array_device.h"
#include "own_platform.h"
#include "quorvel/main_menu_ctrl.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The way to the device. What it is asked to do it does on a thread of its own, on which it also
/// calls `done`, with what it has read.
class Link {
 public:
  using Done = std::function<void(Bytes read)>;

  Link() : thread_(&Link::Work, this) {}
  ~Link() {
    work_.Put(nullptr);
    thread_.join();
  }
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  void Read(std::uint8_t number, Done done) {
    work_.Put([this, number, done] { done(device_.Read(number)); });
  }
  void Write(Bytes packet, Done done) {
    work_.Put([this, packet, done] {
      device_.Write(packet);
      done({});
    });
  }

 private:
  void Work() {
    while (const auto task = work_.Take()) task();
  }

  ArrayDevice device_;
  TaskQueue work_;
  std::thread thread_;  // last: it uses the others
};

class Service : public quorvel::MainMenuEvents, public quorvel::TransferObserver {
 public:
  explicit Service(OwnPlatform& platform)
      : platform_(platform), control_(std::make_shared<quorvel::MainMenuCtrl>(platform, *this)) {
    control_->InitProperties();
    control_->Custom(18, 48, 1);
    control_->SaveConnectedInfo(ArrayDevice::Identity());
    control_->Observe(this);
  }

  /// Reads the device, whole; changes one setting, and sends what that has modified.
  bool Change(std::string_view name, std::string_view value, const std::string& backup) {
    if (!Receive()) return false;
    quorvel::ReplaceWholeFile(backup, control_->SaveSettings());
    const quorvel::SetAnswer answer = control_->SetSetting(name, value);
    if (answer != quorvel::SetAnswer::kSet) {
      std::cerr << name << ": " << quorvel::Describe(answer) << '\n';
      return false;
    }
    end_.reset();
    return control_->StartSend({.all_blocks = false}) && HasFinished();
  }
  [[nodiscard]] std::optional<std::string> ReadAgain(std::string_view name) {
    return Receive() ? control_->GetSetting(name) : std::nullopt;
  }

  // Events.
  void RequestBlk(std::uint8_t number) override {
    link_.Read(number, Posted([](auto& control, const Bytes& read) { control.FillDataBlk(read); }));
  }
  void DownLoadData(std::span<std::uint8_t> packet) override {
    const Bytes copy(packet.begin(), packet.end());  // the packet is there during the call only
    link_.Write(copy, Posted([](auto& control, const Bytes&) { control.TriggerUploadTimer(); }));
  }

  // The observer.
  void Ended(quorvel::TransferKind /*which*/, quorvel::TransferEnd end,
             std::string_view cause) override {
    end_ = end;
    if (!cause.empty()) std::cerr << cause << '\n';
  }

 private:
  using Answer = std::function<void(quorvel::MainMenuCtrl&, const Bytes&)>;

  /// Has the link's answer given on the control's thread, and only if the control is there then.
  Link::Done Posted(Answer answer) {
    return [&platform = platform_, control = std::weak_ptr(control_), answer](Bytes read) {
      platform.Post([control, answer, read] {
        if (const auto held = control.lock()) answer(*held, read);
      });
    };
  }
  bool Receive() {
    end_.reset();
    return control_->StartReceive() && HasFinished();
  }
  /// Waits until the transfer has ended, or for half a minute.
  bool HasFinished() {
    const auto patience = platform_.NewTimer([this] { control_->CancelTransfer(); });
    patience->SetInterval(30'000);
    patience->Start();
    platform_.RunUntil([this] { return end_.has_value(); });
    return end_ == quorvel::TransferEnd::kFinished;
  }

  OwnPlatform& platform_;
  std::shared_ptr<quorvel::MainMenuCtrl> control_;
  std::optional<quorvel::TransferEnd> end_;
  Link link_;
};

}  // namespace

int main(int argc, char** argv) {
  OwnPlatform platform(std::cerr);
  Service service(platform);
  const bool sent =
      service.Change("CamInfo(0).title", "Front door", argc > 1 ? argv[1] : "service-backup.cfg");
  const auto title = sent ? service.ReadAgain("CamInfo(0).title") : std::nullopt;
  std::cout << "The device's title is " << title.value_or("not known") << ".\n";
  return title == "\"Front door\"" ? 0 : 1;
}
