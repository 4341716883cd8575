#include "platform/qt/dialog_window.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include "platform/qt/looks.h"
#include "platform/qt/page_help.h"
#include "platform/qt/step_keys.h"
#include "platform/qt/view_builder.h"

namespace quorvel::qt {

namespace {

/// Cut, copy, paste and the like of a text box; its own undo knows that box alone.
void AddClipboard(QMenu& menu, QWidget* part) {
  auto* const line = qobject_cast<QLineEdit*>(part);
  if (line == nullptr) return;
  QMenu* const standard = line->createStandardContextMenu();
  standard->setParent(&menu, standard->windowFlags());
  menu.addSeparator();
  constexpr int kUndoRedoAndLine = 3;
  const auto actions = standard->actions();
  for (QAction* const action : actions.mid(kUndoRedoAndLine)) menu.addAction(action);
}

}  // namespace

Contents::Contents(QWidget& parent, const Layout& layout, VerbsUnderWay& verbs)
    : FittedScrollArea(parent) {
  ViewBuilder builder(verbs);
  builder.Build(layout, *widget());
  views_ = builder.TakeViews();
  for (auto& view : views_) view->Complete();
}

void Contents::LetGo(bool models_live) {
  for (auto& view : views_) view->LetGo(models_live);
}

DialogWindow::DialogWindow(Dialog& dialog) : dialog_(&dialog) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setObjectName(Shown(dialog.Name()));
  auto* const around = new QVBoxLayout(this);
  around->setContentsMargins(0, 0, 0, 0);
  if (dialog.Icon() != nullptr) setWindowIcon(ToQt(*dialog.Icon()));
  Build();
  dialog.AttachView(this);
  DialogWindow::Refresh(Aspect::kState);
}

DialogWindow::~DialogWindow() { LetGo(true); }

void DialogWindow::Build() {
  QString focus;
  if (contents_ != nullptr) {
    if (focusWidget() != nullptr) focus = focusWidget()->objectName();
    contents_->LetGo(true);
    contents_->hide();
    layout()->removeWidget(contents_);
    // One of its controls may be what called for the replacement.
    verbs_.Finally([former = contents_] { former->deleteLater(); });
  }
  contents_ = new Contents(*this, dialog_->Contents(), verbs_);
  layout()->addWidget(contents_);
  for (auto* const button : contents_->findChildren<QPushButton*>()) {
    button->installEventFilter(this);
  }
  if (isVisible()) contents_->show();
  if (focus.isEmpty()) return;
  if (auto* const again = contents_->findChild<QWidget*>(focus)) again->setFocus();
}

void DialogWindow::Refresh(Aspect what) {
  if (dialog_ == nullptr) return;
  if (what == Aspect::kSelection) return FollowFocus();
  if (what == Aspect::kContent) Build();
  setWindowTitle(Shown(dialog_->Caption()));
  if (isVisible() && NothingHasFocus()) FocusDefault();
}

void DialogWindow::LetGo(bool dialog_lives) {
  if (dialog_ == nullptr) return;
  contents_->LetGo(dialog_lives);
  dialog_->AttachView(nullptr);
  dialog_ = nullptr;
}

void DialogWindow::Retire(bool dialog_lives) {
  LetGo(dialog_lives);
  hide();
  verbs_.Finally([this] { deleteLater(); });
}

QSize DialogWindow::LargestSize() const {
  const QSize borders(16, 48);
  return screen()->availableSize() - borders;
}

void DialogWindow::Present(const QWidget* over) {
  if (!isVisible()) {
    hint_ = sizeHint();
    const QSize largest = LargestSize();
    // A window that must scroll needs space for the bar, or it would scroll both ways.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize bars(hint_.height() > largest.height() ? bar : 0,
                     hint_.width() > largest.width() ? bar : 0);
    resize((hint_ + bars).boundedTo(largest));
    const QRect space = screen()->availableGeometry();
    QRect place(QPoint(), this->size());
    place.moveCenter(over != nullptr ? over->frameGeometry().center() : space.center());
    place.moveRight(std::min(place.right(), space.right()));
    place.moveBottom(std::min(place.bottom(), space.bottom()));
    move(std::max(place.left(), space.left()), std::max(place.top(), space.top()));
    FocusInput();
  }
  show();
  raise();
  activateWindow();
}

void DialogWindow::FocusInput() {
  for (QWidget* it = nextInFocusChain(); it != this; it = it->nextInFocusChain()) {
    const bool takes_keys = (it->focusPolicy() & Qt::TabFocus) != 0 && it->focusProxy() == nullptr;
    if (!takes_keys || !it->isEnabled() || !it->isVisibleTo(this)) continue;
    if (qobject_cast<QTabBar*>(it) != nullptr || qobject_cast<QPushButton*>(it) != nullptr) {
      continue;
    }
    it->setFocus(Qt::OtherFocusReason);
    return;
  }
  FocusDefault();
}

void DialogWindow::FocusDefault() {
  const Button* const button = dialog_ == nullptr ? nullptr : dialog_->DefaultButton();
  if (button == nullptr) return;
  auto* const body = contents_->findChild<QPushButton*>(Shown(button->Name()));
  const bool can_be_pressed = body != nullptr && body->isEnabled() && body->isVisibleTo(this);
  (can_be_pressed ? static_cast<QWidget*>(body) : this)->setFocus(Qt::OtherFocusReason);
}

/// The toolkit passes the focus of a button that is disabled or hidden on to the next control,
/// which the user has not chosen: Return would press it.
bool DialogWindow::focusNextPrevChild(bool next) {
  const auto* const button = qobject_cast<QPushButton*>(focusWidget());
  const bool gone = button != nullptr && (!button->isEnabled() || !button->isVisibleTo(this));
  if (!gone || dialog_ == nullptr || dialog_->DefaultButton() == nullptr) {
    const bool moved = QDialog::focusNextPrevChild(next);
    if (moved) ScrollToFocus();
    return moved;
  }
  FocusDefault();
  return true;
}

