#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "muxhost/script/runner.h"
#include "muxhost/texts/languages.h"
#include "quorvel/block_map.h"
#include "quorvel/version.h"

#ifdef MUXHOST_WITH_QT
#include <QLocale>
#include <cstdlib>

#include "muxhost/gallery/gallery.h"
#include "muxhost/report/pdf.h"
#include "muxhost/window/run_window.h"
#endif

namespace {

constexpr int kFailed = 1;
constexpr int kNoWindow = 2;

using Texts = std::shared_ptr<const quorvel::muxhost::Language>;

std::vector<std::string> SystemLocales() {
#ifdef MUXHOST_WITH_QT
  std::vector<std::string> locales;
  for (const QString& name : QLocale::system().uiLanguages()) locales.push_back(name.toStdString());
  return locales;
#else
  return quorvel::muxhost::LocalesOfEnvironment();
#endif
}

/// Tells what of a user's own file is not used.
Texts TextsOf(const std::string& language) {
  const auto chosen = quorvel::muxhost::ChooseLanguage(language, SystemLocales());
  for (const std::string& finding : chosen.findings) std::cerr << "muxhost: " << finding << '\n';
  return chosen.language;
}

int RunScript(const std::string& path, bool echo, const Texts& texts) {
  std::ifstream file;
  if (path != "-") {
    file.open(path);
    if (!file) {
      std::cerr << "muxhost: cannot read " << path << '\n';
      return kFailed;
    }
  }
  quorvel::muxhost::ScriptRunner runner(path == "-" ? std::cin : file, std::cout, std::cerr, echo,
                                        texts);
#ifdef MUXHOST_WITH_QT
  runner.MakePdfWith(quorvel::muxhost::PdfOf);
#endif
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

int OnDisplay(const std::function<int()>& run) {
  if (HasDisplay()) return run();
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

  /// Pictures are in English unless said, the same on every machine.
  [[nodiscard]] bool InLanguageOfSystem() const { return gallery_->count() == 0; }

  int Run(int argc, char** argv, const Texts& texts) const {
    using namespace quorvel::muxhost;
    if (widgets_) return OnDisplay([&] { return RunWidgetPage(argc, argv); });
    if (gallery_->count() == 0) return OnDisplay([&] { return RunWindow(argc, argv, texts); });
    for (const Look& look : Looks()) {
      const bool wanted = std::find(looks_.begin(), looks_.end(), look.name) != looks_.end();
      if (wanted) DrawGallery(argc, argv, folder_, look, texts);
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
  [[nodiscard]] static bool InLanguageOfSystem() { return false; }
  int Run(int /*argc*/, char** /*argv*/, const Texts& /*texts*/) const {
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
  std::string language;
  app.add_option("--language", language,
                 "Language of the component's texts and of the window: " +
                     quorvel::muxhost::LanguageChoices() +
                     "; the window's is that of the system, else it is en, unless said")
      ->type_name("LANGUAGE");
  app.set_version_flag("--version", "muxhost " + std::string(quorvel::Version()));
  CLI11_PARSE(app, argc, argv);

  try {
    if (block_map) {
      std::cout << quorvel::BlockMapMarkdown();
      return 0;
    }
    const bool is_script = script_option->count() > 0;
    if (language.empty()) language = !is_script && window.InLanguageOfSystem() ? "system" : "en";
    const Texts texts = TextsOf(language);
    return is_script ? RunScript(script, echo, texts) : window.Run(argc, argv, texts);
  } catch (const std::exception& error) {
    std::cerr << "muxhost: " << error.what() << '\n';
    return kFailed;
  }
}
