#pragma once

#include "quorvel.h"
#include "quorvel/events.h"
#include "quorvel/platform.h"

namespace quorvel::c {

/// Raises a control's events in its C host. A host may free the control from inside any of them:
/// nothing here is touched afterwards.
class HostEvents final : public MainMenuEvents {
 public:
  HostEvents(quorvel_control* control, const quorvel_events& events, const quorvel::Platform& texts)
      : control_(control), events_(events), texts_(texts) {}

  void RequestComboBlocks() override;
  void SendComboBlocks(std::span<std::uint8_t> cb_data) override;
  void ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                          std::uint8_t param2) override;
  void RequestBlk(std::uint8_t blknum) override;
  void UploadSucceeded() override;
  void DownLoadData(std::span<std::uint8_t> bdata) override;
  void ActGridPop(std::uint8_t maxcam) override;
  void ActGridData(std::span<const std::uint8_t> barray) override;
  void Click() override;
  void DblClick() override;

 private:
  template <class... Arguments>
  void Raise(void (*event)(void*, quorvel_control*, Arguments...), Arguments... arguments) const {
    if (event != nullptr) event(events_.user, control_, arguments...);
  }

  quorvel_control* control_;
  quorvel_events events_;
  const quorvel::Platform& texts_;
};

}  // namespace quorvel::c
