#pragma once

#include <QString>
#include <span>

#include "muxhost/block_states.h"
#include "muxhost/device/link_fault.h"
#include "muxhost/exchange.h"
#include "muxhost/host_session.h"
#include "quorvel/platform.h"

namespace quorvel::muxhost {

/// "3, 12, 40-45".
[[nodiscard]] QString InWords(std::span<const Byte> numbers);

/// What the fault does to what crosses the link: "no answer comes".
[[nodiscard]] QString InWords(FaultKind kind);

[[nodiscard]] QString InWords(BlockState state);

/// "TX16:  Triplex NTSC, 16 cameras, 225 blocks, single blocks".
[[nodiscard]] QString Describe(const SimulatedDevice& device, const Platform& platform);
/// The device's name as text.
[[nodiscard]] QString NameOf(const SimulatedDevice& device, const Platform& platform);

/// "The configuration has nothing for blocks 201-225 of the device."; empty without blocks.
[[nodiscard]] QString LackingInWords(std::span<const Byte> blocks);

/// An entry of the session's log as a sentence.
[[nodiscard]] QString Sentence(const QString& entry);
/// Why the device was not read, which its reader gives in English.
[[nodiscard]] QString Reason(const QString& reason);

/// An entry that says the same of many blocks, one after the other.
struct BlockEntry {
  QString about;   ///< what it says: its text with %1 for the block number
  int number = 0;  ///< block number
  /// The sentence about the blocks from `first` on.
  [[nodiscard]] QString SentenceFrom(int first) const;
};
/// That entry; `about` is empty for one of another kind.
[[nodiscard]] BlockEntry AsBlockEntry(const QString& entry);

/// What is to be told of an upload that did not leave the device as it should be; empty when there
/// is nothing to tell.
[[nodiscard]] QString WhatWentWrong(const Exchange& upload);

}  // namespace quorvel::muxhost
