#include "core/survey.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <map>
#include <set>
#include <utility>

#include "core/layout/blocks.h"

namespace quorvel {

namespace layout {

std::string QuotedText(std::string_view text) {
  std::string quoted = "\"";
  for (const char raw : text) {
    const auto character = static_cast<unsigned char>(raw);
    if (character >= 0x20 && character < 0x7F && raw != '"' && raw != '\\') {
      quoted += raw;
      continue;
    }
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(character));
    quoted += code.data();
  }
  return quoted + "\"";
}

std::string FullName(const SettingOwner& owner, std::string_view name, int entry) {
  std::string full = owner.Collection();
  if (!full.empty()) {
    if (owner.Index() >= 0) full += "(" + std::to_string(owner.Index()) + ")";
    full += ".";
  }
  full += name;
  if (entry >= 0) full += "(" + std::to_string(entry) + ")";
  return full;
}

}  // namespace layout

namespace {

using layout::Place;

template <bool writing>
class SurveyWalk {
 public:
  SurveyWalk(std::vector<Place>& places, int cameras, int blocks)
      : places_(places), cameras_(cameras), blocks_(blocks) {}

  template <class Visit>
  void Block(int number, const Visit& visit) {
    if (number > blocks_) return;
    layout::SurveyPass<writing> pass(places_, word_, number, cameras_);
    visit(pass);
  }
  template <class Visit>
  void Blocks(int first, int count, const Visit& visit) {
    for (int i = 0; i < count; ++i) {
      Block(first + i, [&](layout::SurveyPass<writing>& pass) { visit(pass, i); });
    }
  }

 private:
  std::vector<Place>& places_;
  int cameras_;
  int blocks_;
  int word_ = 0;
};

bool IsSetting(const Place& place) {
  return place.role == Place::Role::kSetting || place.role == Place::Role::kElsewhere;
}

char Lower(char letter) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
}

/// Matches a pattern with "*" and "?". Only the last "*" is ever taken back, so the time grows with
/// the lengths and not with the number of stars.
bool Fits(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t after_star = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      after_star = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || Lower(pattern[p]) == Lower(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++after_star;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

std::string WholePattern(std::string_view pattern) {
  const bool wild = pattern.find_first_of("*?") != std::string_view::npos;
  return wild ? std::string(pattern) : "*" + std::string(pattern) + "*";
}

}  // namespace

std::vector<Place> SurveyRecord(MuxData& rec, Identity id, int blocks, Direction direction) {
  std::vector<Place> places;
  if (direction == Direction::kWritten) {
    SurveyWalk<true> walk(places, id.MaxCam, blocks);
    layout::DescribeBlocks(walk, rec, id);
  } else {
    SurveyWalk<false> walk(places, id.MaxCam, blocks);
    layout::DescribeBlocks(walk, rec, id);
  }
  return places;
}

std::vector<std::string> FindOverlaps(const std::vector<Place>& places) {
  std::vector<std::string> overlaps;
  std::vector<std::vector<const Place*>> claims(std::size_t{256} *
                                                kBlockSize);  // by block and byte
  for (const Place& place : places) {
    if (place.role == Place::Role::kElsewhere) continue;
    for (int at = place.at; at < place.at + place.length; ++at) {
      const auto byte = static_cast<unsigned>(place.block * kBlockSize + at);
      auto& others = claims.at(byte);
      for (const Place* other : others) {
        if ((other->mask & place.mask) == 0) continue;
        overlaps.push_back("block " + std::to_string(place.block) + " byte " + std::to_string(at) +
                           ": " + other->name + " and " + place.name);
      }
      others.push_back(&place);
    }
  }
  return overlaps;
}

std::vector<SettingLine> ListSettings(MuxData& rec, const Identity& id, int blocks,
                                      std::string_view pattern) {
  const std::string whole = WholePattern(pattern);
  std::vector<SettingLine> lines;
  for (Place& place : SurveyRecord(rec, id, blocks)) {
    if (IsSetting(place) && Fits(place.name, whole)) {
      lines.push_back({std::move(place.name), std::move(place.value)});
    }
  }
  return lines;
}

std::vector<Place> Locate(MuxData& rec, const Identity& id, int blocks, std::string_view name) {
  std::vector<Place> places = SurveyRecord(rec, id, blocks);
  std::erase_if(places, [name](const Place& place) { return place.name != name; });
  return places;
}

namespace {

/// What a configuration holds under one name, and every block that has a part in it.
struct Holding {
  std::string value;
  std::set<Byte> blocks;
};

std::map<std::string, Holding> HoldingsOf(const Configuration& configuration) {
  std::map<std::string, Holding> holdings;
  for (const Place& place :
       SurveyRecord(configuration.rec, configuration.id, configuration.blocks)) {
    if (!IsSetting(place) && place.role != Place::Role::kMark) continue;
    Holding& holding = holdings[place.name];
    holding.value = place.value;
    holding.blocks.insert(static_cast<Byte>(place.block));
  }
  return holdings;
}

}  // namespace

std::vector<SettingDifference> CompareConfigurations(const Configuration& one,
                                                     const Configuration& other) {
  auto others = HoldingsOf(other);
  std::multimap<Byte, SettingDifference> by_block;
  const auto add = [&by_block](const std::string& name, const Holding& mine,
                               const Holding& theirs) {
    std::set<Byte> blocks = mine.blocks;
    blocks.insert(theirs.blocks.begin(), theirs.blocks.end());
    by_block.insert(
        {*blocks.begin(), {name, mine.value, theirs.value, {blocks.begin(), blocks.end()}}});
  };
  for (const auto& [name, mine] : HoldingsOf(one)) {
    const auto theirs = others.extract(name);
    const Holding none;
    const Holding& it = theirs.empty() ? none : theirs.mapped();
    if (it.value != mine.value) add(name, mine, it);
  }
  for (const auto& [name, theirs] : others) add(name, {}, theirs);
  std::vector<SettingDifference> differences;
  for (auto& [block, difference] : by_block) differences.push_back(std::move(difference));
  return differences;
}

}  // namespace quorvel
