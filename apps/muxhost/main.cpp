#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>

#include "apps/muxhost/script_runner.h"
#include "core/block_map.h"

#ifdef MUXHOST_WITH_QT
#include <cstdlib>

#include "apps/muxhost/run_window.h"
#endif

namespace {

constexpr int kFailed = 1;
constexpr int kNoWindow = 2;

int RunScript(const std::string& path, bool echo) {
  std::ifstream file;
  if (path != "-") {
    file.open(path);
    if (!file) {
      std::cerr << "muxhost: cannot read " << path << '\n';
      return kFailed;
    }
  }
  quorvel::muxhost::ScriptRunner runner(path == "-" ? std::cin : file, std::cout, std::cerr, echo);
  return runner.Run();
}

#ifdef MUXHOST_WITH_QT
bool HasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

int OpenWindow(int argc, char** argv) {
  if (HasDisplay()) return quorvel::muxhost::RunWindow(argc, argv);
  std::cerr << "muxhost: no display to open a window on; run a script with --script FILE\n";
  return kNoWindow;
}
#else
int OpenWindow(int /*argc*/, char** /*argv*/) {
  std::cerr << "muxhost: built without a window; run a script with --script FILE\n";
  return kNoWindow;
}
#endif

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"A host application for the configuration menu, with a simulated device"};
  std::string script;
  bool echo = false;
  CLI::Option* const script_option =
      app.add_option("--script", script, "Run the commands in FILE, - for standard input, and exit")
          ->type_name("FILE");
  app.add_flag("--echo", echo, "Print each command of the script before it runs")
      ->needs(script_option);
  bool block_map = false;
  app.add_flag("--block-map", block_map, "Print which block holds which setting, and exit")
      ->excludes(script_option);
  CLI11_PARSE(app, argc, argv);

  try {
    if (block_map) {
      std::cout << quorvel::BlockMapMarkdown();
      return 0;
    }
    return script_option->count() > 0 ? RunScript(script, echo) : OpenWindow(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "muxhost: " << error.what() << '\n';
    return kFailed;
  }
}
