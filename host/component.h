#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/survey.h"
#include "host/activity_grid.h"
#include "host/download.h"
#include "host/host_events.h"
#include "host/receive_dialog.h"
#include "host/send_dialog.h"
#include "host/upload.h"
#include "quorvel/control_surface.h"
#include "quorvel/property_bag.h"
#include "quorvel/review.h"
#include "quorvel/settings.h"
#include "quorvel/transfer.h"
#include "ui/context.h"
#include "ui/menu/frm_menu.h"
#include "ui/review/reviewer.h"
#include "ui/widgets/failure.h"

namespace quorvel {

/// What is behind a MainMenuCtrl. It outlives a control that is destroyed from inside an event or a
/// dialog, until the last of its routines has returned.
class Component : public std::enable_shared_from_this<Component> {
 public:
  static std::shared_ptr<Component> Create(Platform& platform, MainMenuEvents& host);
  Component(Platform& platform, MainMenuEvents& host);

  /// Runs a call of the host as an edge, and keeps the component alive meanwhile.
  template <class Body>
  void Call(std::string_view routine, Body&& body) {
    context.edges.Guard(routine, body);
  }

  void InitProperties();
  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag);
  /// The control is gone: no more events, no dialogs, no menu.
  void Terminate();
  /// Menu and editors leave the screen.
  void CloseMenu();

  void Custom(std::int16_t command, std::int32_t param1, std::int32_t param2);
  void CustomWithString(std::int16_t command, std::string_view text);
  void SaveConnectedInfo(std::span<const Byte> data);
  void UpdateActGrid(std::span<const Byte> data);
  void FillComboInfo(std::span<const Byte> data);
  void FillDataBlk(std::span<const Byte> data) { download_.TakeReply(data); }
  void FillComboBlk(std::span<const Byte> data) { download_.TakeComboArray(data); }
  [[nodiscard]] bool HasImage() const { return context.device.HasImage(); }
  /// What the control holds; only where there is an image.
  [[nodiscard]] Configuration Present();
  SetAnswer SetSetting(std::string_view name, std::string_view value);
  [[nodiscard]] std::vector<Byte> EditedImage();
  [[nodiscard]] std::optional<std::vector<SettingDifference>> DifferencesFrom(
      std::span<const Byte> image);
  [[nodiscard]] LoadAnswer LoadSettings(std::span<const Byte> file);
  [[nodiscard]] LoadAnswer LoadDefaults(Byte cameras, Byte model_code, std::string_view model_name,
                                        char variant);
  void UsePcTime(bool use);
  [[nodiscard]] bool Undo() { return GoAStep(&DeviceState::Undo); }
  [[nodiscard]] bool Redo() { return GoAStep(&DeviceState::Redo); }
  [[nodiscard]] std::string TextOf(const StepName& step);
  [[nodiscard]] std::vector<ReviewLine> Review();
  [[nodiscard]] FileReview Review(std::span<const Byte> file);
  [[nodiscard]] std::vector<SettingRow> AllSettings();
  [[nodiscard]] bool TakeBack(const ReviewLine& line);
  [[nodiscard]] bool OpenAt(const SettingPosition& position);
  void Observe(TransferObserver* observer) { host_.Observe(observer); }
  [[nodiscard]] bool StartReceive();
  [[nodiscard]] bool StartSend(const SendChoice& choice);
  void CancelTransfer();
  [[nodiscard]] ControlState State() const;
  void TriggerUploadTimer() { upload_.TriggerTimer(); }

  Context context;
  ControlSurface surface;
  bool properties_changed = false;

 private:
  [[nodiscard]] bool GoAStep(bool (DeviceState::*go)());
  /// A call that changes nothing.
  void Ignored(const std::string& what) const;
  void OpenMenu(std::int16_t link);
  void SendActivityGrid(int camera);

  HostEvents host_;
  SendDialog send_dialog_;
  Upload upload_;
  ReceiveDialog receive_dialog_;
  Download download_;
  std::shared_ptr<frm_Menu> frmMPop;
  ActivityGridBytes ActGridBuf{};
  Reviewer reviewer_{context};
};

}  // namespace quorvel
