#include "ui/editing/email_address_box.h"

#include <algorithm>
#include <array>

#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

using Halves = std::array<std::array<BlockText, clsEmailNotify::kBlocksPerHalf>, 2>;

int FirstBlockOfHalf(int address, std::size_t half) {
  return clsEmailNotify::FirstBlock(address) +
         static_cast<int>(half) * clsEmailNotify::kBlocksPerHalf;
}

Halves StoredHalves(const clsEmailNotify& notify, int address) {
  Halves halves;
  for (std::size_t half = 0; half < halves.size(); ++half) {
    int block = FirstBlockOfHalf(address, half);
    for (BlockText& text : halves.at(half)) text = notify.BlkStrInit(block++);
  }
  return halves;
}

}  // namespace

EmailAddressField::EmailAddressField(Editor& editor, const Context& context, int address,
                                     TextBox& box, Label& warning)
    : address_(address),
      box_(box),
      notes_(context.texts, warning),
      text_(box, context.platform, notes_),
      would_be_empty_(context.GetText(kTextAddressEmptied)),
      would_be_cut_(context.GetText(kTextAddressCut)),
      doubtful_(context.GetText(kTextAddressDoubtful)),
      half_address_(context.GetText(kTextHalfAddress)) {
  notes_.MakeRoomFor({would_be_empty_, would_be_cut_, doubtful_, half_address_});
  editor.AddDoubt(box, [this] { return text_.Typed() && Doubtful() ? doubtful_ : std::string(); });
}

void EmailAddressField::Fill(MuxData& record, int /*line*/) {
  const clsEmailNotify& notify = record.AlmEmailNotify;
  const std::string address = notify.EmailString(address_);
  half_stored_ = address.empty() && StoredHalves(notify, address_) != Halves{};
  text_.Show(address);
  text_.SetNote([this] { return Warning(); });
}

bool EmailAddressField::Doubtful() const {
  const std::string& text = box_.Text();
  return text.find(' ') != std::string::npos || std::ranges::count(text, '@') > 1;
}

std::string EmailAddressField::Warning() const {
  if (!box_.Enabled()) return {};
  const std::string text = text_.Bytes();
  if (text.empty()) return half_stored_ && !box_.Edited() ? half_address_ : std::string();
  const auto [local, domain] = clsEmailNotify::Split(text);
  if (local.empty() || domain.empty()) return would_be_empty_;
  if (std::max(local.size(), domain.size()) > clsEmailNotify::kLongestHalf) return would_be_cut_;
  return Doubtful() ? doubtful_ : std::string();
}

/// A half whose later blocks have become empty is listed here, because the record lists it for the
/// texts that it still holds only.
void EmailAddressField::Write(MuxData& record, int /*line*/) {
  const auto typed = text_.Typed();
  if (!typed && !Cleared()) return;
  clsEmailNotify& notify = record.AlmEmailNotify;
  const Halves before = StoredHalves(notify, address_);
  notify.EmailString(address_, typed.value_or(""));
  const Halves after = StoredHalves(notify, address_);
  for (std::size_t half = 0; half < after.size(); ++half) {
    if (after.at(half) == before.at(half)) continue;
    const int first = FirstBlockOfHalf(address_, half);
    for (int block = first; block < first + clsEmailNotify::kBlocksPerHalf; ++block) {
      record.MarkModified(block);
    }
  }
}

void EmailAddressField::Tell(MuxData& /*record*/, int /*line*/, ShownSetting& shown) const {
  const int first = clsEmailNotify::FirstBlock(address_);
  for (int block = first; block < first + 2 * clsEmailNotify::kBlocksPerHalf; ++block) {
    shown.settings.push_back("AlmEmailNotify.BlkStrInit(" + std::to_string(block) + ")");
  }
  shown.control = &box_;
  shown.is = box_.Text();
}

}  // namespace quorvel
