#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <functional>
#include <utility>

namespace quorvel::qt {

/// Does something once on the next turn of the loop, before anything is painted, however often it
/// has been asked for until then.
class Soon : public QObject {
 public:
  explicit Soon(std::function<void()> act) : act_(std::move(act)) {}

  void Ask() {
    if (!std::exchange(asked_, true)) {
      QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    asked_ = false;
    act_();
    return true;
  }

 private:
  std::function<void()> act_;
  bool asked_ = false;
};

}  // namespace quorvel::qt
