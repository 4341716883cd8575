#include "apps/quorvel/edit.h"

#include <iostream>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <unistd.h>
#endif

#include "apps/quorvel/trouble.h"
#include "quorvel/code_page.h"
#include "quorvel/platform.h"
#include "quorvel/whole_files.h"

namespace quorvel::tool {

Edit::Edit(const std::string& file) : file_(file), before_(file_.Control().SaveSettings()) {}

void Edit::Set(const std::string& name, const std::string& value, const std::string& shown) {
  const SetAnswer answer = Control().SetSetting(name, value);
  if (answer == SetAnswer::kSet || answer == SetAnswer::kUnchanged) return;
  const auto setting = Control().DescribeSetting(name);
  if (CodePageToUtf8(Utf8ToCodePage(value)) != value) {
    Refuse(name, shown + " has characters that devices do not know");
  } else if (answer == SetAnswer::kNotAValue && setting) {
    Refuse(name, shown + " is not " + AllowedInWords(*setting));
  } else {
    Refuse(name, Describe(answer));
  }
}

void Edit::PassOver(const std::string& name) {
  std::cerr << "quorvel: " << file_.Name() << ": " << name << ": read-only, left as it is\n";
}

void Edit::Refuse(const std::string& name, const std::string& why) {
  refused_.push_back(name + ": " + why);
}

int Edit::Store(const std::string& out) {
  for (const std::string& why : refused_) {
    std::cerr << "quorvel: " << file_.Name() << ": " << why << '\n';
  }
  if (!refused_.empty()) return kTrouble;
  // What the control repairs as it reads, and bytes behind a combined array, are not the user's
  // changes.
  const auto after = Control().SaveSettings();
  std::vector<std::uint8_t> bytes(file_.Bytes().begin(), file_.Bytes().end());
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (after[i] != before_.at(i)) bytes.at(i) = after[i];
  }
  StoreOutput(out, bytes);
  return kDone;
}

void StoreOutput(const std::string& out, ByteSpan bytes) {
  if (out == kStandard) {
#ifdef _WIN32
    std::cout.flush();
    ::_setmode(STDOUT_FILENO, O_BINARY);
#endif
    std::cout.write(reinterpret_cast<const char*>(bytes.data()),
                    static_cast<std::streamsize>(bytes.size()));
    return;
  }
  try {
    ReplaceWholeFile(out, bytes);
  } catch (const PlatformError& error) {
    std::string why = error.what();
    const std::string told = "cannot write " + out + ": ";
    if (why.starts_with(told)) why.erase(0, told.size());
    throw Trouble(out, why);
  }
}

}  // namespace quorvel::tool
