#include "ui/setup/alarm/alarm_notification_page.h"

#include <algorithm>

#include "core/bit_fields.h"
#include "resources/text_table.h"
#include "ui/editing/choices.h"
#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

/// The events as the boxes list them: caption and bit of the mask. Bit 7 has no box.
struct NotifiedEvent {
  int text;
  int bit;
};
constexpr std::array kNotifiedEvents = {
    NotifiedEvent{115, 1}, NotifiedEvent{3, 0},  NotifiedEvent{101, 2}, NotifiedEvent{65, 3},
    NotifiedEvent{89, 4},  NotifiedEvent{96, 5}, NotifiedEvent{72, 6}};

constexpr int kMostPort = 65535;
constexpr int kUsualSmtpPort = 25;
constexpr int kLeastTcpPort = 1027;
constexpr int kMostTcpPort = 32767;
constexpr int kLongestInterval = 60;  // minutes
constexpr int kAddressWidth = 44;     // characters; about as wide as the warnings

void TickEvents(ControlArray<CheckBox>& boxes, Byte mask) {
  for (int k = 0; k < boxes.Count(); ++k) {
    boxes(k).SetChecked(GetBit(mask, kNotifiedEvents.at(static_cast<std::size_t>(k)).bit) == 1);
  }
}

/// The mask with the bits of the boxes; others as they are.
Byte TickedEvents(const ControlArray<CheckBox>& boxes, Byte mask) {
  for (int k = 0; k < boxes.Count(); ++k) {
    SetBit(mask, kNotifiedEvents.at(static_cast<std::size_t>(k)).bit, boxes(k).Checked());
  }
  return mask;
}

constexpr int kOctets = 4;

template <class Octets>
void ShowOctets(OctetBoxes& boxes, const Octets& octets) {
  for (int i = 0; i < kOctets; ++i) boxes.Show(i, octets(i));
}

template <class Octets>
void WriteOctets(const OctetBoxes& boxes, Octets& octets) {
  for (int i = 0; i < kOctets; ++i) octets(i, boxes.Octet(i));
}

}  // namespace

AlarmNotificationPage::AlarmNotificationPage(Editor& editor, const AlarmFace& face)
    : EditorPage(editor),
      face_(face),
      Frame12(editor, "Frame12", Text(74)),
      Frame13(editor, "Frame13", Text(91)),
      chkboxNotify(editor, "chkboxNotify", kEvents),
      Frame16(editor, "Frame16", Text(106)),
      txSMTPServer(editor, "txSMTPServer", kOctets),
      lbSMTPPort(editor, "lbSMTPPort", Text(105) + " (0 - 65535)"),
      txtSMTPPort(editor, "txtSMTPPort"),
      lbUser1Addr(editor, "lbUser1Addr", Text(111)),
      txtUser1Addr(editor, "txtUser1Addr"),
      lbUser1Warning(editor, "lbUser1Warning"),
      lbUser2Addr(editor, "lbUser2Addr", Text(112)),
      txtUser2Addr(editor, "txtUser2Addr"),
      lbUser2Warning(editor, "lbUser2Warning"),
      lbLocalEmail(editor, "lbLocalEmail", Text(kTextLocalEmail)),
      txtLocalEmail(editor, "txtLocalEmail"),
      lbLocalWarning(editor, "lbLocalWarning"),
      Frame14(editor, "Frame14", Text(107)),
      Frame15(editor, "Frame15", Text(91)),
      chkboxTCPNotify(editor, "chkboxTCPNotify", kEvents),
      Frame17(editor, "Frame17", Text(100)),
      txTCPHost(editor, "txTCPHost", kOctets),
      Frame18(editor, "Frame18", Text(68)),
      txTCPBkHost(editor, "txTCPBkHost", kOctets),
      lbTCPPort(editor, "lbTCPPort", Text(95) + " (1027 - 32767)"),
      txtTCPPort(editor, "txtTCPPort"),
      lbTCPInterval(editor, "lbTCPInterval", Text(90)),
      cbTCPInterval(editor, "cbTCPInterval"),
      lbTxdotIP(editor, "lbTxdotIP", 3 * (kOctets - 1)),
      smtp_port_(txtSMTPPort, 0, kMostPort, kUsualSmtpPort),
      tcp_port_(txtTCPPort, kLeastTcpPort, kMostTcpPort, kLeastTcpPort) {
  CaptionControls();
}

