#include "quorvel/block_map.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "core/model_flags.h"
#include "core/survey.h"

namespace quorvel {

namespace {

using layout::Place;

struct Family {
  const char* name;
  Byte model_code;
};

/// Model codes of a family have the same layouts.
constexpr std::array kFamilies = {
    Family{"multiplexer (0)", 0},
    Family{"DVR (1)", 1},
    Family{"duplex (2, 3)", 2},
    Family{"duplex lite (4, 5)", 4},
    Family{"triplex (6, 7)", 6},
    Family{"triplex lite (8 to 13, 16, 17, 20)", 8},
    Family{"triplex matrix (14, 15)", 14},
    Family{"triplex turbo (18, 19)", 18},
};

constexpr int kMostBlocks = 225;

/// A line of the map: what one word of a layout puts where.
struct Row {
  std::string where;
  std::string what;
  bool operator==(const Row&) const = default;
};
using Rows = std::vector<Row>;

std::string Range(int first, int last) {
  if (first == last) return std::to_string(first);
  return std::to_string(first) + " to " + std::to_string(last);
}

std::string Bits(unsigned mask) {
  const int first = std::countr_zero(mask);
  const int last = 31 - std::countl_zero(mask);
  return (first == last ? " bit " : " bits ") + Range(first, last);
}

bool IsDigit(char letter) { return std::isdigit(static_cast<unsigned char>(letter)) != 0; }

/// Takes the number at the front off a text; empty where there is none.
std::string TakeNumber(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && IsDigit(text[length])) ++length;
  std::string number(text.substr(0, length));
  text.remove_prefix(length);
  return number;
}

/// Numbers from one name to another in `steps` steps.
std::string NumberRange(const std::string& from, const std::string& to, int steps) {
  if (from == to) return from;
  const int start = std::stoi(from);
  const int step = steps > 0 ? (std::stoi(to) - start) / steps : 1;
  if (step <= 1) return from + " to " + to;
  return from + ", " + std::to_string(start + step) + " ... " + to;
}

/// "CamInfo(0).title" and "CamInfo(15).title" make "CamInfo(0 to 15).title"; names that differ in
/// more than one number are joined by dots.
std::string NameRange(std::string_view first, std::string_view last, int steps = 0) {
  std::string joined = std::string(first) + " ... " + std::string(last);
  std::string text;
  int differences = 0;
  while (!first.empty() && !last.empty()) {
    const std::string from = TakeNumber(first);
    const std::string to = TakeNumber(last);
    text += NumberRange(from, to, steps);
    if (from != to) ++differences;
    if (first.empty() || last.empty()) break;
    if (first.front() != last.front()) return joined;
    text += first.front();
    first.remove_prefix(1);
    last.remove_prefix(1);
  }
  return differences > 1 || first.size() != last.size() ? joined : text;
}

const char* Remark(const Place& place, bool written) {
  switch (place.role) {
    case Place::Role::kDevice: return " (the device's own)";
    case Place::Role::kMark: return " (device's mark: 0 there means 99)";
    case Place::Role::kElsewhere: return " (tells how block 44 is read)";
    case Place::Role::kChangeMask: return " (change mask, written only)";
    case Place::Role::kSetting: break;
  }
  if (place.inverted) return " (1 means no)";
  return written ? "" : " (read only)";
}

std::string Where(const Place& first, const Place& last) {
  const int end = last.at + last.length - 1;
  std::string bytes = (first.at == end ? "byte " : "bytes ") + Range(first.at, end);
  if (first.mask == 0xFF) return bytes;
  if (first.at == end || first.mask == last.mask) {
    return bytes + Bits(static_cast<unsigned>(first.mask | last.mask));
  }
  const int width = std::popcount(first.mask);
  return bytes + ", " + std::to_string(width) + (width == 1 ? " bit each" : " bits each");
}

/// The rows of every block, from a survey and the settings that the encoder writes.
std::map<int, Rows> RowsOf(const std::vector<Place>& places,
                           const std::set<std::pair<int, std::string>>& written) {
  const auto is_written = [&written](const Place& place) {
    return written.count({place.block, place.name}) != 0;
  };
  std::map<int, std::multimap<int, Row>> sorted;  // by block and byte
  for (auto first = places.begin(); first != places.end();) {
    const auto next = std::find_if(first, places.end(), [&](const Place& place) {
      return place.word != first->word || place.block != first->block ||
             is_written(place) != is_written(*first);
    });
    const Place& last = *(next - 1);
    sorted[first->block].insert(
        {first->at,
         {Where(*first, last),
          "`" + NameRange(first->name, last.name) + "`" + Remark(*first, is_written(*first))}});
    first = next;
  }
  std::map<int, Rows> rows;
  for (auto& [block, list] : sorted) {
    for (auto& [at, row] : list) rows[block].push_back(std::move(row));
  }
  return rows;
}

std::map<int, Rows> RowsOf(const Family& family) {
  RecordEnvironment env;
  env.identity.MaxCam = kMostCameras;
  SetModelFlags(env.identity, family.model_code);
  const auto rec = std::make_unique<MuxData>(env);
  std::set<std::pair<int, std::string>> written;
  for (const Place& place : SurveyRecord(*rec, env.identity, kMostBlocks, Direction::kWritten)) {
    if (!IsDeviceBlock(place.block)) written.insert({place.block, place.name});
  }
  auto rows = RowsOf(SurveyRecord(*rec, env.identity, kMostBlocks), written);
  // Where a device has the extra quality feature, it packs its qualities differently.
  rec->Extra_Quality_Feature.Load(1);
  for (auto& [block, other_rows] : RowsOf(SurveyRecord(*rec, env.identity, kMostBlocks), written)) {
    for (Row& row : other_rows) {
      Rows& usual = rows[block];
      if (std::find(usual.begin(), usual.end(), row) != usual.end()) continue;
      row.what += " (when `Extra_Quality_Feature` is not 0)";
      usual.push_back(std::move(row));
    }
  }
  return rows;
}

/// What a block holds, and for which families: alike where only numbers differ.
struct BlockEntry {
  int first = 0;
  int last = 0;
  std::vector<std::pair<Rows, std::string>> variants;  ///< rows and the families that have them
  std::vector<Rows> last_rows;                         ///< of the last block, by variant
};

std::string WithoutNumbers(const Rows& rows, const std::string& families) {
  std::string text = families;
  for (const Row& row : rows) {
    text += row.where;
    std::string_view what = row.what;
    while (!what.empty()) {
      if (TakeNumber(what).empty()) {
        text += what.front();
        what.remove_prefix(1);
      }
    }
  }
  return text;
}

std::string Shape(const BlockEntry& entry) {
  std::string shape;
  for (const auto& [rows, families] : entry.variants) shape += WithoutNumbers(rows, families);
  return shape;
}

/// One entry a block, in block order.
std::vector<BlockEntry> AllBlocks() {
  std::map<int, BlockEntry> blocks;
  for (const Family& family : kFamilies) {
    for (const auto& [block, family_rows] : RowsOf(family)) {
      const Rows& rows = family_rows;
      BlockEntry& entry = blocks[block];
      entry.first = entry.last = block;
      auto found = std::find_if(entry.variants.begin(), entry.variants.end(),
                                [&rows](const auto& variant) { return variant.first == rows; });
      if (found == entry.variants.end()) {
        found = entry.variants.insert(entry.variants.end(), {rows, ""});
        entry.last_rows.push_back(rows);
      }
      found->second += (found->second.empty() ? "" : ", ") + std::string(family.name);
    }
  }
  std::vector<BlockEntry> list;
  list.reserve(blocks.size());
  for (auto& [block, entry] : blocks) list.push_back(std::move(entry));
  return list;
}

/// Neighbouring blocks that differ in numbers only become one entry.
std::vector<BlockEntry> Grouped(std::vector<BlockEntry> blocks) {
  std::vector<BlockEntry> groups;
  for (BlockEntry& block : blocks) {
    if (!groups.empty() && groups.back().last + 1 == block.first &&
        Shape(groups.back()) == Shape(block)) {
      groups.back().last = block.last;
      groups.back().last_rows = std::move(block.last_rows);
    } else {
      groups.push_back(std::move(block));
    }
  }
  return groups;
}

void Print(std::string& out, const BlockEntry& entry, const std::string& all_families) {
  out += entry.first == entry.last ? "\n## Block " : "\n## Blocks ";
  out += Range(entry.first, entry.last) + "\n";
  for (std::size_t v = 0; v < entry.variants.size(); ++v) {
    const auto& [rows, families] = entry.variants[v];
    if (families != all_families) out += "\n" + families + ":\n";
    out += "\n| Where | Setting |\n|---|---|\n";
    for (std::size_t i = 0; i < rows.size(); ++i) {
      out += "| " + rows[i].where + " | " +
             NameRange(rows[i].what, entry.last_rows[v][i].what, entry.last - entry.first) + " |\n";
    }
  }
}

}  // namespace

