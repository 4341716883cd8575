#include "platform/qt/simple_views.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <functional>
#include <vector>

namespace quorvel::qt {

namespace {

/// A label with space for captions that it may come to have.
class RoomyLabel : public QLabel {
 public:
  using QLabel::QLabel;
  void MakeRoomFor(const std::vector<std::string>& captions) {
    room_ = {};
    for (const std::string& caption : captions) {
      room_ = room_.expandedTo(fontMetrics().size(0, Shown(caption)));
    }
    updateGeometry();
  }
  [[nodiscard]] QSize sizeHint() const override { return QLabel::sizeHint().expandedTo(room_); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    return QLabel::minimumSizeHint().expandedTo(room_);
  }

 private:
  QSize room_;
};

class LabelView : public ViewOf<Label, RoomyLabel> {
 public:
  LabelView(VerbsUnderWay& verbs, Label& model, QWidget& parent)
      : ViewOf(verbs, model, new RoomyLabel(&parent)) {
    GetBody()->setTextFormat(Qt::PlainText);
    DrawAll();
  }

 private:
  void Draw(Aspect what) override {
    ShowCaption(*GetBody(), GetModel()->Caption());
    if (what == Aspect::kState) GetBody()->MakeRoomFor(GetModel()->RoomFor());
  }
};

/// A button whose arrow keys stay with it; in the toolkit they also lead into lists and grids,
/// where the next one would change something.
class DialogButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  /// Not every style leaves space beside the text of a wide button.
  [[nodiscard]] QSize sizeHint() const override {
    constexpr int kLeastWidth = 84;
    const QSize space(2 * fontMetrics().averageCharWidth(), 0);
    return (QPushButton::sizeHint() + space).expandedTo({kLeastWidth, 0});
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool arrow =
        key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (!arrow) QPushButton::keyPressEvent(event);
  }
};

class ButtonView : public ViewOf<Button, DialogButton> {
 public:
  ButtonView(VerbsUnderWay& verbs, Button& model, QWidget& parent)
      : ViewOf(verbs, model, new DialogButton(&parent)) {
    GetBody()->setAutoDefault(false);  // Return in a grid or list presses nothing
    QObject::connect(GetBody(), &QPushButton::clicked, Context(),
                     [this] { Act([](Button& button) { button.Click(); }); });
    DrawAll();
  }

 private:
  void Draw(Aspect) override { GetBody()->setText(Captioned(GetModel()->Caption())); }
};

class CheckBoxView : public ViewOf<CheckBox, QCheckBox> {
 public:
  CheckBoxView(VerbsUnderWay& verbs, CheckBox& model, QWidget& parent)
      : ViewOf(verbs, model, new QCheckBox(&parent)) {
    QObject::connect(GetBody(), &QCheckBox::clicked, Context(),
                     [this] { Act([](CheckBox& box) { box.Click(); }); });
    DrawAll();
  }

 private:
  void Draw(Aspect) override {
    GetBody()->setText(Captioned(GetModel()->Caption()));
    GetBody()->setChecked(GetModel()->Checked());
  }
};

/// An option whose arrow keys pick the option before or after it in its group, as users know it;
/// the toolkit's own keep to what stands nearest, and only move the focus.
class OptionCircle : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;
  std::function<void(int steps)> on_arrow;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Left:
      case Qt::Key_Up: return on_arrow(-1);
      case Qt::Key_Right:
      case Qt::Key_Down: return on_arrow(1);
      default: QRadioButton::keyPressEvent(event);
    }
  }
};

class OptionButtonView : public ViewOf<OptionButton, OptionCircle> {
 public:
  OptionButtonView(VerbsUnderWay& verbs, OptionButton& model, QWidget& parent)
      : ViewOf(verbs, model, new OptionCircle(&parent)) {
    // The model keeps the group: the toolkit's own would not show a group without a selection.
    GetBody()->setAutoExclusive(false);
    GetBody()->on_arrow = [this](int steps) { Move(steps); };
    QObject::connect(GetBody(), &QRadioButton::clicked, Context(),
                     [this] { Act([](OptionButton& option) { option.Click(); }); });
    DrawAll();
  }

 private:
  void Draw(Aspect) override {
    GetBody()->setText(Captioned(GetModel()->Caption()));
    GetBody()->setChecked(GetModel()->Selected());
    // One of the group is reached with Tab: the selected one or, without one, each.
    GetBody()->setFocusPolicy(GetModel()->Selected() || !GroupHasSelection() ? Qt::StrongFocus
                                                                             : Qt::ClickFocus);
  }

