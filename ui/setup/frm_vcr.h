#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"

namespace quorvel {

/// VCR Setup: how a multiplexer works with the video recorder that is connected to it.
class frm_VCR : public Editor {
 public:
  explicit frm_VCR(Context& context);

 private:
  void WriteRest(MuxData& record) override;
  /// The tape formats, each by its option: other device variants play other ones.
  [[nodiscard]] Choices PlaybackFormats() const;

  Frame Frame1{*this, "Frame1", Text(txt::kSvhsOrComposite)};
  ControlArray<OptionButton> optVideo{*this, "optVideo", 2};
  Frame Frame2{*this, "Frame2", Text(txt::kSwitchInputOnOrOff)};
  ControlArray<OptionButton> optSwInput{*this, "optSwInput", 2};
  Frame Frame3{*this, "Frame3", Text(txt::kSwitchEdge)};
  ControlArray<OptionButton> optSwEdge{*this, "optSwEdge", 2};
  Frame Frame4{*this, "Frame4", Text(txt::kSignalLevel)};
  ControlArray<OptionButton> optSignal{*this, "optSignal", 3};
  Frame Frame5{*this, "Frame5", Text(txt::kPlaybackFormat)};
  ControlArray<OptionButton> optPlayFmt{*this, "optPlayFmt", 4};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

}  // namespace quorvel