std::string BlockMapMarkdown() {
  std::string all_families;
  for (const Family& family : kFamilies) {
    all_families += (all_families.empty() ? "" : ", ") + std::string(family.name);
  }
  std::string out =
      "# Block map\n\n"
      "Which block holds which setting, made from the block layouts by `scripts/block-map`: do not "
      "edit.\n\n"
      "Block n is at bytes (n - 1) * 16 to (n - 1) * 16 + 15 of an image. Bytes count from 0 in "
      "the block,\nbits from 0, the least significant. A setting of every camera, alarm input or "
      "entry has its 0-based\nindex in brackets; several to a byte start at the low bits. Shown "
      "are "
      "16 cameras: a device with fewer\nuses the first ones, except in blocks 52, 54, 56 to 58, "
      "62, "
      "63 and 214 to 216, which always hold 16.\nWhere a table names model families (with their "
      "model codes), other families do not have it. Blocks\nthat are not listed carry no "
      "setting.\n\n"
      "Numbers of two bytes have the most significant first. A flag in a byte of its own (blocks "
      "59 and 60)\nis true for 1 only. Titles are padded with blanks; other texts end at their "
      "first "
      "zero byte. A year\nbyte counts from 2000 below 60, else from 1900. An event type is 0 "
      "when bit 6 is 0, else 2 when bit 7\nis 1, else 1. The activity grid of camera c is in "
      "blocks "
      "85 + 2c and 86 + 2c.\n";
  for (const BlockEntry& entry : Grouped(AllBlocks())) Print(out, entry, all_families);
  return out;
}

}  // namespace quorvel
