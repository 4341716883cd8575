#include "ui/setup/alarm/alarm_notification_page.h"

#include <array>
#include <memory>
#include <vector>

#include "ui/editing/email_address_box.h"

namespace quorvel {

namespace {

/// The events as the boxes list them: captions, and bits of the mask. Bit 7 has no box.
constexpr std::array kEventTexts = {txt::kVidloss,    txt::kAlarm,   txt::kRecord,    txt::kArchive,
                                    txt::kMenuAccess, txt::kPowerUp, txt::kConnection};
const std::vector<int> kEventBits = {1, 0, 2, 3, 4, 5, 6};

constexpr int kMostPort = 65535;
constexpr int kUsualSmtpPort = 25;
constexpr int kLeastTcpPort = 1027;
constexpr int kMostTcpPort = 32767;
constexpr int kLongestInterval = 60;  // minutes
constexpr int kAddressWidth = 44;     // characters; about as wide as the warnings

/// A setting of the notification record.
template <class S>
auto Notification(S clsEmailNotify::*setting, int entry = kEntryOfLine) {
  return Of(&MuxData::AlmEmailNotify, setting, entry);
}

}  // namespace

AlarmNotificationPage::AlarmNotificationPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor, features.notification_page), features_(features) {
  CaptionEvents();
  BindEmail(editor);
  BindTcp();
}

void AlarmNotificationPage::CaptionEvents() {
  for (int k = 0; k < kEvents; ++k) {
    const std::string event = Text(kEventTexts.at(static_cast<std::size_t>(k)));
    chkboxNotify(k).SetCaption(event);
    chkboxTCPNotify(k).SetCaption(event);
  }
  chkboxNotify.SetSpokenNames(Frame12.Caption());
  chkboxTCPNotify.SetSpokenNames(Frame14.Caption());
  txSMTPServer.SetSpokenNames(Frame16.Caption());
  txTCPHost.SetSpokenNames(Frame17.Caption());
  txTCPBkHost.SetSpokenNames(Frame18.Caption());
}

void AlarmNotificationPage::BindEmail(Editor& editor) {
  txtUser1Addr.SetText(Text(txt::kUser1Example));
  txtUser2Addr.SetText(Text(txt::kUser2Example));
  Each(kEvents).Check(chkboxNotify,
                      BitsOf(Notification(&clsEmailNotify::EmailNotify, 0), kEventBits));
  FieldGroup& settings = Once();
  const std::string no_room = Text(kTextNoRoomForIt);
  const auto address = [&](int number, TextBox& box, Label& warning, bool kept) {
    box.SetShownLength(kAddressWidth);
    box.SetEnabled(kept, no_room);
    settings.Add(std::make_unique<EmailAddressField>(editor, Ctx(), number, box, warning))
        .WrittenWhen(kept);
  };
  address(0, txtUser1Addr, lbUser1Warning, features_.user1_kept);
  address(1, txtUser2Addr, lbUser2Warning, features_.user2_kept);
  txSMTPServer.SetEnabled(features_.hosts_kept, no_room);
  settings.Octets(txSMTPServer, Notification(&clsEmailNotify::SMTPServer));
  settings.Port(txtSMTPPort, 0, kMostPort, kUsualSmtpPort, Notification(&clsEmailNotify::SMTPPort));
  address(2, txtLocalEmail, lbLocalWarning, features_.local_address);
}

void AlarmNotificationPage::BindTcp() {
  const bool tcp = features_.tcp_notification;
  Each(kEvents)
      .Check(chkboxTCPNotify, BitsOf(Notification(&clsEmailNotify::TCPNotify, 0), kEventBits))
      .When(tcp);
  FieldGroup& settings = Once();
  settings.Octets(txTCPHost, Notification(&clsEmailNotify::TCPHost)).WrittenWhen(tcp);
  settings.Octets(txTCPBkHost, Notification(&clsEmailNotify::TCPBkUpHost)).WrittenWhen(tcp);
  if (tcp) {
    Choices intervals{{0, Text(txt::kImmediate)}};
    intervals.Add(Choices::Numbers(1, kLongestInterval, 1));
    settings.List(cbTCPInterval, intervals, Notification(&clsEmailNotify::TCPInterval));
  }
  settings
      .Port(txtTCPPort, kLeastTcpPort, kMostTcpPort, kLeastTcpPort,
            Notification(&clsEmailNotify::TCPPort))
      .When(tcp);
  txTCPHost.SetEnabled(tcp && features_.hosts_kept);
  txTCPBkHost.SetEnabled(tcp && features_.hosts_kept);
  chkboxTCPNotify.SetEnabled(tcp);
  txtTCPPort.SetEnabled(tcp);
  cbTCPInterval.SetEnabled(tcp);
}

Layout AlarmNotificationPage::Contents() {
  constexpr int kDots = kOctets - 1;
  return Row(
      Framed(Frame12, Row(Framed(Frame13, Column(chkboxNotify)),
                          Column(Framed(Frame16, Dotted(txSMTPServer, lbTxdotIP)),
                                 LabelledRow(lbSMTPPort, txtSMTPPort),
                                 Labelled(lbUser1Addr, txtUser1Addr), Row(lbUser1Warning),
                                 Labelled(lbUser2Addr, txtUser2Addr), Row(lbUser2Warning),
                                 Labelled(lbLocalEmail, txtLocalEmail), Row(lbLocalWarning)))),
      Framed(Frame14, Row(Framed(Frame15, Column(chkboxTCPNotify)),
                          Column(Framed(Frame17, Dotted(txTCPHost, lbTxdotIP, kDots)),
                                 Framed(Frame18, Dotted(txTCPBkHost, lbTxdotIP, 2 * kDots)),
                                 LabelledRow(lbTCPPort, txtTCPPort),
                                 Labelled(lbTCPInterval, cbTCPInterval), Stretch()))),
      Stretch());
}

}  // namespace quorvel
