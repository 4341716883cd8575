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
#include "quorvel/widgets/placement.h"

namespace quorvel::qt {

namespace {

/// Parts that claim little are left next to nothing by those that claim more; the empty space at
/// the end takes all where no part claims any.
constexpr int kEmptySpaceShare = 1;
int ShareOf(Space space) {
  switch (space) {
    case Space::kOwn: return 0;
    case Space::kLittle: return 40;
    case Space::kSome: return 1000;
    case Space::kMost: return 4000;
  }
  return 0;
}

void AlignRows(const Layout& layout, const QBoxLayout& column) {
  for (const auto& rows : RowsThatBeginAlike(layout)) {
    std::vector<QWidget*> first;
    int width = 0;
    for (const std::size_t row : rows) {
      first.push_back(column.itemAt(static_cast<int>(row))->layout()->itemAt(0)->widget());
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

/// The box would put what ends before the space does in its middle.
void AddAtTopLeft(QBoxLayout& box, QWidget& body, int share) {
  const bool row = box.direction() == QBoxLayout::LeftToRight;
  auto* const across = new QBoxLayout(row ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  across->addWidget(&body, 1000 * kEmptySpaceShare);
  across->addStretch(kEmptySpaceShare);
  box.addLayout(across, share);
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
  const std::vector<Placement> placements = PlacementsIn(layout);
  for (std::size_t i = 0; i < layout.parts.size(); ++i) {
    const Layout& part = layout.parts[i];
    const Placement& placement = placements[i];
    const int share = ShareOf(placement.space);
    if (part.kind == Layout::Kind::kStretch) {
      box->addStretch(share);
    } else if (part.kind != Layout::Kind::kWidget) {
      box->addLayout(BuildBox(part, container, line_height), share);
    } else {
      QWidget& body = MakeView(*part.widget, container);
      if (placement.one_line && line_height > 0) body.setMinimumHeight(line_height);
      if (placement.ends) {
        AddAtTopLeft(*box, body, share);
      } else {
        box->addWidget(&body, share, placement.at_top ? Qt::AlignTop : Qt::Alignment());
      }
    }
  }
  AlignRows(layout, *box);
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
