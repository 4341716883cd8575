#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "quorvel.h"

/// A host over the C interface, whose device is an array of 225 blocks.
struct CHost {
  static constexpr std::size_t kBlock = 16, kBlocks = 225;

  explicit CHost(quorvel_platform* on = nullptr) : platform(on), owns_platform(on == nullptr) {
    device.at(15) = kBlocks;
    device.at(184 * kBlock) = 4;        // cameras
    device.at(184 * kBlock + 1) = 7;    // model code
    device.at(184 * kBlock + 2) = 'T';  // model name
    quorvel_platform_events shown{};
    shown.size = sizeof shown;
    shown.user = this;
    shown.at_modal = [](void* user, quorvel_platform*, const char* window) {
      const auto& act = static_cast<CHost*>(user)->at_modal;
      return act ? act(window) : 0;
    };
    if (owns_platform) quorvel_platform_new(&shown, &platform);
    quorvel_events events{};
    events.size = sizeof events;
    events.user = this;
    events.request_blk = [](void* user, quorvel_control*, std::uint8_t number) {
      static_cast<CHost*>(user)->Answer(number);
    };
    events.upload_succeeded = [](void* user, quorvel_control*) {
      const auto& act = static_cast<CHost*>(user)->on_uploaded;
      if (act) act();
    };
    events.download_data = [](void* user, quorvel_control*, const std::uint8_t* packet,
                              std::size_t length) {
      static_cast<CHost*>(user)->Write(packet, length);
    };
    quorvel_control_new(platform, &events, &control);
    quorvel_observer observer{};
    observer.size = sizeof observer;
    observer.user = this;
    observer.progress = [](void* user, quorvel_control*, std::int32_t transfer, std::int32_t done,
                           std::int32_t total) {
      auto& told = *static_cast<CHost*>(user);
      told.progress = {transfer, done, total};
      if (const auto act = told.on_progress) act();
    };
    observer.ended = [](void* user, quorvel_control*, std::int32_t transfer, std::int32_t end,
                        const char* cause) {
      auto& told = *static_cast<CHost*>(user);
      told.ends += std::to_string(transfer) + " " + std::to_string(end) + " " + cause + "\n";
      if (const auto act = told.on_ended) act();
    };
    quorvel_control_observe(control, &observer);
    quorvel_control_custom(control, QUORVEL_COMMAND_DEVICE, 48, 1);
    const std::array<std::uint8_t, 4> identity{0, 4, 7, 'T'};
    quorvel_control_save_connected_info(control, identity.data(), identity.size());
  }
  ~CHost() {
    quorvel_control_free(control);
    if (owns_platform) quorvel_platform_free(platform);
  }
  CHost(const CHost&) = delete;
  CHost& operator=(const CHost&) = delete;

  void Answer(std::uint8_t number) {
    if (on_request) on_request();
    if (control == nullptr) return;
    std::array<std::uint8_t, 1 + kBlock> reply{number};
    std::memcpy(reply.data() + 1, device.data() + (number - 1U) * kBlock, kBlock);
    quorvel_control_fill_data_blk(control, reply.data(), reply.size());
  }
  void Write(const std::uint8_t* packet, std::size_t length) {
    ASSERT_EQ(length, 18U);
    if (packet[0] <= kBlocks) {
      written.push_back(packet[0]);
      std::memcpy(device.data() + (packet[0] - 1U) * kBlock, packet + 1, kBlock);
    }
    quorvel_control_trigger_upload_timer(control);
  }
  /// Command 10, whose dialog is closed with OK.
  void Receive() {
    at_modal = [this](const char*) { return quorvel_user_click(platform, "cmdOK") == QUORVEL_OK; };
    EXPECT_EQ(quorvel_control_custom(control, QUORVEL_COMMAND_RECEIVE, 0, 0), QUORVEL_OK);
  }
  void OpenMenu() {
    EXPECT_EQ(quorvel_control_custom(control, QUORVEL_COMMAND_MENU, 1, 0), QUORVEL_OK);
    EXPECT_EQ(quorvel_platform_run_until_idle(platform), QUORVEL_OK);
  }
  void Open(const char* item) {
    OpenMenu();
    EXPECT_EQ(quorvel_user_choose_menu(platform, item), QUORVEL_OK);
  }
  [[nodiscard]] std::string Setting(const char* name) const {
    std::array<char, 100> text{};
    const auto result = quorvel_control_get_setting(control, name, text.data(), text.size(), {});
    return result == QUORVEL_OK ? text.data() : quorvel_last_error();
  }
  void FreeControl() { quorvel_control_free(std::exchange(control, nullptr)); }

  quorvel_platform* platform;
  bool owns_platform;
  quorvel_control* control = nullptr;
  std::array<std::uint8_t, kBlocks * kBlock> device{};
  std::vector<std::uint8_t> written;
  std::function<int(const char*)> at_modal;
  std::function<void()> on_request, on_uploaded, on_progress, on_ended;
  std::array<int, 3> progress{};  ///< which, done, total
  std::string ends;               ///< a line for each: which, how, cause
};
