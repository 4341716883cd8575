#include <iostream>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/one_file.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string file;
  std::vector<std::string> names;
};

int Get(const Options& options) {
  OneFile file(options.file);
  int status = kDone;
  for (const std::string& name : options.names) {
    if (const auto value = file.Control().GetSetting(name)) {
      std::cout << *value << '\n';
    } else {
      std::cout.flush();
      std::cerr << "quorvel: " << file.Name() << ": " << name << ": "
                << Describe(SetAnswer::kNoSuchSetting) << '\n';
      status = kTrouble;
    }
  }
  return status;
}

}  // namespace

void AddGet(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command =
      AddCommand(app, status, "get", "Print the values of settings, one a line", Get, options);
  AddFile(command, options->file, true);
  command.add_option("NAME", options->names, "Whole names of settings")->required()->type_name("");
  command.footer(
      "Example:\n"
      "  quorvel get site.bin MultiDwell 'CamInfo(0).title'");
}

}  // namespace quorvel::tool
