#include "muxhost/script/commands.h"

#include <algorithm>
#include <limits>

#include "muxhost/script/parser.h"

namespace quorvel::muxhost {

namespace {

constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();

struct Command {
  std::string_view usage;  ///< starts with the command's name
  std::size_t least;       ///< words after the name
  std::size_t most;
  void (*run)(Desk& desk, commands::Words words);
};

constexpr Command kCommands[] = {
    {"device [model=N] [cameras=N] [blocks=N] [variant=C] [name=TEXT] [image=FILE] "
     "[combined] [macros=NxM] [firmware=N.NN]",
     0, kAny, commands::Device},
    {"connect [model=N] [cameras=N] [blocks=N] [variant=C] [name=TEXT] [image=FILE] "
     "[combined] [macros=NxM] [firmware=N.NN]",
     0, kAny, commands::Connect},
    {"open FILE", 1, 1, commands::Open},
    {"new [model=N] [cameras=N] [variant=C] [name=TEXT]", 0, kAny, commands::New},
    {"compare FILE FILE", 2, 2, commands::Compare},
    {"host [family=N] [dvr=N] [commid=N] [link=N] [sync] [latency=MS]", 0, kAny, commands::Host},
    {"language CODE|system|FILE", 1, 1, commands::SpeakLanguage},
    {"download [hold]", 0, 1, commands::Download},
    {"upload all|modified|none|hold [macros]", 1, 2, commands::Upload},
    {"goes-along all|modified [macros]", 1, 2, commands::GoesAlong},
    {"pc-time", 0, 0, commands::PcTime},
    {"save FILE", 1, 1, commands::Save},
    {"restore FILE", 1, 1, commands::Restore},
    {"defaults", 0, 0, commands::Defaults},
    {"fault [none|KIND [at=N] [ms=T]]", 0, kAny, commands::FaultOnLink},
    {"zones CAMERA [BYTE=VALUE...]", 1, kAny, commands::Zones},
    {"undo [control]", 0, 1, commands::StepBack},
    {"redo [control]", 0, 1, commands::StepForth},
    {"put-back CONTROL [ROW COLUMN] [device]", 1, 4, commands::PutBack},
    {"menu", 0, 0, commands::Menu},
    {"choose ITEM", 1, 1, commands::Choose},
    {"dismiss", 0, 0, commands::Dismiss},
    {"click CONTROL", 1, 1, commands::Click},
    {"type CONTROL TEXT", 2, 2, commands::Type},
    {"select LIST INDEX", 2, 2, commands::Select},
    {"slide SLIDER VALUE", 2, 2, commands::Slide},
    {"pick PICKER TIME|DATE", 2, 2, commands::Pick},
    {"press GRID ROW COLUMN", 3, 3, commands::Press},
    {"release GRID FIRST LAST", 3, 3, commands::Release},
    {"mark GRID ROW", 2, 2, commands::Mark},
    {"empty GRID", 1, 1, commands::Empty},
    {"paste GRID TEXT", 2, 2, commands::Paste},
    {"tab TABSTRIP PAGE", 2, 2, commands::Tab},
    {"close [WINDOW]", 0, 1, commands::Close},
    {"answer ok|cancel|file FILE|file cancel", 1, 2, commands::AnswerNext},
    {"wait MS", 1, 1, commands::Wait},
    {"show [WINDOW|WINDOW.CONTROL]", 0, 1, commands::Show},
    {"pages [WINDOW [PAGE...]]", 0, kAny, commands::Pages},
    {"report FILE", 1, 1, commands::Report},
    {"help [CONTROL [ROW COLUMN]]", 0, 3, commands::Help},
    {"menu-items", 0, 0, commands::MenuItems},
    {"modified", 0, 0, commands::Modified},
    {"settings [PATTERN]", 0, 1, commands::Settings},
    {"set SETTING VALUE", 2, 2, commands::SetSetting},
    {"describe [PATTERN]", 0, 1, commands::DescribeThem},
    {"check", 0, 0, commands::Check},
    {"diff [FILE]", 0, 1, commands::Diff},
    {"review [FILE | take-back N | open N]", 0, 2, commands::Review},
    {"find WORDS... | open N", 1, kAny, commands::Find},
    {"list all|changed|factory|FILE [WORDS...]", 1, kAny, commands::List},
    {"export FILE [all|changed|factory|FILE [WORDS...]]", 1, kAny, commands::Export},
    {"block N", 1, 1, commands::DeviceBlock},
    {"image N", 1, 1, commands::ImageBlock},
    {"events", 0, 0, commands::Events},
    {"messages", 0, 0, commands::Messages},
};

}  // namespace

void Execute(Desk& desk, std::span<const std::string> words) {
  const std::string& name = words.front();
  const auto* const found =
      std::find_if(std::begin(kCommands), std::end(kCommands), [&name](const Command& command) {
        return command.usage.substr(0, command.usage.find(' ')) == name;
      });
  if (found == std::end(kCommands)) throw ScriptError("unknown command " + name);
  const std::size_t arguments = words.size() - 1;
  if (arguments < found->least || arguments > found->most) {
    throw ScriptError("usage: " + std::string(found->usage));
  }
  found->run(desk, words);
}

void commands::RequireUnlocked(const Desk& desk) {
  if (desk.modal_depth > 0) {
    throw ScriptError("a modal dialog is open: " + desk.platform.Windows().back()->Name());
  }
}

}  // namespace quorvel::muxhost
