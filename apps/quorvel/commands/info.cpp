#include <iostream>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/one_file.h"
#include "apps/quorvel/structure.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string file;
};

void PrintCombined(const ComboHeader& header) {
  const int minor = header.ExtraB;
  std::cout << "firmware: " << int{header.ExtraA} << '.' << (minor < 10 ? "0" : "") << minor
            << "\nmacros: " << int{header.MacroCount} << " of " << header.MacroRecSize << " bytes; "
            << header.MacroLen << " bytes of data\n";
}

int Info(const Options& options) {
  OneFile file(options.file);
  const FileParts& parts = file.Parts();
  std::cout << "file: " << file.Name()
            << "\nkind: " << (parts.combined ? "combined array" : "plain image") << ", "
            << file.Bytes().size() << " bytes\nblocks: " << parts.image.size() / kBlockSize << '\n';
  if (parts.combined) PrintCombined(parts.header);
  if (const auto device = files::DeviceOf(parts)) {
    std::cout << "model: " << files::ModelInWords(device->model) << "\nname: " << device->name
              << "\ncameras: " << device->cameras << '\n';
  }
  if (const auto variant = files::VariantOf(parts)) std::cout << "variant: " << *variant << '\n';
  std::cout << "settings: " << file.Control().Settings().size() << "\nfindings: "
            << StructureFindings(file.Bytes(), parts).size() +
                   file.Control().SettingFindings().size()
            << '\n';
  return kDone;
}

}  // namespace

void AddInfo(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command = AddCommand(
      app, status, "info", "Say what a file holds, and which device it belongs to", Info, options);
  AddFile(command, options->file, false);
}

}  // namespace quorvel::tool
