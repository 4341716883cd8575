#include <fstream>

#include "core/survey.h"
#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

/// Follows block_rows.txt line by line.
class BlockRows : public Codec {
 protected:
  /// "== WHAT: model CODE, CAMERAS cameras"
  void Start(const std::string& row) {
    int code = -1;
    int cameras = -1;
    const char* const device = row.c_str() + row.rfind(':');
    ASSERT_EQ(std::sscanf(device, ": model %d, %d cameras", &code, &cameras), 2);
    Make(code, cameras);
    is_decoded_ = false;
  }
  /// "BLOCK < BYTES", "BLOCK > BYTES" or "SETTING = VALUE; ..."
  void Follow(const std::string& line) {
    std::istringstream words(line);
    int block = 0;
    char sign = 0;
    if (!(words >> block >> sign)) return Compare(line);
    const std::string bytes = line.substr(line.find(sign) + 2);
    if (sign == '<') {
      Put(block, bytes);
      is_decoded_ = false;
    } else {
      DecodeOnce();
      EXPECT_EQ(Rewritten(block), bytes) << "block " << block;
    }
  }

 private:
  void DecodeOnce() {
    if (std::exchange(is_decoded_, true)) return;
    Decode();
    values_.clear();
  }
  void Survey() {
    using Role = layout::Place::Role;
    for (const auto& place : SurveyRecord(*rec_, env_.identity, 225)) {
      if (place.role == Role::kSetting || place.role == Role::kDevice) {
        values_[place.name] = place.value;
      }
    }
  }
  void Compare(std::string_view settings) {
    DecodeOnce();
    if (values_.empty()) Survey();
    while (!settings.empty()) {
      const auto setting = settings.substr(0, settings.find("; "));
      settings.remove_prefix(std::min(settings.size(), setting.size() + 2));
      const auto name = setting.substr(0, setting.find(" = "));
      const auto found = values_.find(name);
      EXPECT_EQ(found == values_.end() ? "-" : found->second, setting.substr(name.size() + 3))
          << name;
    }
  }
  bool is_decoded_ = false;
  std::map<std::string, std::string, std::less<>> values_;
};

TEST_F(BlockRows, AreReadAndWrittenAsTheFileSays) {
  std::ifstream file(QUORVEL_SOURCE_DIR "/tests/core/block_rows.txt");
  std::string row;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    if (line.starts_with("== ")) {
      row = line;
      Start(row);
      continue;
    }
    SCOPED_TRACE(row);
    Follow(line);
  }
  EXPECT_FALSE(row.empty());
}

}  // namespace
}  // namespace quorvel
