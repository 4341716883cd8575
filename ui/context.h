#pragma once

#include <string>

#include "core/device_state.h"
#include "quorvel/platform.h"
#include "ui/edges.h"
#include "ui/host_statements.h"
#include "ui/texts/text_catalogue.h"

namespace quorvel {

/// What the parts of one control share. Each control owns one, so two controls in a process edit
/// two devices. It outlives every dialog and sequence that refers to it. What needs a part of it
/// only takes that part.
struct Context {
  explicit Context(Platform& the_platform) : platform(the_platform), edges(the_platform) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;
  ~Context() = default;

  Platform& platform;
  TextCatalogue texts;
  DeviceState device;
  HostStatements host;
  Edges edges;

  [[nodiscard]] std::string GetText(int id) const { return texts.GetText(id); }
  /// Before a new image comes: the computer's clock is no longer wanted, the ready-made texts
  /// exist.
  void InitGlobals();
  /// Encodes the blocks that are listed as modified from the record into the image.
  void EncodeListedBlocks();
  /// The device's firmware version, 506 for 5.06: as the host has stated it, else as the combined
  /// array says; 0 when neither does.
  [[nodiscard]] int DeviceFirmware() const;
};

}  // namespace quorvel
