#include "apps/quorvel/comparer.h"

#include <algorithm>

#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

/// What is told of a device beside its settings, by name and value.
std::vector<SettingLine> DeviceLines(const FileParts& parts) {
  std::vector<SettingLine> lines;
  const auto device = DeviceOf(parts);
  lines.push_back({"model", device ? ModelInWords(device->model) : ""});
  lines.push_back({"cameras", device ? std::to_string(device->cameras) : ""});
  lines.push_back({"variant", VariantOf(parts).value_or("")});
  lines.push_back({"blocks", std::to_string(parts.image.size() / kBlockSize)});
  return lines;
}

std::string Change(const std::string& name, const std::string& from, const std::string& to) {
  const auto shown = [](const std::string& value) { return value.empty() ? "none" : value; };
  return name + ": " + shown(from) + " -> " + shown(to) + '\n';
}

}  // namespace

Reference::Reference(const std::string& file) {
  Reader reader;
  const ByteSpan bytes = reader.Read(file);
  bytes_.assign(bytes.begin(), bytes.end());
  parts_ = PartsOf(bytes_);
  Desk().MustLoad(Shown(file), bytes_, parts_);
}

void Comparer::Compare(const Reference& reference, const std::string& file, Told& told) {
  const ByteSpan bytes = reader_.Read(file);
  if (std::ranges::equal(bytes, reference.Bytes())) return;
  const FileParts parts = PartsOf(bytes);
  const std::string name = Shown(file);
  desk_.MustLoad(name, bytes, parts);
  const auto tell = [&](const std::string& change) {
    if (!names_only_) {
      told.out += named_ ? name + ": " + change : change;
    } else if (told.status == kDone) {
      told.out = name + '\n';
    }
    told.status = kFound;
  };

  const auto theirs = DeviceLines(reference.Parts());
  const auto mine = DeviceLines(parts);
  for (std::size_t i = 0; i < mine.size(); ++i) {
    if (mine[i] != theirs[i]) tell(Change(mine[i].name, theirs[i].value, mine[i].value));
  }
  const auto differences = desk_.Control().DifferencesFrom(reference.Parts().image);
  if (!differences) throw Trouble(name, "cannot be compared");
  for (const SettingDifference& it : *differences) tell(Change(it.name, it.other, it.value));
}

}  // namespace quorvel::tool