std::array<AlarmNotificationPage::AddressBox, AlarmNotificationPage::kAddresses>
AlarmNotificationPage::Addresses() {
  return {{{lbUser1Addr, txtUser1Addr, lbUser1Warning, face_.user1_kept},
           {lbUser2Addr, txtUser2Addr, lbUser2Warning, face_.user2_kept},
           {lbLocalEmail, txtLocalEmail, lbLocalWarning, face_.local_address}}};
}

Layout AlarmNotificationPage::Contents() { return Row(EmailContents(), TcpContents(), Stretch()); }

Layout AlarmNotificationPage::EmailContents() {
  Layout settings = Column(Framed(Frame16, Dotted(txSMTPServer, lbTxdotIP)),
                           LabelledRow(lbSMTPPort, txtSMTPPort));
  for (const AddressBox& it : Addresses()) {
    settings.parts.push_back(Labelled(it.label, it.box));
    settings.parts.push_back(Row(it.warning));
  }
  return Framed(Frame12, Row(Framed(Frame13, Column(chkboxNotify)), std::move(settings)));
}

Layout AlarmNotificationPage::TcpContents() {
  constexpr int kDots = kOctets - 1;
  return Framed(Frame14, Row(Framed(Frame15, Column(chkboxTCPNotify)),
                             Column(Framed(Frame17, Dotted(txTCPHost, lbTxdotIP, kDots)),
                                    Framed(Frame18, Dotted(txTCPBkHost, lbTxdotIP, 2 * kDots)),
                                    LabelledRow(lbTCPPort, txtTCPPort),
                                    Labelled(lbTCPInterval, cbTCPInterval), Stretch())));
}

void AlarmNotificationPage::CaptionControls() {
  for (int k = 0; k < kEvents; ++k) {
    const std::string event = Text(kNotifiedEvents.at(static_cast<std::size_t>(k)).text);
    chkboxNotify(k).SetCaption(event);
    chkboxTCPNotify(k).SetCaption(event);
  }
  if (face_.tcp_notification) {
    auto intervals = NumberTexts(1, kLongestInterval);
    intervals.insert(intervals.begin(), Text(81));
    cbTCPInterval.SetItems(std::move(intervals));
  }
  chkboxNotify.SetSpokenNames(Frame12.Caption());
  chkboxTCPNotify.SetSpokenNames(Frame14.Caption());
  txSMTPServer.SetSpokenNames(Frame16.Caption());
  txTCPHost.SetSpokenNames(Frame17.Caption());
  txTCPBkHost.SetSpokenNames(Frame18.Caption());
  txtUser1Addr.SetText(Text(116));
  txtUser2Addr.SetText(Text(117));
}

void AlarmNotificationPage::Fill() {
  FillEmail();
  FillTcp();
}

/// What the device has no block for is shown, and cannot be changed: it would not be kept.
void AlarmNotificationPage::FillEmail() {
  const clsEmailNotify& notify = Record().AlmEmailNotify;
  TickEvents(chkboxNotify, notify.EmailNotify(0));
  int address = 0;
  for (const AddressBox& it : Addresses()) {
    it.box.SetShownLength(kAddressWidth);
    it.warning.SetKeepsPlace(true);
    it.box.SetEnabled(it.kept);
    DeviceText& text = addresses_.emplace_back(it.box, Ctx().platform);
    if (address < 2 || it.kept) text.Show(notify.EmailString(address));
    text.on_change = [this, address] { WarnOfAddress(address); };
    ++address;
  }
  ShowOctets(smtp_server_, notify.SMTPServer);
  txSMTPServer.SetEnabled(face_.hosts_kept);
  smtp_port_.Show(notify.SMTPPort());
}