  [[nodiscard]] bool GroupHasSelection() const {
    const OptionButton::Group* const group = GetModel()->GetGroup();
    return group != nullptr && std::any_of(group->begin(), group->end(), [](const auto& it) {
             return it.Selected() && it.Showing() && it.Enabled();
           });
  }

  /// Clicks the next option of the group that can be clicked, round its ends.
  void Move(int steps) {
    OptionButton::Group* const group = GetModel() == nullptr ? nullptr : GetModel()->GetGroup();
    if (group == nullptr) return;
    const int count = static_cast<int>(group->size());
    int place = 0;
    while (&(*group)[static_cast<std::size_t>(place)] != GetModel()) ++place;
    for (int tried = 1; tried < count; ++tried) {
      place = (place + steps + count) % count;
      OptionButton& next = (*group)[static_cast<std::size_t>(place)];
      if (!next.Showing() || !next.Enabled()) continue;
      FocusOn(next);
      Act([&next](OptionButton&) { next.Click(); });
      return;
    }
  }

  void FocusOn(const OptionButton& option) {
    auto* const body = GetBody()->window()->findChild<QRadioButton*>(Shown(option.Name()));
    if (body != nullptr) body->setFocus(Qt::TabFocusReason);
  }
};

class ProgressBarView : public ViewOf<ProgressBar, QProgressBar> {
 public:
  ProgressBarView(VerbsUnderWay& verbs, ProgressBar& model, QWidget& parent)
      : ViewOf(verbs, model, new QProgressBar(&parent)) {
    constexpr int kLeastWidth = 320;
    GetBody()->setMinimumWidth(kLeastWidth);
    DrawAll();
  }

 private:
  void Draw(Aspect) override {
    // The toolkit takes a maximum of 0 for "busy, end unknown".
    GetBody()->setRange(0, std::max(GetModel()->Maximum(), 1));
    GetBody()->setValue(GetModel()->Value());
  }
};

/// A panel keeps some width also while it is empty.
class StatusPanel : public QLabel {
 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    constexpr int kLeastWidth = 110;
    return QLabel::minimumSizeHint().expandedTo({kLeastWidth, 0});
  }
};

class StatusBarView : public ViewOf<StatusBar, QWidget> {
 public:
  StatusBarView(VerbsUnderWay& verbs, StatusBar& model, QWidget& parent)
      : ViewOf(verbs, model, new QWidget(&parent)) {
    auto* const line = new QHBoxLayout(GetBody());
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2);
    for (int i = 0; i < model.Panels(); ++i) {
      auto* const panel = new StatusPanel(GetBody());
      panel->setTextFormat(Qt::PlainText);
      panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
      panel->setMargin(2);
      line->addWidget(panel, i == 0 ? 1 : 0);
      panels_.push_back(panel);
    }
    DrawAll();
  }

 private:
  void Draw(Aspect) override {
    for (int i = 0; i < static_cast<int>(panels_.size()); ++i) {
      panels_[static_cast<std::size_t>(i)]->setText(Shown(GetModel()->Panel(i + 1)));
    }
  }

  std::vector<QLabel*> panels_;
};

}  // namespace

ViewPointer MakeLabel(VerbsUnderWay& verbs, Label& model, QWidget& parent) {
  return std::make_unique<LabelView>(verbs, model, parent);
}

ViewPointer MakeButton(VerbsUnderWay& verbs, Button& model, QWidget& parent) {
  return std::make_unique<ButtonView>(verbs, model, parent);
}

ViewPointer MakeCheckBox(VerbsUnderWay& verbs, CheckBox& model, QWidget& parent) {
  return std::make_unique<CheckBoxView>(verbs, model, parent);
}

ViewPointer MakeOptionButton(VerbsUnderWay& verbs, OptionButton& model, QWidget& parent) {
  return std::make_unique<OptionButtonView>(verbs, model, parent);
}

ViewPointer MakeProgressBar(VerbsUnderWay& verbs, ProgressBar& model, QWidget& parent) {
  return std::make_unique<ProgressBarView>(verbs, model, parent);
}

ViewPointer MakeStatusBar(VerbsUnderWay& verbs, StatusBar& model, QWidget& parent) {
  return std::make_unique<StatusBarView>(verbs, model, parent);
}

}  // namespace quorvel::qt
