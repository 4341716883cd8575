#pragma once

#include "quorvel/events.h"

namespace quorvel {

/// The control's way to its host. Events of a control that the host has destroyed go nowhere.
class HostEvents : public MainMenuEvents {
 public:
  explicit HostEvents(MainMenuEvents& host) : host_(&host) {}
  void Detach() { host_ = nullptr; }

  void RequestComboBlocks() override {
    if (host_ != nullptr) host_->RequestComboBlocks();
  }
  void SendComboBlocks(std::span<std::uint8_t> cb_data) override {
    if (host_ != nullptr) host_->SendComboBlocks(cb_data);
  }
  void ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                          std::uint8_t param2) override {
    if (host_ != nullptr) host_->ULSucceededWithStr(mname, param1, param2);
  }
  void RequestBlk(std::uint8_t blknum) override {
    if (host_ != nullptr) host_->RequestBlk(blknum);
  }
  void UploadSucceeded() override {
    if (host_ != nullptr) host_->UploadSucceeded();
  }
  void DownLoadData(std::span<std::uint8_t> bdata) override {
    if (host_ != nullptr) host_->DownLoadData(bdata);
  }
  void ActGridPop(std::uint8_t maxcam) override {
    if (host_ != nullptr) host_->ActGridPop(maxcam);
  }
  void ActGridData(std::span<const std::uint8_t> barray) override {
    if (host_ != nullptr) host_->ActGridData(barray);
  }
  void Click() override {
    if (host_ != nullptr) host_->Click();
  }
  void DblClick() override {
    if (host_ != nullptr) host_->DblClick();
  }

 private:
  MainMenuEvents* host_;
};

}  // namespace quorvel
