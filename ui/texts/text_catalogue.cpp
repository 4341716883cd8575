#include "ui/texts/text_catalogue.h"

#include <utility>

#include "resources/text_table.h"

namespace quorvel {

namespace {

template <std::size_t N>
const std::string& EntryOrNone(const std::array<std::string, N>& texts, int i) {
  static const std::string none;
  return i >= 0 && i < static_cast<int>(N) ? texts[static_cast<std::size_t>(i)] : none;
}

/// A text source may call back and have the texts asked for meanwhile; the first ones stay.
template <class Words>
void CreateOnce(std::unique_ptr<Words>& words, const TextCatalogue& texts) {
  if (words != nullptr) return;
  auto created = std::make_unique<Words>(texts);
  if (words == nullptr) words = std::move(created);
}

}  // namespace

GlobalCnst::GlobalCnst(const TextCatalogue& texts)
    : cnstrEvent(texts.GetText(txt::kEvent)),
      cnstrTL(texts.GetText(txt::kTl)),
      cnstrEvTL(texts.GetText(txt::kEventAndTl)),
      cnstrTop(texts.GetText(txt::kTop)),
      cnstrBottom(texts.GetText(txt::kBottom)),
      cnstrIntrus(texts.GetText(txt::kIntrusion)),
      cnstrActivity(texts.GetText(txt::kActivity)),
      cnstrInAct(texts.GetText(txt::kInactive)),
      cnstrActive(texts.GetText(txt::kActive)),
      cnstrAC(texts.GetText(txt::kAc)),
      cnstrDC(texts.GetText(txt::kDc)),
      cnstr12H("12 " + texts.GetText(txt::kHourUnit)),
      cnstr24h("24 " + texts.GetText(txt::kHourUnit)),
      cnstrMM(texts.GetText(txt::kMonthFirst)),
      cnstrDD(texts.GetText(txt::kDayFirst)),
      cnstrYY(texts.GetText(txt::kYearFirst)),
      cnstrMono(texts.GetText(txt::kMono)),
      cnstrColor(texts.GetText(txt::kColour)),
      cnstrField(texts.GetText(txt::kField)),
      cnstrFrame(texts.GetText(txt::kFrame)),
      cnstrOK(texts.GetText(txt::kOk)),
      cnstrCancel(texts.GetText(txt::kCancel)),
      cnstrExcl(texts.GetText(txt::kExclusive)),
      cnstrInter(texts.GetText(txt::kInterleaved)),
      cnstrNoChg(texts.GetText(txt::kNoChange)),
      cnstrON(texts.GetText(txt::kOn)),
      cnstrOFF(texts.GetText(txt::kOff)),
      cnstrSTD(texts.GetText(txt::kStandard)),
      cnstrLow(texts.GetText(txt::kLow)),
      cnstrMed(texts.GetText(txt::kMedium)),
      cnstrHigh(texts.GetText(txt::kHigh)),
      cnstrClose(texts.GetText(txt::kNormallyClosed)),
      cnstrOpen(texts.GetText(txt::kNormallyOpen)),
      cnstrNo(texts.GetText(txt::kNo)),
      cnstrYes(texts.GetText(txt::kYes)),
      cnstrDisable(texts.GetText(txt::kDisable)),
      cnstrEnable(texts.GetText(txt::kEnable)),
      cnstrNone(texts.GetText(txt::kNone)),
      days_{texts.GetText(txt::kMonday),    texts.GetText(txt::kTuesday),
            texts.GetText(txt::kWednesday), texts.GetText(txt::kThursday),
            texts.GetText(txt::kFriday),    texts.GetText(txt::kSaturday),
            texts.GetText(txt::kSunday)},
      wildcards_{texts.GetText(txt::kMondayToFriday), texts.GetText(txt::kSaturdayAndSunday),
                 texts.GetText(txt::kMondayToSunday)} {}

const std::string& GlobalCnst::ctDayOfWeek(int i) const { return EntryOrNone(days_, i); }
const std::string& GlobalCnst::ctDayWildcard(int i) const { return EntryOrNone(wildcards_, i); }

ObjStr::ObjStr(const TextCatalogue& texts)
    : objstMon(texts.GetText(txt::kMonitor)),
      objstInvalidPass(texts.GetText(txt::kIncorrectPassword)),
      objstWarn(texts.GetText(txt::kWarning)),
      objstExit(texts.GetText(txt::kExit)),
      objstCam(texts.GetText(txt::kCamera)),
      objstAlarm(texts.GetText(txt::kAlarm)),
      objstFWarn(texts.GetText(txt::kFirstDownloadOrRestore)),
      objstMesg(texts.GetText(txt::kMessage)) {}

EditorWords::EditorWords(const TextCatalogue& texts)
    : undo(texts.GetText(kTextUndo)),
      redo(texts.GetText(kTextRedo)),
      put_back(texts.GetText(kTextPutBack)),
      put_back_to_device(texts.GetText(kTextPutBackToDevice)),
      close_changed(texts.GetText(kTextCloseChanged)),
      changed(texts.GetText(kTextChanged)),
      changed_from(texts.GetText(kTextChangedFrom)),
      changed_from_nothing(texts.GetText(kTextChangedFromNothing)),
      range(texts.GetText(kTextRange)),
      most_characters(texts.GetText(kTextMostCharacters)),
      stored(texts.GetText(kTextStored)),
      blocks(texts.GetText(kTextBlocks)) {}

void TextCatalogue::Follow(TextCatalogue& other, std::shared_ptr<KnownTexts> known) {
  followed_ = &other;
  known_ = std::move(known);
}

std::string TextCatalogue::GetText(int id) const {
  if (followed_ != nullptr) {
    const auto found = known_->find(id);
    if (found != known_->end()) return found->second;
    std::string text = followed_->GetText(id);
    return known_->insert_or_assign(id, std::move(text)).first->second;
  }
  if (const auto source = source_) {  // a text source may install another one meanwhile
    try {
      std::string text = source->Call("getresourcestring", id);
      // A source may not know the added texts.
      if (!text.empty() || id < kFirstAddedText) return text;
    } catch (...) {  // whatever the host's object throws, the built-in text serves
    }
  }
  return std::string(BuiltInText(id));
}

bool TextCatalogue::CreateTextSource(const ClassFactory& classes, std::string_view class_id) {
  try {
    auto source = classes.Create(class_id);
    if (source == nullptr) return false;
    source_ = std::move(source);
    ++source_number_;
    return true;
  } catch (...) {  // the host does not offer the class, or it cannot be made
    return false;
  }
}

void TextCatalogue::CreateCatalogues() {
  if (followed_ != nullptr) return followed_->CreateCatalogues();
  CreateOnce(constants_, *this);
  CreateOnce(objects_, *this);
}

const GlobalCnst& TextCatalogue::Constants() {
  if (followed_ != nullptr) return followed_->Constants();
  CreateCatalogues();
  return *constants_;
}

const ObjStr& TextCatalogue::Objects() {
  if (followed_ != nullptr) return followed_->Objects();
  CreateCatalogues();
  return *objects_;
}

const EditorWords& TextCatalogue::OfEditors() {
  if (followed_ != nullptr) return followed_->OfEditors();
  CreateOnce(of_editors_, *this);
  return *of_editors_;
}

}  // namespace quorvel
