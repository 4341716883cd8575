#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "quorvel/block_image.h"
#include "quorvel/combined_array.h"
#include "quorvel/settings_file.h"
#include "ui/host_statements.h"

namespace quorvel {

struct Context;

/// A settings file keeps a configuration as raw bytes: a plain image, or a combined array in the
/// combined exchange. It has neither mark nor version; the two are told apart by its length.
struct SettingsFile {
  BlockImage image;
  /// A combined file's own array; in the combined exchange a plain file gets one, too. Else empty.
  CombinedArray array;
  bool combined = false;  ///< it was a combined file
};

/// What the bytes of a file hold. Throws ImageError for kRestoreLimit bytes or more, and for bytes
/// that contradict themselves. The image is not decoded here.
[[nodiscard]] SettingsFile ReadSettingsFile(const HostStatements& host,
                                            std::span<const Byte> bytes);

/// Asks the user for a file to restore and reads it; nothing when the dialog was cancelled.
[[nodiscard]] std::optional<std::vector<Byte>> AskForSettings(Context& context);

/// Asks the user for a name, proposing `default_name`, and replaces the file by `bytes`; tells the
/// user when they are too many to be restored. Cancel ends it.
void SaveBytes(Context& context, const std::string& default_name, std::span<const Byte> bytes);

/// The bytes of a settings file of the present configuration: encodes what is listed as modified
/// into the image, and gives that or the combined array. Empty without an image.
[[nodiscard]] std::vector<Byte> SettingsToSave(Context& context);

/// Command 14. Asks for a name and writes SettingsToSave; tells the user when that is too long to
/// be restored. Nothing happens before there is an image.
void SaveImageToFile(Context& context);

}  // namespace quorvel
