#include "muxhost/device/link_fault.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>

#include "quorvel/block_image.h"

namespace quorvel::muxhost {

namespace {

constexpr std::array<std::pair<std::string_view, FaultKind>, 10> kNames{{
    {"silent", FaultKind::kSilent},
    {"short", FaultKind::kShort},
    {"long", FaultKind::kLong},
    {"garbage", FaultKind::kGarbage},
    {"wrong", FaultKind::kWrong},
    {"duplicate", FaultKind::kDuplicate},
    {"late", FaultKind::kLate},
    {"drop", FaultKind::kDrop},
    {"stop", FaultKind::kStop},
    {"close", FaultKind::kClose},
}};

constexpr std::size_t kSurplus = 8;
constexpr std::size_t kHalfBlock = 8;
constexpr std::size_t kBlockCountLowByte = 10;  // of a combined array

bool IsNumbered(Traffic traffic) {
  return traffic == Traffic::kBlockReply || traffic == Traffic::kPacket;
}

bool MeansSomething(FaultKind kind, Traffic traffic) {
  switch (kind) {
    case FaultKind::kDrop: return traffic == Traffic::kPacket || traffic == Traffic::kArray;
    // Nothing acknowledges an array, and its dialog has no STOP.
    case FaultKind::kSilent:
    case FaultKind::kLate:
    case FaultKind::kStop: return traffic != Traffic::kArray;
    default: return true;
  }
}

Byte NextNoise(std::minstd_rand& noise) {
  constexpr unsigned kFlatBits = 8;  // the lowest bits of this generator vary least
  return static_cast<Byte>(noise() >> kFlatBits);
}

std::size_t PlaceOfNumber(Traffic traffic) {
  if (traffic == Traffic::kImageReply) return kBlockCountByte;
  return IsNumbered(traffic) ? 0 : kBlockCountLowByte;
}

/// 255 becomes 254, any other number the next one.
void ChangeNumber(Byte& number) {
  constexpr Byte kLast = 255;
  number = static_cast<Byte>(number == kLast ? number - 1 : number + 1);
}

}  // namespace

std::optional<FaultKind> FaultKindOf(std::string_view name) {
  for (const auto& [known, kind] : kNames) {
    if (known == name) return kind;
  }
  return std::nullopt;
}

std::string_view NameOf(FaultKind kind) {
  for (const auto& [name, known] : kNames) {
    if (known == kind) return name;
  }
  return {};
}

std::string Describe(const Fault& fault) {
  std::string text = std::string(NameOf(fault.kind)) + " at " + std::to_string(fault.at);
  if (fault.kind == FaultKind::kLate) text += " by " + std::to_string(fault.delay_ms) + " ms";
  return text;
}

std::optional<Fault> LinkFault::Strike(Traffic traffic) {
  ++count_;
  if (!pending_ || pending_->at != count_ || !MeansSomething(pending_->kind, traffic)) {
    return std::nullopt;
  }
  return std::exchange(pending_, std::nullopt);
}

void Spoil(FaultKind kind, Traffic traffic, std::vector<Byte>& bytes) {
  std::minstd_rand noise;
  switch (kind) {
    case FaultKind::kShort:
      bytes.resize(traffic == Traffic::kBlockReply ? std::min(bytes.size(), 1 + kHalfBlock)
                                                   : bytes.size() / 2);
      return;
    case FaultKind::kLong:
      for (std::size_t i = 0; i < kSurplus; ++i) bytes.push_back(NextNoise(noise));
      return;
    case FaultKind::kGarbage:
      for (std::size_t i = IsNumbered(traffic) ? 1 : 0; i < bytes.size(); ++i) {
        bytes[i] = NextNoise(noise);
      }
      return;
    case FaultKind::kWrong:
      if (PlaceOfNumber(traffic) < bytes.size()) ChangeNumber(bytes[PlaceOfNumber(traffic)]);
      return;
    default: return;
  }
}

}  // namespace quorvel::muxhost
