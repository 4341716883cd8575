#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/desk.h"
#include "apps/quorvel/fleet.h"
#include "apps/quorvel/many_files.h"
#include "apps/quorvel/reader.h"
#include "apps/quorvel/structure.h"
#include "apps/quorvel/trouble.h"
#include "quorvel/settings_file.h"

namespace quorvel::tool {

namespace {

/// Checks one file after the other.
class Checker {
 public:
  explicit Checker(bool names_only) : names_only_(names_only) {}

  void Check(const std::string& file, Told& told) {
    const ByteSpan bytes = reader_.Read(file);
    const FileParts parts = PartsOf(bytes);
    for (const std::string& finding : StructureFindings(bytes, parts)) Tell(file, finding, told);
    if (bytes.empty() || bytes.size() >= kRestoreLimit) return;
    if (const LoadAnswer answer = desk_.Load(bytes, parts); !answer) {
      return Tell(file, "cannot be loaded: " + answer.cause, told);
    }
    for (const SettingFinding& it : desk_.Control().SettingFindings()) {
      Tell(file, it.name + " is " + it.value + ", " + it.reason, told);
    }
  }

 private:
  void Tell(const std::string& file, const std::string& finding, Told& told) const {
    if (!names_only_) {
      told.out += Shown(file) + ": " + finding + '\n';
    } else if (told.status == kDone) {
      told.out = Shown(file) + '\n';
    }
    told.status = kFound;
  }

  bool names_only_;
  Reader reader_;
  Desk desk_;
};

int Check(const ManyFiles& options) {
  auto files = options.All();
  if (files.empty() && options.files_from.empty() && options.operands.empty()) {
    files.push_back(kStandard);
  }
  return LookAtAll(files.size(), options.Threads(), [&]() -> Look {
    const auto checker = std::make_shared<Checker>(options.names_only);
    return [&files, checker](std::size_t file, Told& told) { checker->Check(files[file], told); };
  });
}

}  // namespace

void AddCheck(CLI::App& app, int& status) {
  std::shared_ptr<ManyFiles> options;
  CLI::App& command =
      AddCommand(app, status, "check",
                 "Check files: their structure, their settings' values, the device they belong to",
                 Check, options);
  command.add_option("FILE", options->operands, "Settings files; - or none: standard input")
      ->type_name("");
  options->AddTo(command);
  command.footer(
      "Examples:\n"
      "  quorvel check -r backups\n"
      "  find . -name '*.cfg' -print0 | quorvel check --files-from - -0 --list\n"
      "Exit status: 0, or 1 where there is a finding, or 2 where a file cannot be read.");
}

}  // namespace quorvel::tool
