#include "ui/editing/email_address_box.h"

#include <algorithm>
#include <array>

#include "resources/text_table.h"

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

EmailAddressField::EmailAddressField(const Context& context, int address, TextBox& box,
                                     Label& warning)
    : address_(address),
      box_(box),
      warning_(warning),
      text_(box, context.platform),
      would_be_empty_(context.GetText(kTextAddressEmptied)),
      would_be_cut_(context.GetText(kTextAddressCut)) {
  warning_.SetKeepsPlace(true);
  text_.on_change = [this] { Warn(); };
}

void EmailAddressField::Fill(MuxData& record, int /*line*/) {
  text_.Show(record.AlmEmailNotify.EmailString(address_));
}

void EmailAddressField::Warn() {
  const std::string text = text_.Bytes();
  const auto [local, domain] = clsEmailNotify::Split(text);
  const bool lost = !text.empty() && (local.empty() || domain.empty());
  const bool cut = std::max(local.size(), domain.size()) > clsEmailNotify::kLongestHalf;
  warning_.SetCaption(lost ? would_be_empty_ : cut ? would_be_cut_ : "");
}

/// A half whose later blocks have become empty is listed here, because the record lists it for the
/// texts that it still holds only.
void EmailAddressField::Write(MuxData& record, int /*line*/) {
  const auto typed = text_.Typed();
  if (!typed) return;
  clsEmailNotify& notify = record.AlmEmailNotify;
  const Halves before = StoredHalves(notify, address_);
  notify.EmailString(address_, *typed);
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
  shown.was = text_.Shown();
  shown.is = box_.Text();
}

}  // namespace quorvel
