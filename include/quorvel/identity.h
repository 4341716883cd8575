#pragma once

#include <string_view>

#include "quorvel/block_image.h"
#include "quorvel/byte.h"
#include "quorvel/export.h"

namespace quorvel {

/// What the image says about the device it belongs to; recomputed at every decode.
struct Identity {
  Byte MaxCam = 0;     ///< cameras, 0 to 16: block 185 byte 0
  Byte ModelCode = 0;  ///< block 185 byte 1 without bit 7
  bool LiteRecordModel = false;
  bool Model4L = false;
  Byte MatrixModel = 0;  ///< 1 for a matrix model, else 0
  bool LumacastModel = false;
  bool PlexarProModel = false;
  bool ExtendedImage = false;  ///< 225 blocks or more
  Byte RecorderKind = 0;       ///< block 182 byte 8; for code 0 from the model name: 0, 1 or 2
  Byte VariantChar = 0;        ///< character code: block 183 byte 7
  Byte ArchOption = 0;         ///< archive ports: block 184 byte 12

  /// Model families by code: 0 multiplexer, 1 DVR, 2 to 5 duplex, 6 and above triplex.
  [[nodiscard]] bool IsMultiplexer() const { return ModelCode == 0; }
  [[nodiscard]] bool HasEventRecording() const { return ModelCode >= 2; }
  [[nodiscard]] bool IsTriplex() const { return ModelCode >= 6; }
  [[nodiscard]] bool IsTriplexMatrix() const { return IsTriplex() && MatrixModel == 1; }
};

/// The identity that an image states. Throws ImageError when the image is shorter than its own
/// count says, or names more cameras than a record holds. Block 185 is the identity whatever that
/// count is; an image that ends before it has none: 16 cameras, model code 0, all flags false.
/// RecorderKind, VariantChar and ArchOption come with their blocks.
[[nodiscard]] QUORVEL_API Identity ReadIdentity(const BlockImage& image);

/// Writes cameras, model code and name (14 characters, padded with zero bytes) into block 185.
QUORVEL_API void WriteIdentityBlock(BlockImage& image, Byte cameras, Byte model_code,
                                    std::string_view name);

/// What a model code stands for, in English: "Triplex NTSC" for 6; empty for an unknown code. Codes
/// count from 0 without gaps.
[[nodiscard]] QUORVEL_API std::string_view ModelText(int code);

}  // namespace quorvel
