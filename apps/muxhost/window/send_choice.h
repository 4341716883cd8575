#pragma once

#include <QObject>

namespace quorvel::muxhost {

/// While it lives, it makes a choice in the send dialog when that comes on screen, as the user
/// would with the mouse. START is left to the user.
class SendChoice : public QObject {
 public:
  SendChoice(bool all, bool macros);

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool all_;
  bool macros_;
  bool made_ = false;
};

}  // namespace quorvel::muxhost
