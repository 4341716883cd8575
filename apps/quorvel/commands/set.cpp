#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/edit.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string file;
  std::vector<std::string> changes;
  std::string out;
};

int Set(const Options& options) {
  for (const std::string& change : options.changes) {
    if (change.find('=') == std::string::npos) throw Trouble("'" + change + "' is not NAME=VALUE");
  }
  Edit edit(options.file);
  for (const std::string& change : options.changes) {
    const auto equals = change.find('=');
    const std::string value = change.substr(equals + 1);
    edit.Set(change.substr(0, equals), value, value);
  }
  return edit.Store(options.out);
}

}  // namespace

void AddSet(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command =
      AddCommand(app, status, "set", "Set settings, and write the result", Set, options);
  AddFile(command, options->file, true);
  command
      .add_option("NAME=VALUE", options->changes,
                  "Values as dump prints them, with their unit or without")
      ->required()
      ->type_name("");
  command.add_option(kOutOption, options->out, "Where the result goes; it may be FILE itself")
      ->required()
      ->type_name("OUT");
  command.footer(
      "Example:\n"
      "  quorvel set site.bin MultiDwell=10 AlarmMode=latched 'CamInfo(0).title=Door' -o new.bin");
}

}  // namespace quorvel::tool
