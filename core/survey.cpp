#include "core/survey.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <map>

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

bool Fits(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    const auto rest = pattern.substr(1);
    return Fits(name, rest) || (!name.empty() && Fits(name.substr(1), pattern));
  }
  if (name.empty()) return false;
  const bool same = pattern.front() == '?' || Lower(pattern.front()) == Lower(name.front());
  return same && Fits(name.substr(1), pattern.substr(1));
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
    if (place.role == Place::Role::kMark || place.role == Place::Role::kElsewhere) continue;
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

std::vector<SettingDifference> CompareConfigurations(const Configuration& one,
                                                     const Configuration& other) {
  std::map<std::string, Place> others;
  for (Place& place : SurveyRecord(other.rec, other.id, other.blocks)) {
    if (IsSetting(place)) others.emplace(place.name, std::move(place));
  }
  std::vector<SettingDifference> differences;
  for (const Place& place : SurveyRecord(one.rec, one.id, one.blocks)) {
    if (!IsSetting(place)) continue;
    const auto found = others.find(place.name);
    const std::string value = found == others.end() ? "" : found->second.value;
    if (value != place.value) {
      differences.push_back({place.name, place.value, value, {static_cast<Byte>(place.block)}});
    }
    if (found != others.end()) others.erase(found);
  }
  for (const auto& [name, place] : others) {
    differences.push_back({name, "", place.value, {static_cast<Byte>(place.block)}});
  }
  std::stable_sort(differences.begin(), differences.end(), [](const auto& a, const auto& b) {
    return a.blocks.front() < b.blocks.front();
  });
  return differences;
}

}  // namespace quorvel
