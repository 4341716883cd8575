#pragma once

#include <QObject>
#include <QPointer>
#include <QSignalBlocker>
#include <QWidget>

#include "platform/qt/cell_mark.h"
#include "platform/qt/help_tip.h"
#include "platform/qt/label_buddies.h"
#include "platform/qt/texts.h"
#include "platform/qt/verbs_under_way.h"
#include "quorvel/widgets/dialog.h"
#include "quorvel/widgets/widget.h"

namespace quorvel::qt {

/// One control on screen. It draws its model and turns what the user does into user verbs.
class ControlView : public WidgetView {
 public:
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  /// The toolkit's widget; its parent owns it.
  [[nodiscard]] virtual QWidget& Body() const = 0;
  /// Ends the tie to the model, which is not touched when it lives no more.
  virtual void LetGo(bool model_lives) = 0;
  /// Called when every control of the window has its view.
  virtual void Complete() = 0;

 protected:
  ControlView() = default;
};

/// A view of one kind of model in one kind of toolkit widget.
template <class Model, class QtWidget>
class ViewOf : public ControlView {
 public:
  ViewOf(VerbsUnderWay& verbs, Model& model, QtWidget* body)
      : verbs_(verbs), model_(&model), body_(body) {
    model.AttachView(this);
    new HelpTip(context_, *body, [this] {
      return model_ == nullptr ? QString() : Shown(model_->Owner().HelpOf(*model_));
    });
  }
  ~ViewOf() override { ViewOf::LetGo(true); }

  [[nodiscard]] QWidget& Body() const override { return *body_; }

  void LetGo(bool model_lives) override {
    if (model_ == nullptr) return;
    if (model_lives) model_->AttachView(nullptr);
    model_ = nullptr;
    delete mark_;
    delete change_;
    body_->setObjectName({});  // it is not found any more while it waits to be deleted
  }

  void Complete() override {
    if (model_ != nullptr) NameByLabel(*model_, *body_);
  }

  void Refresh(Aspect what) override {
    if (model_ == nullptr) return;
    const QSignalBlocker quiet(body_);
    if (what == Aspect::kState) DrawState();
    Draw(what);
    if (what == Aspect::kState) KeepWhole();
  }

 protected:
  /// Shows what differs between the kinds of controls.
  virtual void Draw(Aspect what) = 0;

  [[nodiscard]] Model* GetModel() const { return model_; }
  [[nodiscard]] QtWidget* GetBody() const { return body_; }
  /// What connections to this view are bound to: they end with the view.
  [[nodiscard]] QObject* Context() { return &context_; }

  /// First drawing, once the derived view is complete.
  void DrawAll() {
    body_->ensurePolished();  // its font is final
    for (const Aspect what : {Aspect::kState, Aspect::kContent, Aspect::kSelection}) Refresh(what);
  }

  /// Calls a user verb. The dialog may be gone afterwards; if not, the widget shows the model
  /// again, whatever the verb made of the toolkit's own idea of the new value.
  template <class Verb>
  void Act(Verb verb) {
    if (model_ == nullptr) return;
    const VerbsUnderWay::Scope scope(verbs_);
    verb(*model_);
    Refresh(Aspect::kSelection);
  }

 private:
  void DrawState() {
    body_->setEnabled(model_->Enabled());
    QSizePolicy policy = body_->sizePolicy();
    policy.setRetainSizeWhenHidden(model_->KeepsPlace());
    body_->setSizePolicy(policy);
    body_->setVisible(model_->Visible());
    body_->setObjectName(Shown(model_->Name()));
    body_->setAccessibleName(Shown(model_->SpokenName()));
    body_->setAccessibleDescription(Shown(model_->SpokenNote()));
    Mark<CellMark>(mark_, model_->EditsCell());
    Mark<ChangeBar>(change_, model_->Change().has_value());
    NameByLabel(*model_, *body_);
  }

  template <class Kind>
  void Mark(QPointer<Kind>& mark, bool marked) {
    // A frame around what is hidden would stand at the window's corner.
    if (!marked || !model_->Visible()) {
      delete mark;
    } else if (mark == nullptr) {
      mark = new Kind(*body_);
    }
  }

  /// A minimum that the layout has set counts for the toolkit instead of what the widget needs.
  void KeepWhole() {
    const QSize least = body_->minimumSize();
    if (!least.isNull()) body_->setMinimumSize(least.expandedTo(body_->minimumSizeHint()));
  }

  VerbsUnderWay& verbs_;
  Model* model_;
  QtWidget* const body_;
  QPointer<CellMark> mark_;
  QPointer<ChangeBar> change_;
  QObject context_;
};

}  // namespace quorvel::qt
