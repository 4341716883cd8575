#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"

namespace quorvel {

/// Communications: the baud rates of the serial ports, and the address on the RS485 network.
class frm_Comm : public Editor {
 public:
  explicit frm_Comm(Context& context);

 private:
  void ShowWhatTheModelHas();
  void BindPorts();

  // The serial ports of a multiplexer, of a duplex and of a triplex model; each has its own frame.
  Frame Frame1{*this, "Frame1", Text(txt::kRs232)};
  ControlArray<OptionButton> optBaudRate{*this, "optBaudRate", 4};
  Frame Frame3{*this, "Frame3", Text(txt::kRs232)};
  Frame frmPort0{*this, "frmPort0", Text(txt::kPort) + " 1"};
  ControlArray<OptionButton> optBaudRtP0{*this, "optBaudRtP0", 4};
  Frame frmPort1{*this, "frmPort1", Text(txt::kPort) + " 2"};
  ControlArray<OptionButton> optBaudRtP1{*this, "optBaudRtP1", 4};
  Frame Frame4{*this, "Frame4", Text(txt::kRs232)};
  Label Label2{*this, "Label2", Text(txt::kPort1BaudRate)};
  ComboBox cbPort1{*this, "cbPort1"};
  Label Label3{*this, "Label3", Text(txt::kPort2BaudRate)};
  ComboBox cbPort2{*this, "cbPort2"};

  Frame Frame2{*this, "Frame2", Text(txt::kRs485)};
  Label Label1{*this, "Label1", Text(txt::kNetworkAddress)};
  ListBox List1{*this, "List1"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
