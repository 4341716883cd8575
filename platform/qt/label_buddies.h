#pragma once

#include <QLabel>
#include <QWidget>
#include <string>

#include "quorvel/widgets/widget.h"

namespace quorvel::qt {

/// Ties a control to the label that names it, where the label has a view in the same window: screen
/// readers then know that they belong together.
void NameByLabel(const Widget& model, QWidget& body);

/// Shows a label's caption as it is. The toolkit reads "&" as the mark of a shortcut key only in
/// the labels that are tied to a control.
void ShowCaption(QLabel& label, const std::string& caption);

}  // namespace quorvel::qt
