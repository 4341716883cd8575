#include "ui/menu/text_catalogue.h"

#include "resources/text_table.h"

namespace quorvel {

namespace {

template <std::size_t N>
const std::string& EntryOrNone(const std::array<std::string, N>& texts, int i) {
  static const std::string none;
  return i >= 0 && i < static_cast<int>(N) ? texts[static_cast<std::size_t>(i)] : none;
}

}  // namespace

GlobalCnst::GlobalCnst(const TextCatalogue& texts)
    : cnstrEvent(texts.GetText(14)),
      cnstrTL(texts.GetText(49)),
      cnstrEvTL(texts.GetText(15)),
      cnstrTop(texts.GetText(51)),
      cnstrBottom(texts.GetText(4)),
      cnstrIntrus(texts.GetText(24)),
      cnstrActivity(texts.GetText(2)),
      cnstrInAct(texts.GetText(22)),
      cnstrActive(texts.GetText(1)),
      cnstrAC(texts.GetText(0)),
      cnstrDC(texts.GetText(8)),
      cnstr12H("12 " + texts.GetText(20)),
      cnstr24h("24 " + texts.GetText(20)),
      cnstrMM(texts.GetText(27)),
      cnstrDD(texts.GetText(9)),
      cnstrYY(texts.GetText(55)),
      cnstrMono(texts.GetText(34)),
      cnstrColor(texts.GetText(7)),
      cnstrField(texts.GetText(18)),
      cnstrFrame(texts.GetText(19)),
      cnstrOK(texts.GetText(41)),
      cnstrCancel(texts.GetText(6)),
      cnstrExcl(texts.GetText(12)),
      cnstrInter(texts.GetText(23)),
      cnstrNoChg(texts.GetText(38)),
      cnstrON(texts.GetText(42)),
      cnstrOFF(texts.GetText(40)),
      cnstrSTD(texts.GetText(47)),
      cnstrLow(texts.GetText(26)),
      cnstrMed(texts.GetText(31)),
      cnstrHigh(texts.GetText(21)),
      cnstrClose(texts.GetText(35)),
      cnstrOpen(texts.GetText(36)),
      cnstrNo(texts.GetText(37)),
      cnstrYes(texts.GetText(54)),
      cnstrDisable(texts.GetText(10)),
      cnstrEnable(texts.GetText(11)),
      cnstrNone(texts.GetText(39)),
      days_{texts.GetText(28), texts.GetText(50), texts.GetText(52), texts.GetText(48),
            texts.GetText(17), texts.GetText(44), texts.GetText(46)},
      wildcards_{texts.GetText(29), texts.GetText(45), texts.GetText(30)} {}

const std::string& GlobalCnst::ctDayOfWeek(int i) const { return EntryOrNone(days_, i); }
const std::string& GlobalCnst::ctDayWildcard(int i) const { return EntryOrNone(wildcards_, i); }

ObjStr::ObjStr(const TextCatalogue& texts)
    : objstMon(texts.GetText(33)),
      objstInvalidPass(texts.GetText(25)),
      objstWarn(texts.GetText(53)),
      objstExit(texts.GetText(16)),
      objstCam(texts.GetText(5)),
      objstAlarm(texts.GetText(3)),
      objstFWarn(texts.GetText(43)),
      objstMesg(texts.GetText(32)) {}

std::string TextCatalogue::GetText(int id) const {
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

void TextCatalogue::CreateTextSource(const ClassFactory& classes, std::string_view class_id) {
  try {
    if (auto source = classes.Create(class_id)) source_ = std::move(source);
  } catch (...) {  // nobody offers the class, or it cannot be made: the present source stays
  }
}

void TextCatalogue::CreateCatalogues() {
  // A text source may call back and have the catalogues created meanwhile; the first ones stay.
  if (constants_ == nullptr) {
    auto constants = std::make_unique<GlobalCnst>(*this);
    if (constants_ == nullptr) constants_ = std::move(constants);
  }
  if (objects_ == nullptr) {
    auto objects = std::make_unique<ObjStr>(*this);
    if (objects_ == nullptr) objects_ = std::move(objects);
  }
}

const GlobalCnst& TextCatalogue::Constants() {
  CreateCatalogues();
  return *constants_;
}

const ObjStr& TextCatalogue::Objects() {
  CreateCatalogues();
  return *objects_;
}

}  // namespace quorvel
