#include "platform/qt/view_builder.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <algorithm>
#include <stdexcept>

#include "platform/qt/container_views.h"
#include "platform/qt/grid_view.h"
#include "platform/qt/list_box_view.h"
#include "platform/qt/picker_views.h"
#include "platform/qt/simple_views.h"
#include "platform/qt/text_box_view.h"
#include "platform/qt/value_views.h"
#include "platform/qt/view_space.h"

namespace quorvel::qt {

namespace {

/// True for a control whose neighbour to the right looks best below that of the row above.
bool Leads(const Layout& row, std::size_t place, WidgetKind kind) {
  return place + 1 < row.parts.size() && row.parts[place].kind == Layout::Kind::kWidget &&
         row.parts[place].widget->Kind() == kind;
}

/// Rows below one another that begin alike, with labels or ticks, go on below one another.
void AlignRows(const Layout& layout, const QBoxLayout& column) {
  for (const WidgetKind kind :
       {WidgetKind::kLabel, WidgetKind::kCheckBox, WidgetKind::kOptionButton}) {
    std::vector<QWidget*> first;
    int width = 0;
    for (std::size_t i = 0; i < layout.parts.size(); ++i) {
      const Layout& row = layout.parts[i];
      if (row.kind != Layout::Kind::kRow || !Leads(row, 0, kind)) continue;
      first.push_back(column.itemAt(static_cast<int>(i))->layout()->itemAt(0)->widget());
      width = std::max(width, first.back()->sizeHint().width());
    }
    for (QWidget* const control : first) control->setMinimumWidth(width);
  }
}

/// Height of a line that any control of one line fits into.
int LineHeight() {
  int height = QLineEdit().sizeHint().height();
  height = std::max(height, QComboBox().sizeHint().height());
  height = std::max(height, QSpinBox().sizeHint().height());
  return std::max(height, QPushButton(QStringLiteral("OK")).sizeHint().height());
}

/// A list or grid that has no more items than space ends with them; a box would put it in the
/// middle of the space.
void AddAtTopLeft(QBoxLayout& box, QWidget& list, int share) {
  const bool row = box.direction() == QBoxLayout::LeftToRight;
  auto* const across = new QBoxLayout(row ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  across->addWidget(&list, 1000 * kEmptySpaceShare);
  across->addStretch(kEmptySpaceShare);
  box.addLayout(across, share);
}

/// True for a frame around nothing that fills space: it ends with its content.
bool IsFrameOfItsOwnHeight(const Layout& part) {
  return part.widget->Kind() == WidgetKind::kFrame && !FillsSpaceDown(part);
}

}  // namespace

void ViewBuilder::Build(const Layout& layout, QWidget& container) {
  // A row would stretch its parts to the container's height.
  const bool below = layout.kind == Layout::Kind::kColumn || layout.kind == Layout::Kind::kLines;
  const Layout around{Layout::Kind::kColumn, nullptr, {layout}};
  container.setLayout(BuildBox(below ? layout : around, container, 0));
}

QBoxLayout* ViewBuilder::BuildBox(const Layout& layout, QWidget& container, int line_height) {
  constexpr int kLineSpacing = 4;
  const bool row = layout.kind == Layout::Kind::kRow;
  auto* const box = new QBoxLayout(row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  if (layout.kind == Layout::Kind::kLines) {
    if (line_height_ == 0) line_height_ = LineHeight();
    line_height = line_height_;
    box->setSpacing(kLineSpacing);
  }
  const bool tall = row && !std::all_of(layout.parts.begin(), layout.parts.end(), &IsOneLine);
  const Label* label = nullptr;
  for (const Layout& part : layout.parts) {
    const int share = row ? ShareAcross(part) : ShareDown(part);
    if (part.kind == Layout::Kind::kStretch) {
      box->addStretch(share);
    } else if (part.kind != Layout::Kind::kWidget) {
      box->addLayout(BuildBox(part, container, line_height), share);
    } else {
      QWidget& body = MakeView(*part.widget, container);
      const WidgetKind kind = part.widget->Kind();
      if (kind == WidgetKind::kLabel) label = static_cast<const Label*>(part.widget);
      if (kind == WidgetKind::kTextBox && row && label != nullptr) part.widget->SetLabel(*label);
      const bool one_line = IsOneLine(part);
      if (one_line && line_height > 0) body.setMinimumHeight(line_height);
      const bool at_top = row && ((one_line && tall) || IsFrameOfItsOwnHeight(part));
      if (kind == WidgetKind::kGrid || (kind == WidgetKind::kListBox && row)) {
        AddAtTopLeft(*box, body, share);
      } else {
        box->addWidget(&body, share, at_top ? Qt::AlignTop : Qt::Alignment());
      }
    }
  }
  if (!row) AlignRows(layout, *box);
  // Takes the space that no part asks for, so that parts keep together and their own size.
  box->addStretch(kEmptySpaceShare);
  return box;
}

QWidget& ViewBuilder::MakeView(Widget& model, QWidget& parent) {
  std::unique_ptr<ControlView> view;
  switch (model.Kind()) {
    case WidgetKind::kLabel: view = MakeLabel(verbs_, static_cast<Label&>(model), parent); break;
    case WidgetKind::kButton: view = MakeButton(verbs_, static_cast<Button&>(model), parent); break;
    case WidgetKind::kCheckBox:
      view = MakeCheckBox(verbs_, static_cast<CheckBox&>(model), parent);
      break;
    case WidgetKind::kOptionButton:
      view = MakeOptionButton(verbs_, static_cast<OptionButton&>(model), parent);
      break;
    case WidgetKind::kTextBox:
      view = std::make_unique<TextBoxView>(verbs_, static_cast<TextBox&>(model), parent);
      break;
    case WidgetKind::kListBox:
      view = std::make_unique<ListBoxView>(verbs_, static_cast<ListBox&>(model), parent);
      break;
    case WidgetKind::kComboBox:
      view = std::make_unique<ComboBoxView>(verbs_, static_cast<ComboBox&>(model), parent);
      break;
    case WidgetKind::kSlider:
      view = std::make_unique<SliderView>(verbs_, static_cast<Slider&>(model), parent);
      break;
    case WidgetKind::kTimePicker:
      view = MakeTimePicker(verbs_, static_cast<TimePicker&>(model), parent);
      break;
    case WidgetKind::kDatePicker:
      view = MakeDatePicker(verbs_, static_cast<DatePicker&>(model), parent);
      break;
    case WidgetKind::kGrid:
      view = std::make_unique<GridView>(verbs_, static_cast<Grid&>(model), parent);
      break;
    case WidgetKind::kTabStrip:
      view = std::make_unique<TabStripView>(*this, static_cast<TabStrip&>(model), parent);
      break;
    case WidgetKind::kFrame:
      view = std::make_unique<FrameView>(*this, static_cast<Frame&>(model), parent);
      break;
    case WidgetKind::kProgressBar:
      view = MakeProgressBar(verbs_, static_cast<ProgressBar&>(model), parent);
      break;
    case WidgetKind::kStatusBar:
      view = MakeStatusBar(verbs_, static_cast<StatusBar&>(model), parent);
      break;
  }
  if (view == nullptr) throw std::logic_error(model.Name() + " is of a kind without a view");
  return views_.emplace_back(std::move(view))->Body();
}

}  // namespace quorvel::qt
