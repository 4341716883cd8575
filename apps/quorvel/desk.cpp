#include "apps/quorvel/desk.h"

#include <cctype>
#include <utility>

#include "apps/quorvel/trouble.h"
#include "quorvel/settings_file.h"

namespace quorvel::tool {

std::string AsClause(std::string sentence) {
  if (!sentence.empty() && sentence.back() == '.') sentence.pop_back();
  if (!sentence.empty()) {
    sentence.front() =
        static_cast<char>(std::tolower(static_cast<unsigned char>(sentence.front())));
  }
  return sentence;
}

MainMenuCtrl& Desk::NewControl() {
  control_.emplace(platform_, no_host_);
  control_->HostCommId(files::kNotInteractive);
  return *control_;
}

LoadAnswer Desk::Load(ByteSpan file, const FileParts& parts) {
  LoadAnswer answer = files::LoadAsItIs(NewControl(), file, parts);
  answer.cause = AsClause(std::move(answer.cause));
  return answer;
}

void Desk::MustLoad(const std::string& name, ByteSpan file, const FileParts& parts) {
  if (file.empty()) throw Trouble(name, "is empty");
  if (file.size() >= kRestoreLimit) {
    throw Trouble(name, "has " + std::to_string(kRestoreLimit) +
                            " bytes or more, which no settings file has");
  }
  if (const LoadAnswer answer = Load(file, parts); !answer) throw Trouble(name, answer.cause);
}

}  // namespace quorvel::tool
