#include "platform/qt/label_buddies.h"

#include <algorithm>

#include "platform/qt/texts.h"
#include "quorvel/widgets/dialog.h"

namespace quorvel::qt {

namespace {

/// A control that is called by its label hands out the label's caption itself, which tells labels
/// of equal texts apart.
const Widget* LabelOf(const Widget& model) {
  const auto& all = model.Owner().Widgets();
  const auto found = std::find_if(all.begin(), all.end(), [&model](const Widget* it) {
    return it->Kind() == WidgetKind::kLabel && it != &model &&
           &it->Caption() == &model.SpokenName();
  });
  return found == all.end() ? nullptr : *found;
}

}  // namespace

void NameByLabel(const Widget& model, QWidget& body) {
  const Widget* const label = LabelOf(model);
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
