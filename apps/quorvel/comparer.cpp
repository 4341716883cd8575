#include "apps/quorvel/comparer.h"

#include <algorithm>

#include "apps/quorvel/trouble.h"
#include "settings_files/comparison.h"

namespace quorvel::tool {

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

  const auto differences = files::DifferencesFrom(reference.Parts(), desk_.Control(), parts);
  if (!differences) throw Trouble(name, "cannot be compared");
  for (const auto& it : *differences) tell(files::InWords(it) + '\n');
}

}  // namespace quorvel::tool
