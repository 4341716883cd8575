#include <bit>
#include <cstdio>
#include <iostream>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/one_file.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string file;
  std::string pattern;
};

/// "bytes 0 to 12", "byte 3", "byte 3 bits 4 to 7", "byte 3 bit 4".
std::string BytesInWords(const SettingPlace& place) {
  const std::string first = std::to_string(place.at);
  if (place.length > 1)
    return "bytes " + first + " to " + std::to_string(place.at + place.length - 1);
  if (place.mask == 0xFF || place.mask == 0) return "byte " + first;
  const int lowest = std::countr_zero(place.mask);
  const int highest = 7 - std::countl_zero(place.mask);
  std::string bits = highest > lowest ? " bits " : " bit ";
  bits += std::to_string(lowest);
  if (highest > lowest) bits += " to " + std::to_string(highest);
  return "byte " + first + bits;
}

int Blocks(const Options& options) {
  OneFile file(options.file);
  const int image_at = file.Parts().combined ? file.Parts().header.HdrLen : 0;
  for (const SettingDescription& setting : file.Control().DescribeSettings(options.pattern)) {
    std::cout << setting.name;
    const char* separator = ": ";
    for (const SettingPlace& place : setting.places) {
      std::cout << separator << "block " << int{place.block} << ' ' << BytesInWords(place)
                << (place.is_mark ? ", a mark" : "") << " (offset "
                << image_at + (place.block - 1) * kBlockSize + place.at << ')';
      separator = "; ";
    }
    std::cout << '\n';
  }
  return kDone;
}

}  // namespace

void AddBlocks(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command = AddCommand(app, status, "blocks",
                                 "Say which bytes of the file hold a setting", Blocks, options);
  AddFile(command, options->file, false);
  command.add_option("PATTERN", options->pattern, "Names with * and ?, or a part of them")
      ->type_name("");
  command.footer(
      "Blocks count from 1; their bytes, bits and the offsets in the file from 0. A mark is the\n"
      "device's own note about a setting that is kept elsewhere.");
}

}  // namespace quorvel::tool
