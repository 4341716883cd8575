#pragma once

#include <string>

#include "ui/editing/device_text.h"
#include "ui/editing/editor_part.h"
#include "ui/editing/field.h"

namespace quorvel {

class EmailAddressField : public Field {
 public:
  EmailAddressField(const Context& context, int address, TextBox& box, Label& warning);
  void PutBack(int /*line*/) override { text_.PutBack(); }

 protected:
  void Fill(MuxData& record, int line) override;
  void Write(MuxData& record, int line) override;
  void Tell(MuxData& record, int line, ShownSetting& shown) const override;
  [[nodiscard]] bool LineDiffers(int /*line*/) const override { return text_.Typed().has_value(); }

 private:
  void Warn();
  int address_;
  TextBox& box_;
  Label& warning_;
  DeviceText text_;
  std::string would_be_empty_;
  std::string would_be_cut_;
};

}  // namespace quorvel
