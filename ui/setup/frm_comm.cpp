#include "ui/setup/frm_comm.h"

#include <array>
#include <span>
#include <string>

namespace quorvel {

namespace {

constexpr std::array kRates = {"1200", "2400", "4800", "9600", "19200", "38400", "57600"};
constexpr std::size_t kOptions = 4;  // of a port without a list: the slowest rates or the fastest
constexpr int kLastOption = 3;
constexpr int kProprietaryRate = 7;
constexpr int kLastAddress = 255;
constexpr int kAddressLines = 10;

/// Rates, each of which is stored as its place; `unit` follows them.
Choices RatesOf(std::span<const char* const> rates, const std::string& unit = {}) {
  Choices choices;
  for (const char* const rate : rates) choices.Add(choices.Count(), rate + unit);
  return choices;
}

}  // namespace

frm_Comm::frm_Comm(Context& context)
    : Editor(context, "frm_Comm", txt::kCommunications, {CommitComm}) {
  ShowWhatTheModelHas();
  BindPorts();
  List1.SetRows(kAddressLines);
  Once()
      .List(List1, Choices::Numbers(0, kLastAddress, 0), At(&MuxData::NetworkAddr))
      .When(Frame2.Visible());
  SetLayout(Column(
      Row(Column(Framed(Frame1, Column(optBaudRate)),
                 Framed(Frame3, Row(Framed(frmPort0, Column(optBaudRtP0)),
                                    Framed(frmPort1, Column(optBaudRtP1)))),
                 Framed(Frame4, Column(LabelledRow(Label2, cbPort1), LabelledRow(Label3, cbPort2))),
                 Stretch()),
          Framed(Frame2, Column(Labelled(Label1, List1))), Stretch()),
      Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel);
}

void frm_Comm::ShowWhatTheModelHas() {
  const Identity& id = Id();
  const bool vaultline = id.ModelCode == 10 || id.ModelCode == 11;
  const bool one_port = vaultline || id.Model4L;
  const bool basic = id.VariantChar == 'A' && id.RecorderKind != 2;
  Frame1.SetVisible(id.IsMultiplexer());
  Frame3.SetVisible(!id.IsMultiplexer() && !id.IsTriplex());
  Frame4.SetVisible(id.IsTriplex());
  Label3.SetVisible(!one_port);
  cbPort2.SetVisible(!one_port);
  Frame2.SetVisible(!one_port && !basic);
}

void frm_Comm::BindPorts() {
  const std::span rates(kRates);
  const Choices slow = RatesOf(rates.first(kOptions), " " + Text(txt::kBaud));
  const SettingRef port1 = At(&MuxData::BaudRatePPC);
  const SettingRef port2 = At(&MuxData::BaudRate);
  FieldGroup& ports = Once();
  ports.Options(optBaudRate, slow, port2).When(Frame1.Visible());
  ports.Options(optBaudRtP0, RatesOf(rates.last(kOptions)), port1.OtherwiseWritten(kLastOption))
      .When(Frame3.Visible());
  ports.Options(optBaudRtP1, slow, port2.OtherwiseWritten(kLastOption)).When(Frame3.Visible());
  Choices all = RatesOf(rates);
  ports.List(cbPort1, all, port1).When(Frame4.Visible());
  if (Id().VariantChar == '2') all.Add(kProprietaryRate, Text(txt::kProprietary));
  ports.List(cbPort2, all, port2).When(Frame4.Visible() && cbPort2.Visible());
}

}  // namespace quorvel
