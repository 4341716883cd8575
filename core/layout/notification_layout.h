#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Block 200. Lite models have no TCP notification: its bytes are the device's own there.
template <class Pass>
void NotificationPorts(Pass& block, MuxData& rec, const Identity& id) {
  clsEmailNotify& notify = rec.AlmEmailNotify;
  block.Bytes(0, 2, Each(notify.EmailNotify));
  block.Word(5, notify.SMTPPort);
  if (Pass::kWriting && id.LiteRecordModel) return;
  block.Bytes(8, 2, Each(notify.TCPNotify));
  block.Byte(12, notify.TCPInterval);
  block.Word(13, notify.TCPPort);
}

/// Block 213. Lite models have no TCP hosts.
template <class Pass>
void NotificationHosts(Pass& block, MuxData& rec, const Identity& id) {
  clsEmailNotify& notify = rec.AlmEmailNotify;
  block.ChangeMask(0, notify.AlmServerChange);
  block.Bytes(1, 4, Each(notify.SMTPServer));
  if (!Pass::kWriting || !id.LiteRecordModel) {
    block.Bytes(5, 4, Each(notify.TCPHost));
    block.Bytes(9, 4, Each(notify.TCPBkUpHost));
  }
}

/// Block 217.
template <class Pass>
void TimeServers(Pass& block, MuxData& rec) {
  TimeDate& clock = rec.TDInfo;
  block.ChangeMask(0, clock.NTPchange);
  block.Byte(1, clock.NTPUpdate);
  block.Bytes(2, 4, Each(clock.NTPPrimServer));
  block.Bytes(6, 4, Each(clock.NTPBkupServer));
}

}  // namespace quorvel::layout