void AlarmNotificationPage::FillTcp() {
  const clsEmailNotify& notify = Record().AlmEmailNotify;
  ShowOctets(tcp_host_, notify.TCPHost);
  ShowOctets(tcp_backup_host_, notify.TCPBkUpHost);
  txTCPHost.SetEnabled(face_.tcp_notification && face_.hosts_kept);
  txTCPBkHost.SetEnabled(face_.tcp_notification && face_.hosts_kept);
  chkboxTCPNotify.SetEnabled(face_.tcp_notification);
  txtTCPPort.SetEnabled(face_.tcp_notification);
  cbTCPInterval.SetEnabled(face_.tcp_notification);
  if (!face_.tcp_notification) return;
  tcp_port_.Show(notify.TCPPort());
  TickEvents(chkboxTCPNotify, notify.TCPNotify(0));
  cbTCPInterval.Select(notify.TCPInterval());
}

void AlarmNotificationPage::WarnOfAddress(int address) {
  const auto place = static_cast<std::size_t>(address);
  const std::string text = addresses_.at(place).Bytes();
  const auto [local, domain] = clsEmailNotify::Split(text);
  const bool lost = !text.empty() && (local.empty() || domain.empty());
  const bool cut = std::max(local.size(), domain.size()) > clsEmailNotify::kLongestHalf;
  std::string warning;
  if (lost || cut) warning = Text(lost ? kTextAddressEmptied : kTextAddressCut);
  Addresses().at(place).warning.SetCaption(std::move(warning));
}

void AlarmNotificationPage::Write() {
  WriteEmail();
  if (face_.tcp_notification) WriteTcp();
}

void AlarmNotificationPage::WriteEmail() {
  clsEmailNotify& notify = Record().AlmEmailNotify;
  notify.EmailNotify(0, TickedEvents(chkboxNotify, notify.EmailNotify(0)));
  WriteAddress(0);
  WriteAddress(1);
  WriteOctets(smtp_server_, notify.SMTPServer);
  notify.SMTPPort(smtp_port_.Number());
  WriteAddress(2);
}

void AlarmNotificationPage::WriteTcp() {
  clsEmailNotify& notify = Record().AlmEmailNotify;
  notify.TCPNotify(0, TickedEvents(chkboxTCPNotify, notify.TCPNotify(0)));
  WriteOctets(tcp_host_, notify.TCPHost);
  WriteOctets(tcp_backup_host_, notify.TCPBkUpHost);
  notify.TCPInterval(static_cast<Byte>(Chosen(cbTCPInterval, notify.TCPInterval())));
  notify.TCPPort(tcp_port_.Number());
}

/// An address that nobody has typed stays as it is stored: not every pair of halves that a device
/// holds reads as an address. A half whose later blocks have become empty is listed here, because
/// the record lists it for the texts that it still holds only.
void AlarmNotificationPage::WriteAddress(int address) {
  const auto typed = addresses_.at(static_cast<std::size_t>(address)).Typed();
  if (!typed) return;
  clsEmailNotify& notify = Record().AlmEmailNotify;
  constexpr int kHalf = clsEmailNotify::kBlocksPerHalf;
  const int first = clsEmailNotify::FirstBlock(address);
  const auto half_texts = [&](int half) {
    std::array<BlockText, kHalf> texts;
    for (int i = 0; i < kHalf; ++i) {
      texts.at(static_cast<std::size_t>(i)) = notify.BlkStrInit(half + i);
    }
    return texts;
  };
  const auto local = half_texts(first);
  const auto domain = half_texts(first + kHalf);
  notify.EmailString(address, *typed);
  const auto list_half = [&](int half) {
    for (int block = half; block < half + kHalf; ++block) {
      Ctx().env.blocks.AddBlk(static_cast<Byte>(block));
    }
  };
  if (half_texts(first) != local) list_half(first);
  if (half_texts(first + kHalf) != domain) list_half(first + kHalf);
}

}  // namespace quorvel
