#include "platform/qt/label_buddies.h"

#include "platform/qt/texts.h"

namespace quorvel::qt {

void NameByLabel(const Widget& model, QWidget& body) {
  const Widget* const label = model.NamingLabel();
  if (label == nullptr) return;
  auto* const view = body.window()->findChild<QLabel*>(Shown(label->Name()));
  if (view == nullptr || view->buddy() == &body) return;
  view->setBuddy(&body);
  ShowCaption(*view, label->Caption());
}

void ShowCaption(QLabel& label, const std::string& caption) {
  label.setText(label.buddy() == nullptr ? Shown(caption) : Captioned(caption));
}

}  // namespace quorvel::qt
