#pragma once

#include <string>

#include "ui/editing/device_text.h"
#include "ui/editing/editor.h"
#include "ui/editing/field.h"

namespace quorvel {

/// A text box for one of the e-mail addresses that the device mails to or from, with a line below
/// that warns of what would not be kept, and of what is hardly an address. Where OK would store one
/// of the latter, the editor asks first.
///
/// The device holds the parts before and after the "@" apart. A part without the other reads as no
/// address; the box is empty then, and emptying it once more clears the part. An address that
/// the user left alone stays as it is stored: not every pair of parts that a device holds reads as
/// an address.
class EmailAddressField : public Field {
 public:
  /// `address` as in clsEmailNotify::EmailString.
  EmailAddressField(Editor& editor, const Context& context, int address, TextBox& box,
                    Label& warning);
  void PutBack(int /*line*/) override { text_.PutBack(); }
  [[nodiscard]] std::optional<std::string> OpenedText(int /*line*/) const override {
    return half_stored_ ? std::nullopt : std::optional(text_.Shown());
  }
  void TakeFrom(MuxData& record, int /*line*/) override {
    text_.Type(record.AlmEmailNotify.EmailString(address_));
  }

 protected:
  void Fill(MuxData& record, int line) override;
  void Write(MuxData& record, int line) override;
  void Tell(MuxData& record, int line, ShownSetting& shown) const override;
  [[nodiscard]] bool LineDiffers(int /*line*/) const override {
    return text_.Typed().has_value() || Cleared();
  }
  [[nodiscard]] EditedValue ValueOf(int line) const override {
    return {LineDiffers(line) ? 1 : 0, box_.Text()};
  }
  void TellChanges(int /*line*/, std::vector<FieldChange>& changes) const override {
    changes.push_back({.control = &box_, .was = text_.Shown()});
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int /*line*/) const override {
    return &control == &box_;
  }

 private:
  /// A half that was stored is to be cleared.
  [[nodiscard]] bool Cleared() const {
    return half_stored_ && box_.Edited() && box_.Text().empty();
  }
  [[nodiscard]] std::string Warning() const;
  [[nodiscard]] bool Doubtful() const;

  int address_;
  TextBox& box_;
  NoteLine notes_;
  DeviceText text_;
  bool half_stored_ = false;
  std::string would_be_empty_;
  std::string would_be_cut_;
  std::string doubtful_;
  std::string half_address_;
};

}  // namespace quorvel