/// The toolkit scrolls an area only when the focus moves within it, not when it comes from outside.
void DialogWindow::ScrollToFocus() {
  QWidget* const focus = focusWidget();
  for (QWidget* it = focus; it != nullptr; it = it->parentWidget()) {
    if (auto* const area = qobject_cast<QScrollArea*>(it)) area->ensureWidgetVisible(focus);
  }
}

/// A default button gets the focus when it can be pressed at last.
bool DialogWindow::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::EnabledChange && isVisible() && NothingHasFocus()) FocusDefault();
  return QDialog::eventFilter(object, event);
}

void DialogWindow::FollowFocus() {
  const Widget* const to = dialog_->FocusSentTo();
  auto* const body = contents_->findChild<QWidget*>(Shown(to->Name()));
  if (body != nullptr) body->setFocus(Qt::OtherFocusReason);
}

/// What comes and goes enlarges the window once.
void DialogWindow::Fit() {
  const QSize growth = (sizeHint() - hint_).expandedTo({0, 0});
  hint_ = hint_.expandedTo(sizeHint());
  if (!growth.isNull()) resize((size() + growth).boundedTo(LargestSize().expandedTo(size())));
}

bool DialogWindow::event(QEvent* event) {
  const bool done = QDialog::event(event);
  if (event->type() == QEvent::LayoutRequest && isVisible()) Fit();
  // Sizes come from the font in many places.
  if (event->type() == QEvent::ApplicationFontChange && HandOverTyped()) {
    Refresh(Aspect::kContent);
  }
  return done;
}

void DialogWindow::reject() {
  if (dialog_ == nullptr) return;
  const VerbsUnderWay::Scope scope(verbs_);
  dialog_->CloseWindow();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  reject();
  event->setAccepted(!isVisible());
}

/// A box that is taken as a whole is left, as it is when a button is clicked. False when what was
/// typed has made the window go.
bool DialogWindow::HandOverTyped() {
  const VerbsUnderWay::Scope scope(verbs_);
  const QPointer<QWidget> focus = focusWidget();
  if (focus == nullptr) return dialog_ != nullptr;
  focus->clearFocus();
  if (dialog_ == nullptr) return false;
  if (focus != nullptr) focus->setFocus(Qt::OtherFocusReason);
  return true;
}

void DialogWindow::PressKeyButton(Button* button) {
  const VerbsUnderWay::Scope scope(verbs_);
  if (button == dialog_->DefaultButton() && !HandOverTyped()) return;
  button->Click();
}

Widget* DialogWindow::ControlOf(const QWidget* part) const {
  for (; part != nullptr && part != this; part = part->parentWidget()) {
    if (part->objectName().isEmpty()) continue;
    if (Widget* const control = dialog_->FindWidget(Stored(part->objectName()))) return control;
  }
  return nullptr;
}

void DialogWindow::TakeStepKey(const QKeyEvent& event) {
  if (dialog_->GetGestures() == nullptr || !HandOverTyped()) return;
  const VerbsUnderWay::Scope scope(verbs_);
  if (IsPutBackKey(event)) {
    if (Widget* const control = ControlOf(focusWidget())) dialog_->PutBack(*control);
  } else if (IsRedoKey(event)) {
    dialog_->Redo();
  } else {
    dialog_->Undo();
  }
}

/// The lines of the model, and behind them those of a text box for the clipboard.
void DialogWindow::contextMenuEvent(QContextMenuEvent* event) {
  QWidget* const part =
      event->reason() == QContextMenuEvent::Keyboard ? focusWidget() : childAt(event->pos());
  if (dialog_ == nullptr || !HandOverTyped()) return;
  Widget* const control = ControlOf(part);
  if (control == nullptr) return;
  const auto entries = dialog_->ContextEntries(*control);
  if (entries.empty()) return;
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const ContextEntry& entry : entries) {
    QAction* const action = menu->addAction(Shown(entry.text));
    action->setEnabled(entry.enabled);
    connect(action, &QAction::triggered, this, [this, choose = entry.choose] {
      if (dialog_ == nullptr) return;
      const VerbsUnderWay::Scope scope(verbs_);
      choose();
    });
  }
  AddClipboard(*menu, part);
  menu->popup(event->globalPos());
  event->accept();
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (dialog_ == nullptr) return;
  if (event->key() == Qt::Key_Escape) {
    // What was changed is not lost by a key alone: the window asks as it is closed.
    Button* const cancel = dialog_->CancelButton();
    if (cancel != nullptr && !dialog_->IsChanged()) {
      PressKeyButton(cancel);
    } else {
      reject();
    }
  } else if (event->key() == Qt::Key_F1) {
    const std::string help = dialog_->PageHelp();
    if (!help.empty()) ShowPageHelp(*this, windowTitle(), Shown(help));
  } else if (IsStepKey(*event)) {
    TakeStepKey(*event);
  } else if (enter && (event->modifiers() & Qt::ControlModifier) != 0) {
    if (Button* const button = dialog_->DefaultButton()) PressKeyButton(button);
  } else if (enter) {
    // Return presses the button that has the focus, and another one only where nothing has it, as
    // when all buttons were disabled at first.
    const QWidget* const focus = focusWidget();
    if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) {
      button->click();
    } else if ((focus == nullptr || focus == this) && dialog_->DefaultButton() != nullptr) {
      PressKeyButton(dialog_->DefaultButton());
    }
  } else {
    QDialog::keyPressEvent(event);
  }
}

}  // namespace quorvel::qt
