#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"

namespace quorvel {

/// Time and date: the device's clock, where and how it is shown, whether it leads the clocks of
/// other devices, daylight saving and time zone, and the servers that it is set by.
class frm_TimeDate : public Editor {
 public:
  explicit frm_TimeDate(Context& context);

 private:
  static constexpr int kAuxMonitors = 3;  ///< C to E, of a matrix
  static constexpr int kOctets = 4;

  void BindDisplays(FieldGroup& settings);
  void BindRegion(FieldGroup& settings);
  void BindServers(FieldGroup& settings);
  void BindFormats(FieldGroup& settings);
  void FollowPickers();
  void Arrange();
  void WriteRest(MuxData& record) override;

  void ShowTimeFormat();
  void KeepDateInReach();
  void UsePcClock();

  Frame Frame1{*this, "Frame1", Text(txt::kTimeAndDateDisplay)};
  CheckBox TD_MonA{*this, "TD_MonA", Objects().objstMon + " A"};
  CheckBox TD_MonB{*this, "TD_MonB", Objects().objstMon + " B"};
  ControlArray<CheckBox> chkAuxMon{*this, "chkAuxMon", kAuxMonitors};
  Frame Frame2{*this, "Frame2", Text(txt::kTimeFormat)};
  ControlArray<OptionButton> TimeFormat{*this, "TimeFormat", 2};
  Frame Frame3{*this, "Frame3", Text(txt::kDateFormat)};
  ControlArray<OptionButton> DateFormat{*this, "DateFormat", 3};
  Frame Frame4{*this, "Frame4", Text(txt::kMasterOrSlaveSelect)};
  Label Label1{*this, "Label1", Text(txt::kMasterClock)};
  ControlArray<OptionButton> optYesNo{*this, "optYesNo", 2};

  CheckBox chkPCTD{*this, "chkPCTD", Text(txt::kPcTimeAndDate)};
  DatePicker Calendar{*this, "Calendar"};
  TimePicker DTPicker1{*this, "DTPicker1"};

  Frame Frame5{*this, "Frame5", Text(txt::kRegionalSettings)};
  Label Label2{*this, "Label2", Text(txt::kDaylightSaving)};
  ComboBox cbRegional{*this, "cbRegional"};
  Label Label3{*this, "Label3", Text(txt::kTimeZoneGmt)};
  ComboBox cbTimeZone{*this, "cbTimeZone"};

  Frame Frame6{*this, "Frame6", Text(txt::kNtpSetup)};
  Frame Frame7{*this, "Frame7", Text(txt::kNtpPrimaryServer)};
  ControlArray<TextBox> txNTPPrServer{*this, "txNTPPrServer", kOctets};
  Frame Frame8{*this, "Frame8", Text(txt::kNtpBackupServer)};
  ControlArray<TextBox> txNTPBkServer{*this, "txNTPBkServer", kOctets};
  ControlArray<Label> lbTxdotIP{*this, "lbTxdotIP", 2 * (kOctets - 1)};  ///< of two addresses
  Label Label4{*this, "Label4", Text(txt::kUpdateInterval)};
  ControlArray<OptionButton> optNTPUpdate{*this, "optNTPUpdate", 4};

  Button TDSavePage{*this, "TDSavePage"};
  Button TDCancel{*this, "TDCancel"};

  Field* date_ = nullptr;
  Field* time_ = nullptr;
};

}  // namespace quorvel
