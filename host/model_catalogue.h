#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "quorvel/byte.h"
#include "ui/host_statements.h"

namespace quorvel {

struct Context;

/// Stores the connected device's identity: [1] cameras, [2] model code, from [3] the name. False,
/// and no change, for data of fewer than 4 bytes.
bool SaveConnectedIdentity(HostStatements& host, std::span<const Byte> data);

/// " (16 ch, Triplex NTSC)": which = 0 of the connected device, 1 of the image as it is decoded,
/// anything else of no device (0 channels, code 0).
[[nodiscard]] std::string ModelDescription(const Context& context, int which);

/// True when `code` is the NTSC or PAL twin of the connected model.
[[nodiscard]] bool IsVideoTwin(const ConnectedIdentity& connected, Byte code);

/// The connected device and that of the image, each as "UNIT 1 (16 ch, Triplex NTSC)", UTF-8.
struct IdentityMismatch {
  std::string connected;
  std::string of_image;
};

/// Nothing when the image may be written to the connected device. An image that was restored from a
/// file must come from a device of the same model, and of the same name where it holds one.
[[nodiscard]] std::optional<IdentityMismatch> FindIdentityMismatch(const Context& context);

/// True when there is no mismatch; otherwise a message tells it.
[[nodiscard]] bool CheckLoadedIdentity(Context& context);

}  // namespace quorvel
