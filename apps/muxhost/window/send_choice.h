#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace quorvel::muxhost {

/// While it lives, it makes a choice in the send dialog when that comes on screen, as the user
/// would with the mouse. START is left to the user; where more is chosen by then, it asks before.
class SendChoice : public QObject {
 public:
  SendChoice(bool all, bool macros);

  /// Whether this may be sent, too; without it, it may.
  std::function<bool(bool all, bool macros)> may_send;

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// Whether what is chosen in the dialog may be sent.
  [[nodiscard]] bool MaySend(const QWidget& dialog);

  bool all_;
  bool macros_;
  bool made_ = false;
};

}  // namespace quorvel::muxhost
