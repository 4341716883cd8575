#pragma once

#include <QLineEdit>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/text_box.h"

namespace quorvel::qt {

/// A line of editable text.
class TextBoxView : public ViewOf<TextBox, QLineEdit> {
 public:
  TextBoxView(VerbsUnderWay& verbs, TextBox& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
  void FitWidth();
};

}  // namespace quorvel::qt
