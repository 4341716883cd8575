#include "core/survey.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "core/layout/blocks.h"
#include "core/layout/setting_pass.h"

namespace quorvel {

namespace {

using layout::AnySetting;
using layout::Place;
using layout::Slot;

/// Collects all places.
struct PlaceCollector : layout::SettingVisitor<PlaceCollector> {
  void See(const Slot& slot, const AnySetting& setting) {
    places.push_back({slot, layout::FullName(setting.Owner(), setting.Name(), setting.Entry()),
                      setting.Value()});
  }
  void Device(const Slot& slot, const char* name, Byte value) {
    places.push_back({slot, name, std::to_string(value)});
  }
  std::vector<Place> places;
};

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
  PlaceCollector collector;
  if (direction == Direction::kWritten) {
    layout::SettingWalk<true, PlaceCollector> walk(collector, id.MaxCam, blocks);
    layout::DescribeBlocks(walk, rec, id);
  } else {
    layout::SettingWalk<false, PlaceCollector> walk(collector, id.MaxCam, blocks);
    layout::DescribeBlocks(walk, rec, id);
  }
  return std::move(collector.places);
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

namespace {

/// Collects the settings whose name fits a pattern.
class LineCollector : public layout::SettingVisitor<LineCollector> {
 public:
  explicit LineCollector(std::string_view pattern)
      : all_(pattern.empty()), pattern_(WholePattern(pattern)) {
    if (all_) lines.reserve(kUsualCount);
  }
  void See(const Slot& slot, const AnySetting& setting) {
    if (!slot.IsSetting()) return;
    layout::PutFullName(name_, setting.Owner(), setting.Name(), setting.Entry());
    if (all_ || Fits(name_, pattern_)) lines.push_back({name_, setting.Value()});
  }

  std::vector<SettingLine> lines;

 private:
  static constexpr std::size_t kUsualCount = 2048;
  bool all_;
  std::string pattern_;
  std::string name_;
};

}  // namespace

std::vector<SettingLine> ListSettings(MuxData& rec, const Identity& id, int blocks,
                                      std::string_view pattern) {
  LineCollector collector(pattern);
  Identity identity = id;
  layout::SettingWalk<false, LineCollector> walk(collector, id.MaxCam, blocks);
  layout::DescribeBlocks(walk, rec, identity);
  return std::move(collector.lines);
}

std::vector<Place> Locate(MuxData& rec, const Identity& id, int blocks, std::string_view name) {
  std::vector<Place> places = SurveyRecord(rec, id, blocks);
  std::erase_if(places, [name](const Place& place) { return place.name != name; });
  return places;
}

}  // namespace quorvel
