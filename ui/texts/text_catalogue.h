#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "quorvel/class_factory.h"

namespace quorvel {

class TextCatalogue;

/// Ready-made texts that the editors use over and over, filled once when the object is created. A
/// text source that is installed later does not change them.
struct GlobalCnst {
  explicit GlobalCnst(const TextCatalogue& texts);

  /// Monday to Sunday, index 0 to 6; empty for another index.
  [[nodiscard]] const std::string& ctDayOfWeek(int i) const;
  /// Monday to Friday, Saturday and Sunday, all week, index 0 to 2; empty for another index.
  [[nodiscard]] const std::string& ctDayWildcard(int i) const;

  const std::string cnstrAND = "AND", cnstrOR = "OR";
  const std::string cnstrEvent, cnstrTL, cnstrEvTL, cnstrTop, cnstrBottom;
  const std::string cnstr2X = "2x", cnstr4X = "4x", cnstrI = "I";
  const std::string cnstrIntrus, cnstrActivity, cnstrInAct, cnstrActive, cnstrAC, cnstrDC;
  const std::string cnstr12H, cnstr24h, cnstrMM, cnstrDD, cnstrYY;
  const std::string cnstrMono, cnstrColor, cnstrField, cnstrFrame;
  const std::string cnstrOK, cnstrCancel, cnstrExcl, cnstrInter, cnstrNoChg, cnstrON, cnstrOFF;
  const std::string cnstrSTD, cnstrLow, cnstrMed, cnstrHigh, cnstrClose, cnstrOpen;
  const std::string cnstrNo, cnstrYes, cnstrDisable, cnstrEnable, cnstrNone;
  const std::string cnstrFirst = "1", cnstrSecond = "2", cnstrFPlusS = "1+2";
  const std::string cnstrExt1 = "EXT1", cnstrExt2 = "EXT2", cnstrExt3 = "EXT3", cnstrExt4 = "EXT4";

 private:
  std::array<std::string, 7> days_;
  std::array<std::string, 3> wildcards_;
};

/// Eight message texts, filled once when the object is created.
struct ObjStr {
  explicit ObjStr(const TextCatalogue& texts);

  const std::string objstMon, objstInvalidPass, objstWarn, objstExit;
  const std::string objstCam, objstAlarm, objstFWarn, objstMesg;
};

/// What all editors say of steps, marks and help; filled once, for the first of them.
struct EditorWords {
  explicit EditorWords(const TextCatalogue& texts);

  const std::string undo, redo, put_back, put_back_to_device;
  const std::string close_changed, changed, changed_from, changed_from_nothing;
  const std::string range, most_characters, stored, blocks;
};

/// Every text that the user sees, by id. The built-in English texts can be replaced by a text
/// source that the host offers as a class.
class TextCatalogue {
 public:
  /// The text of an id, UTF-8: the text source's, or the built-in one when there is no source or it
  /// fails. Empty for an unknown id.
  [[nodiscard]] std::string GetText(int id) const;

  /// Takes the texts from a new object of the class; false for a class that cannot be created, and
  /// then the present source stays.
  bool CreateTextSource(const ClassFactory& classes, std::string_view class_id);

  /// Texts that were asked for, by id.
  using KnownTexts = std::unordered_map<int, std::string>;
  /// Gives the texts of `other`, which outlives this one, and asks it for none that `known` holds.
  void Follow(TextCatalogue& other, std::shared_ptr<KnownTexts> known);
  /// Counts the text sources that were installed.
  [[nodiscard]] int SourceNumber() const { return source_number_; }

  /// Creates the two catalogues of ready-made texts, if they are not there yet.
  void CreateCatalogues();
  /// The catalogues, created when they are missing.
  [[nodiscard]] const GlobalCnst& Constants();
  [[nodiscard]] const ObjStr& Objects();
  /// The same of these.
  [[nodiscard]] const EditorWords& OfEditors();

 private:
  std::shared_ptr<AutomationObject> source_;
  int source_number_ = 0;
  TextCatalogue* followed_ = nullptr;
  std::shared_ptr<KnownTexts> known_;
  std::unique_ptr<GlobalCnst> constants_;
  std::unique_ptr<ObjStr> objects_;
  std::unique_ptr<EditorWords> of_editors_;
};

}  // namespace quorvel
