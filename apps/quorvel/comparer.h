#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "apps/quorvel/desk.h"
#include "apps/quorvel/fleet.h"
#include "apps/quorvel/reader.h"

namespace quorvel::tool {

/// What files are compared with. Throws Trouble when it cannot be loaded.
class Reference {
 public:
  explicit Reference(const std::string& file);
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;

  [[nodiscard]] ByteSpan Bytes() const { return bytes_; }
  [[nodiscard]] const FileParts& Parts() const { return parts_; }

 private:
  std::vector<std::uint8_t> bytes_;
  FileParts parts_;
};

/// Compares one file after the other with a reference, by what names its device and by settings.
class Comparer {
 public:
  /// `names_only` tells the names of files that differ and no more; else `named` puts the file's
  /// name before each difference.
  Comparer(bool names_only, bool named) : names_only_(names_only), named_(named) {}
  /// Throws Trouble when the file cannot be loaded.
  void Compare(const Reference& reference, const std::string& file, Told& told);

 private:
  bool names_only_;
  bool named_;
  Reader reader_;
  Desk desk_;
};

}  // namespace quorvel::tool
