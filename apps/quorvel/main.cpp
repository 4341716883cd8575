#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/trouble.h"
#include "quorvel/version.h"

namespace {

using quorvel::tool::kTrouble;

constexpr const char* kExamples = R"(Examples:
  quorvel info site.bin
  quorvel dump site.bin 'CamInfo(*).title'
  quorvel set site.bin MultiDwell=10 AlarmMode=2 -o new.bin
  quorvel diff before.bin after.bin
  quorvel check -r backups
  quorvel dump --json one.bin Dwell | quorvel apply other.bin - -o other.bin
  quorvel defaults --model 6 --cameras 16 -o - | quorvel dump

'quorvel COMMAND --help' tells more of a command. Exit status: 0, or 1 where files
differ or there is a finding, or 2 in case of trouble.)";

std::vector<CLI::App*> AllCommands(CLI::App& app) {
  return app.get_subcommands([](CLI::App*) { return true; });
}

int Run(int argc, char** argv) {
  using namespace quorvel::tool;
  CLI::App app("Settings files of video multiplexers: look, change, compare, check.", "quorvel");
  app.set_version_flag("--version", "quorvel " + std::string(quorvel::Version()));
  app.require_subcommand(1);
  int status = kDone;
  AddInfo(app, status);
  AddDump(app, status);
  AddGet(app, status);
  AddSet(app, status);
  AddDiff(app, status);
  AddCheck(app, status);
  AddDefaults(app, status);
  AddApply(app, status);
  AddBlocks(app, status);
  app.footer(kExamples);  // last: it is none of the commands'
  const std::string first = argc > 1 ? argv[1] : "-";
  const auto is_it = [&first](const CLI::App* command) { return command->get_name() == first; };
  if (first[0] != '-' && std::ranges::none_of(AllCommands(app), is_it)) {
    throw Trouble("'" + first + "' is no command; try 'quorvel --help'");
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);  // help or the version
    std::cerr << "quorvel: " << error.what() << "\nTry 'quorvel --help'.\n";
    return kTrouble;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  int status = kTrouble;
  try {
    status = Run(argc, argv);
  } catch (const std::exception& error) {
    std::cout.flush();
    std::cerr << "quorvel: " << error.what() << '\n';
  }
  if (std::cout.flush()) return status;
  std::cerr << "quorvel: standard output: cannot be written\n";
  return kTrouble;
}
