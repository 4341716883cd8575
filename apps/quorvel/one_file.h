#pragma once

#include <string>
#include <vector>

#include "apps/quorvel/desk.h"
#include "apps/quorvel/reader.h"

namespace quorvel::tool {

/// A settings file that was read and loaded. Throws Trouble when it cannot be.
class OneFile {
 public:
  explicit OneFile(const std::string& file)
      : name_(Shown(file)), bytes_(reader_.Read(file)), parts_(PartsOf(bytes_)) {
    desk_.MustLoad(name_, bytes_, parts_);
  }

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] ByteSpan Bytes() const { return bytes_; }
  [[nodiscard]] const FileParts& Parts() const { return parts_; }
  [[nodiscard]] MainMenuCtrl& Control() { return desk_.Control(); }

 private:
  std::string name_;
  Reader reader_;
  ByteSpan bytes_;
  FileParts parts_;
  Desk desk_;
};

}  // namespace quorvel::tool
