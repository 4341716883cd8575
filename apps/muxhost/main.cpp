#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "muxhost/script/runner.h"
#include "quorvel/block_map.h"
#include "quorvel/version.h"

#ifdef MUXHOST_WITH_QT
#include <cstdlib>

#include "muxhost/gallery/gallery.h"
#include "muxhost/window/run_window.h"
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

int OnDisplay(int (*run)(int, char**), int argc, char** argv) {
  if (HasDisplay()) return run(argc, argv);
  std::cerr << "muxhost: no display to open a window on; run a script with --script FILE\n";
  return kNoWindow;
}

/// What a build with a window offers besides.
class WindowOptions {
 public:
  WindowOptions(CLI::App& app, CLI::Option* not_with) {
    CLI::Option* const widgets =
        app.add_flag("--widgets", widgets_, "Show every kind of control in every state")
            ->excludes(not_with);
    gallery_ =
        app.add_option("--gallery", folder_,
                       "Draw every window into pictures in FOLDER, without a screen, and exit")
            ->type_name("FOLDER")
            ->excludes(not_with)
            ->excludes(widgets);
    std::vector<std::string> names;
    for (const auto& look : quorvel::muxhost::Looks()) names.push_back(look.name);
    app.add_option("--looks", looks_, "What the pictures look like")
        ->delimiter(',')
        ->check(CLI::IsMember(names))
        ->needs(gallery_)
        ->capture_default_str();
  }

  int Run(int argc, char** argv) const {
    using namespace quorvel::muxhost;
    if (widgets_) return OnDisplay(RunWidgetPage, argc, argv);
    if (gallery_->count() == 0) return OnDisplay(RunWindow, argc, argv);
    for (const Look& look : Looks()) {
      const bool wanted = std::find(looks_.begin(), looks_.end(), look.name) != looks_.end();
      if (wanted) DrawGallery(argc, argv, folder_, look);
    }
    return 0;
  }

 private:
  bool widgets_ = false;
  CLI::Option* gallery_ = nullptr;
  std::string folder_;
  std::vector<std::string> looks_{"light"};
};
#else
class WindowOptions {
 public:
  WindowOptions(CLI::App& /*app*/, CLI::Option* /*not_with*/) {}
  int Run(int /*argc*/, char** /*argv*/) const {
    std::cerr << "muxhost: built without a window; run a script with --script FILE\n";
    return kNoWindow;
  }
};
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
  const WindowOptions window(app, script_option);
  app.set_version_flag("--version", "muxhost " + std::string(quorvel::Version()));
  CLI11_PARSE(app, argc, argv);

  try {
    if (block_map) {
      std::cout << quorvel::BlockMapMarkdown();
      return 0;
    }
    return script_option->count() > 0 ? RunScript(script, echo) : window.Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "muxhost: " << error.what() << '\n';
    return kFailed;
  }
}
