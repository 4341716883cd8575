#pragma once

#include <array>
#include <deque>

#include "ui/editing/device_text.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/number_box.h"
#include "ui/editing/octet_boxes.h"
#include "ui/setup/alarm/alarm_face.h"

namespace quorvel {

/// Notification: which events are reported by e-mail and over TCP, and to whom.
class AlarmNotificationPage : public EditorPage {
 public:
  AlarmNotificationPage(Editor& editor, const AlarmFace& face);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();

 private:
  static constexpr int kEvents = 7;
  static constexpr int kAddresses = 3;
  /// The controls of one e-mail address.
  struct AddressBox {
    Label& label;
    TextBox& box;
    Label& warning;  ///< says what of the typed address would not be kept
    bool kept;       ///< the device has blocks for it
  };
  [[nodiscard]] std::array<AddressBox, kAddresses> Addresses();

  [[nodiscard]] Layout EmailContents();
  [[nodiscard]] Layout TcpContents();
  void CaptionControls();
  void FillEmail();
  void FillTcp();
  void WarnOfAddress(int address);
  void WriteEmail();
  void WriteTcp();
  void WriteAddress(int address);

  const AlarmFace& face_;

  Frame Frame12;  ///< e-mail
  Frame Frame13;  ///< events
  ControlArray<CheckBox> chkboxNotify;
  Frame Frame16;  ///< mail server
  ControlArray<TextBox> txSMTPServer;
  Label lbSMTPPort;
  TextBox txtSMTPPort;
  Label lbUser1Addr;
  TextBox txtUser1Addr;
  Label lbUser1Warning;
  Label lbUser2Addr;
  TextBox txtUser2Addr;
  Label lbUser2Warning;
  Label lbLocalEmail;
  TextBox txtLocalEmail;
  Label lbLocalWarning;

  Frame Frame14;  ///< TCP
  Frame Frame15;  ///< events
  ControlArray<CheckBox> chkboxTCPNotify;
  Frame Frame17;  ///< primary host
  ControlArray<TextBox> txTCPHost;
  Frame Frame18;  ///< backup host
  ControlArray<TextBox> txTCPBkHost;
  Label lbTCPPort;
  TextBox txtTCPPort;
  Label lbTCPInterval;
  ComboBox cbTCPInterval;

  ControlArray<Label> lbTxdotIP;  ///< the dots of the three network addresses

  OctetBoxes smtp_server_{txSMTPServer};
  OctetBoxes tcp_host_{txTCPHost};
  OctetBoxes tcp_backup_host_{txTCPBkHost};
  PortBox smtp_port_;
  PortBox tcp_port_;
  std::deque<DeviceText> addresses_;
};

}  // namespace quorvel
