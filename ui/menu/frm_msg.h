#pragma once

#include "quorvel/widgets.h"

namespace quorvel {

struct Context;

/// Tells that active zones need a network link. on_closed is its MsgClose.
class frmMsg : public Dialog {
 public:
  explicit frmMsg(Context& context);

 private:
  Label Label1{*this, "Label1"};
  Button cmdOK{*this, "cmdOK"};
};

}  // namespace quorvel
