#include <iostream>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/json_values.h"
#include "apps/quorvel/one_file.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string file;
  std::string pattern;
  bool json = false;
};

int Dump(const Options& options) {
  OneFile file(options.file);
  const auto lines = file.Control().Settings(options.pattern);
  if (options.json) {
    std::cout << JsonObject(lines);
    return kDone;
  }
  for (const SettingLine& line : lines) std::cout << line.name << " = " << line.value << '\n';
  return kDone;
}

}  // namespace

void AddDump(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command =
      AddCommand(app, status, "dump", "Print settings by name and value", Dump, options);
  AddFile(command, options->file, false);
  command.add_option("PATTERN", options->pattern, "Names with * and ?, or a part of them")
      ->type_name("");
  command.add_flag("--json", options->json, "As a JSON object, which apply takes");
  command.footer(
      "Examples:\n"
      "  quorvel dump site.bin 'CamInfo(*).title'\n"
      "  quorvel dump --json site.bin >site.json");
}

}  // namespace quorvel::tool
