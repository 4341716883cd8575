#include "muxhost/find/setting_table.h"

#include <utility>

namespace quorvel::muxhost {

bool SettingTable::Update() {
  MainMenuCtrl& control = session_.Control();
  Seen now{session_.Generation(), session_.LastExchange().unanswered, control.Image(),
           control.EditedImage(), control.ModifiedBlocks()};
  if (seen_ == now) return false;
  seen_ = std::move(now);
  rows_ = control.AllSettings();
  search_ = SettingSearch(rows_);
  CompareFile();
  return true;
}

void SettingTable::CompareWith(std::optional<std::vector<Byte>> file) {
  file_ = std::move(file);
  CompareFile();
}

void SettingTable::CompareFile() {
  cause_.clear();
  in_file_ = {};
  if (!file_) return;
  const FileReview review = session_.Control().Review(*file_);
  cause_ = review.cause;
  in_file_ = OldValues(review.lines);
}

std::vector<std::size_t> SettingTable::List(Among among, std::string_view words) const {
  auto found = search_.Find(words);
  std::erase_if(found, [&](std::size_t number) {
    const SettingRow& row = rows_.at(number);
    switch (among) {
      case Among::kAll: return false;
      case Among::kChanged: return !row.differs_from_device;
      case Among::kNotFactory: return !row.differs_from_factory;
      case Among::kNotFile: return !InFile(row).has_value();
    }
    return false;
  });
  return found;
}

}  // namespace quorvel::muxhost
