#include "apps/quorvel/structure.h"

#include "quorvel/byte.h"
#include "quorvel/identity.h"
#include "quorvel/settings_file.h"

namespace quorvel::tool {

namespace {

using Findings = std::vector<std::string>;

std::string Number(std::size_t number) { return std::to_string(number); }

void CheckPlain(const FileParts& parts, Findings& findings) {
  const std::size_t length = parts.image.size();
  if (length % kBlockSize != 0) {
    findings.push_back("has " + Number(length) + " bytes, which is no whole number of blocks");
  }
  const std::size_t blocks = length / kBlockSize;
  if (blocks == 0) return;
  const auto counted = static_cast<std::size_t>(parts.ByteAt(1, kBlockCountByte).value_or(0));
  if (counted != blocks) {
    findings.push_back("counts " + Number(counted) + " blocks, but has " + Number(blocks));
  }
}

void CheckCombined(ByteSpan file, const FileParts& parts, Findings& findings) {
  const ComboHeader& header = parts.header;
  if (!header.Agrees()) {
    findings.push_back("states " + Number(header.BlockCount) + " blocks, but " +
                       Number(header.DataLen) + " bytes of them");
    return;
  }
  const auto total = static_cast<std::size_t>(header.TotalLength());
  if (file.size() != total) {
    findings.push_back("has " + Number(file.size()) + " bytes, but its header states " +
                       Number(total));
  }
  const int records = header.MacroCount * header.MacroRecSize;
  if (header.MacroLen != 0 && header.MacroLen != records) {
    findings.push_back("states " + Number(header.MacroCount) + " macro records of " +
                       Number(header.MacroRecSize) + " bytes, but " + Number(header.MacroLen) +
                       " bytes of macro data");
  }
  const auto counted = parts.ByteAt(1, kBlockCountByte);
  if (counted && *counted != header.BlockCount) {
    findings.push_back("counts " + Number(static_cast<std::size_t>(*counted)) +
                       " blocks, but its header states " + Number(header.BlockCount));
  }
}

void CheckDevice(const FileParts& parts, Findings& findings) {
  const auto device = files::DeviceOf(parts);
  if (!device) {
    findings.push_back("ends before block 185, which says what device it belongs to");
    return;
  }
  if (device->cameras < 1 || device->cameras > kMostCameras) {
    findings.push_back("states " + std::to_string(device->cameras) + " cameras, not 1 to 16");
  }
  if (ModelText(device->model).empty()) {
    findings.push_back("states the model code " + std::to_string(device->model) +
                       ", which is unknown");
  }
  if (device->name.empty()) findings.push_back("has no model name");
}

}  // namespace

Findings StructureFindings(ByteSpan file, const FileParts& parts) {
  if (file.empty()) return {"is empty"};
  if (file.size() >= kRestoreLimit) {
    return {"has " + Number(kRestoreLimit) + " bytes or more, which no settings file has"};
  }
  Findings findings;
  if (parts.combined) {
    CheckCombined(file, parts, findings);
  } else {
    CheckPlain(parts, findings);
  }
  if (!parts.combined || parts.header.Agrees()) CheckDevice(parts, findings);
  return findings;
}

}  // namespace quorvel::tool
