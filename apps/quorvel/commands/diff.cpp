#include <algorithm>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/comparer.h"
#include "apps/quorvel/fleet.h"
#include "apps/quorvel/many_files.h"
#include "apps/quorvel/reader.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string reference;
  ManyFiles files;
};

int DiffFiles(const Options& options) {
  const auto files = options.files.All();
  if (files.empty() && options.files.files_from.empty()) {
    throw Trouble(options.reference, "there is nothing to compare it with");
  }
  const Reference reference(options.reference);
  const bool named = files.size() > 1 || options.files.recursive;
  return LookAtAll(files.size(), options.files.Threads(), [&]() -> Look {
    const auto comparer = std::make_shared<Comparer>(options.files.names_only, named);
    return [&, comparer](std::size_t file, Told& told) {
      comparer->Compare(reference, files[file], told);
    };
  });
}

/// Paths below a folder, without it.
std::vector<std::string> Below(const std::string& folder) {
  auto paths = SettingsFilesBelow(folder);
  for (std::string& path : paths) {
    path.erase(0, std::min(path.find_first_not_of('/', folder.size()), path.size()));
  }
  std::ranges::sort(paths);
  return paths;
}

int DiffFolders(const std::string& one, const std::string& other, const Options& options) {
  const auto here = Below(one);
  const auto there = Below(other);
  std::vector<std::string> all;
  std::ranges::set_union(here, there, std::back_inserter(all));
  return LookAtAll(all.size(), options.files.Threads(), [&]() -> Look {
    const auto comparer = std::make_shared<Comparer>(options.files.names_only, true);
    return [&, comparer](std::size_t i, Told& told) {
      const std::string& path = all[i];
      const bool is_here = std::ranges::binary_search(here, path);
      if (is_here && std::ranges::binary_search(there, path)) {
        return comparer->Compare(Reference(one + '/' + path), other + '/' + path, told);
      }
      told.out = "only in " + (is_here ? one : other) + ": " + path + '\n';
      told.status = kFound;
    };
  });
}

int Diff(const Options& options) {
  const auto& operands = options.files.operands;
  const auto folder = [](std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
  };
  if (!options.files.recursive || !IsFolder(options.reference)) return DiffFiles(options);
  if (operands.size() != 1 || !IsFolder(operands.front())) {
    throw Trouble(options.reference, "a folder is compared with one other folder");
  }
  return DiffFolders(folder(options.reference), folder(operands.front()), options);
}

}  // namespace

void AddDiff(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command = AddCommand(
      app, status, "diff", "Compare files with a reference, setting by setting", Diff, options);
  command
      .add_option("REFERENCE", options->reference,
                  "The settings file to compare with; - is standard input")
      ->required()
      ->type_name("");
  command.add_option("FILE", options->files.operands, "Settings files")->type_name("");
  options->files.AddTo(command);
  command.footer(
      "Examples:\n"
      "  quorvel diff before.bin after.bin\n"
      "  quorvel diff reference.bin -r sites --list\n"
      "  quorvel diff -r backups/monday backups/tuesday\n"
      "Exit status: 0, or 1 where files differ, or 2 where one cannot be read or loaded.");
}

}  // namespace quorvel::tool
