#include <algorithm>
#include <cctype>
#include <charconv>

#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/edit.h"
#include "apps/quorvel/trouble.h"
#include "quorvel/code_page.h"
#include "quorvel/default_images.h"
#include "quorvel/identity.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string model;
  int cameras = 16;
  std::string name;
  std::string variant = "4";  // that of the factory images
  int blocks = 0;
  bool combined = false;
  std::string firmware = "5.06";
  std::string out;
};

std::optional<int> ReadNumber(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 0) return std::nullopt;
  return number;
}

bool Alike(std::string_view one, std::string_view other) {
  const auto lower = [](unsigned char letter) { return std::tolower(letter); };
  return std::ranges::equal(one, other, {}, lower, lower);
}

std::uint8_t ModelOf(const std::string& text) {
  const auto number = ReadNumber(text);
  int code = 0;
  for (; !ModelText(code).empty(); ++code) {
    if (number ? *number == code : Alike(text, ModelText(code))) {
      return static_cast<std::uint8_t>(code);
    }
  }
  throw Trouble("'" + text + "' is no model: a code from 0 to " + std::to_string(code - 1) +
                " or its text, as in \"" + std::string(ModelText(6)) + '"');
}

/// In the exchange of combined arrays a host states these sizes.
std::vector<std::uint8_t> Sizes(const Options& options) {
  const auto dot = options.firmware.find('.');
  const auto major = ReadNumber(std::string_view(options.firmware).substr(0, dot));
  const auto minor = dot == std::string::npos
                         ? std::nullopt
                         : ReadNumber(std::string_view(options.firmware).substr(dot + 1));
  if (!major || !minor || *major > 255 || *minor > 99) {
    throw Trouble("'" + options.firmware + "' is no firmware version, as 5.06");
  }
  std::vector<std::uint8_t> sizes(files::kSizesLength);
  sizes.at(4) = static_cast<std::uint8_t>(options.blocks);
  sizes.at(5) = static_cast<std::uint8_t>(*major);
  sizes.at(6) = static_cast<std::uint8_t>(*minor);
  return sizes;
}

int Defaults(const Options& options) {
  const std::uint8_t model = ModelOf(options.model);
  const std::string variant = Utf8ToCodePage(options.variant);
  if (variant.size() != 1) throw Trouble("'" + options.variant + "' is no variant: one character");
  const std::string name =
      options.name.empty() ? UsualModelName(model, options.cameras) : Utf8ToCodePage(options.name);

  Desk desk;
  MainMenuCtrl& control = desk.NewControl();
  if (options.combined || options.blocks != 0) control.FillComboInfo(Sizes(options));
  const LoadAnswer answer = control.LoadDefaults(static_cast<std::uint8_t>(options.cameras), model,
                                                 name, variant.front());
  if (!answer) throw Trouble(AsClause(answer.cause));
  const auto image = control.Image();
  const std::size_t blocks = image.size() / kBlockSize;
  if (options.blocks != 0 && blocks != static_cast<std::size_t>(options.blocks)) {
    throw Trouble("a device of model " + files::ModelInWords(model) + " has " +
                  std::to_string(blocks) + " blocks");
  }
  StoreOutput(options.out, options.combined ? control.SaveSettings() : image);
  return kDone;
}

}  // namespace

void AddDefaults(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command = AddCommand(
      app, status, "defaults", "Write a device's factory defaults into a file", Defaults, options);
  command
      .add_option("--model", options->model,
                  "Its model: a code, as 6, or the text, as \"Triplex NTSC\"")
      ->required();
  command.add_option("--cameras", options->cameras, "How many cameras it has")
      ->capture_default_str()
      ->check(CLI::Range(1, kMostCameras));
  command.add_option("--name", options->name, "Its model name, 14 characters at most (as TX16)");
  command.add_option("--variant", options->variant, "Its variant, a character")
      ->capture_default_str();
  command
      .add_option("--blocks", options->blocks,
                  "How many blocks it has, where its model leaves it open (200)")
      ->check(CLI::Range(200, 255));
  command.add_flag("--combined", options->combined, "Write a combined array, without macros");
  command.add_option("--firmware", options->firmware, "The firmware version that the array states")
      ->capture_default_str();
  command.add_option(kOutOption, options->out, "Where the file goes")->required()->type_name("OUT");
  command.footer(
      "Example:\n"
      "  quorvel defaults --model 6 --cameras 10 --name TX10 -o factory.bin");
}

}  // namespace quorvel::tool
