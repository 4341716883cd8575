#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <vector>

#include "core/codec.h"
#include "core/survey.h"
#include "quorvel/default_images.h"

namespace quorvel {
namespace {

/// Numbers by the name of their setting without its indices, as a device of that code has them.
std::multimap<std::string, int> FactoryValues(int resource, int code) {
  BlockImage image = LoadDefaultImage(resource);
  image.Block(kIdentityBlock)[1] = static_cast<Byte>(code);
  RecordEnvironment env;
  MuxData rec(env);
  DecodeImage(image, env, rec);
  std::multimap<std::string, int> values;
  for (const SettingLine& line : ListSettings(rec, env.identity, image.BlkCount())) {
    std::string name;
    int depth = 0;
    for (const char letter : line.name) {
      if (letter == '(') ++depth;
      if (depth == 0) name += letter;
      if (letter == ')') --depth;
    }
    const bool is_yes = line.value == "yes";
    values.emplace(name, is_yes ? 1 : std::atoi(line.value.c_str()));
  }
  return values;
}

/// The loader gives images to devices of other model codes as well.
TEST(FactorySettings, LieInTheEditorsRanges) {
  std::map<std::string, int> seen;
  const std::pair<int, std::vector<int>> devices[] = {
      {104, {0, 1}}, {301, {0, 1, 2, 5}}, {401, {6, 9, 14, 16, 18}}};
  for (const auto& [resource, codes] : devices) {
    for (const int code : codes) {
      const auto values = FactoryValues(resource, code);
      std::ifstream file(QUORVEL_SOURCE_DIR "/tests/resources/editor_ranges.txt");
      for (std::string row; std::getline(file, row);) {
        SCOPED_TRACE(testing::Message()
                     << "image " << resource << ", code " << code << ": " << row);
        std::istringstream words(row);
        int first = 0, last = 0, low = 0, high = 0;
        char dots = 0;
        if (!(words >> first >> last >> low >> dots >> dots >> high)) continue;
        for (std::string name; words >> name;) {
          if (code < first || code > -last) continue;  // the dash is read as a sign
          const auto [begin, end] = values.equal_range(name);
          for (auto it = begin; it != end; ++it) {
            EXPECT_TRUE(low <= it->second && it->second <= high) << name << " is " << it->second;
            ++seen[row];
          }
        }
      }
    }
  }
  EXPECT_EQ(seen.size(), 43U);  // rows
  EXPECT_THROW(static_cast<void>(LoadDefaultImage(0)), std::invalid_argument);
}

}  // namespace
}  // namespace quorvel
