#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/octet_boxes.h"
#include "ui/setup/alarm/alarm_features.h"

namespace quorvel {

/// Notification: which events are reported by e-mail and over TCP, and to whom. What the device has
/// no block for is shown, and cannot be changed: it would not be kept.
class AlarmNotificationPage : public EditorPage {
 public:
  AlarmNotificationPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  static constexpr int kEvents = 7;
  static constexpr int kOctets = 4;

  void CaptionEvents();
  void BindEmail(Editor& editor);
  void BindTcp();

  const AlarmFeatures& features_;

  Frame Frame12{*this, "Frame12", Text(txt::kEmail)};
  Frame Frame13{*this, "Frame13", Text(txt::kNotifyOn)};
  ControlArray<CheckBox> chkboxNotify{*this, "chkboxNotify", kEvents};
  Frame Frame16{*this, "Frame16", Text(txt::kSmtpServer)};
  ControlArray<TextBox> txSMTPServer{*this, "txSMTPServer", kOctets};
  Label lbSMTPPort{*this, "lbSMTPPort", Text(txt::kSmtpPort) + " (0 - 65535)"};
  TextBox txtSMTPPort{*this, "txtSMTPPort"};
  Label lbUser1Addr{*this, "lbUser1Addr", Text(txt::kUser1Address)};
  TextBox txtUser1Addr{*this, "txtUser1Addr"};
  Label lbUser1Warning{*this, "lbUser1Warning"};
  Label lbUser2Addr{*this, "lbUser2Addr", Text(txt::kUser2Address)};
  TextBox txtUser2Addr{*this, "txtUser2Addr"};
  Label lbUser2Warning{*this, "lbUser2Warning"};
  Label lbLocalEmail{*this, "lbLocalEmail", Text(kTextLocalEmail)};
  TextBox txtLocalEmail{*this, "txtLocalEmail"};
  Label lbLocalWarning{*this, "lbLocalWarning"};

  Frame Frame14{*this, "Frame14", Text(txt::kTcpIp)};
  Frame Frame15{*this, "Frame15", Text(txt::kNotifyOn)};
  ControlArray<CheckBox> chkboxTCPNotify{*this, "chkboxTCPNotify", kEvents};
  Frame Frame17{*this, "Frame17", Text(txt::kPrimaryHost)};
  ControlArray<TextBox> txTCPHost{*this, "txTCPHost", kOctets};
  Frame Frame18{*this, "Frame18", Text(txt::kBackupHost)};
  ControlArray<TextBox> txTCPBkHost{*this, "txTCPBkHost", kOctets};
  Label lbTCPPort{*this, "lbTCPPort", Text(txt::kPortLabel) + " (1027 - 32767)"};
  TextBox txtTCPPort{*this, "txtTCPPort"};
  Label lbTCPInterval{*this, "lbTCPInterval", Text(txt::kNotificationInterval)};
  ComboBox cbTCPInterval{*this, "cbTCPInterval"};

  ControlArray<Label> lbTxdotIP{*this, "lbTxdotIP", 3 * (kOctets - 1)};  ///< of three addresses
};

}  // namespace quorvel
