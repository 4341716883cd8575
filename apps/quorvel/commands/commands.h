#pragma once

#include <CLI/CLI.hpp>

namespace quorvel::tool {

// Each adds a command. It runs while the command line is parsed, sets the exit status where that is
// not 0, and throws Trouble.

void AddInfo(CLI::App& app, int& status);
void AddDump(CLI::App& app, int& status);
void AddGet(CLI::App& app, int& status);
void AddSet(CLI::App& app, int& status);
void AddDiff(CLI::App& app, int& status);
void AddCheck(CLI::App& app, int& status);
void AddDefaults(CLI::App& app, int& status);
void AddApply(CLI::App& app, int& status);
void AddBlocks(CLI::App& app, int& status);

/// A command whose options live as long as it may run.
template <class Options>
CLI::App& AddCommand(CLI::App& app, int& status, const char* name, const char* does,
                     int (*run)(const Options&), std::shared_ptr<Options>& options) {
  CLI::App* const command = app.add_subcommand(name, does);
  options = std::make_shared<Options>();
  command->callback([run, &status, options] { status = run(*options); });
  return *command;
}

/// The settings file that a command reads: its first operand. Where others follow, it must be
/// there.
inline void AddFile(CLI::App& command, std::string& file, bool must_be_there) {
  file = "-";
  command
      .add_option("FILE", file,
                  must_be_there ? "The settings file; -: standard input"
                                : "The settings file; - or none: standard input")
      ->required(must_be_there)
      ->type_name("");
}

}  // namespace quorvel::tool
