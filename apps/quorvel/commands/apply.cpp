#include "apps/quorvel/commands/commands.h"
#include "apps/quorvel/edit.h"
#include "apps/quorvel/json_values.h"
#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

struct Options {
  std::string file;
  std::string changes;
  std::string out;
};

Json ReadChanges(const std::string& file) {
  const std::string text = ReadText(file);
  Json changes;
  try {
    changes = Json::parse(text);
  } catch (const Json::parse_error& error) {
    // Behind the library's own number of the error.
    const std::string why = error.what();
    throw Trouble(Shown(file), why.substr(why.find("] ") + 2));
  }
  if (!changes.is_object()) throw Trouble(Shown(file), "is no object of names and values");
  return changes;
}

void SetOne(Edit& edit, const std::string& name, const Json& value) {
  // A dump has settings that only the device writes, and may have values that nobody could set.
  const auto present = edit.Control().GetSetting(name);
  if (present && JsonOf(*present) == value) return;
  const auto setting = edit.Control().DescribeSetting(name);
  if (!setting) return edit.Refuse(name, Describe(SetAnswer::kNoSuchSetting));
  if (!setting->writable) return edit.PassOver(name);
  const auto [text, refusal] = SettingValueOf(value, setting->type);
  if (text) {
    edit.Set(name, *text, value.dump());
  } else {
    edit.Refuse(name, refusal);
  }
}

int Apply(const Options& options) {
  if (options.file == kStandard && options.changes == kStandard) {
    throw Trouble("FILE and CHANGES cannot both be standard input");
  }
  const auto changes = ReadChanges(options.changes);
  Edit edit(options.file);
  for (const auto& change : changes.items()) SetOne(edit, change.key(), change.value());
  return edit.Store(options.out);
}

}  // namespace

void AddApply(CLI::App& app, int& status) {
  std::shared_ptr<Options> options;
  CLI::App& command =
      AddCommand(app, status, "apply",
                 "Set what a JSON object of names and values says, all or nothing", Apply, options);
  AddFile(command, options->file, true);
  command
      .add_option("CHANGES", options->changes,
                  "The JSON file, as of dump --json; -: standard input")
      ->required()
      ->type_name("");
  command.add_option(kOutOption, options->out, "Where the result goes; it may be FILE itself")
      ->required()
      ->type_name("OUT");
  command.footer(
      "Example:\n"
      "  quorvel dump --json one.bin 'CamInfo(*).title' | quorvel apply other.bin - -o other.bin");
}

}  // namespace quorvel::tool
