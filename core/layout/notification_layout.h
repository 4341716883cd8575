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
  if (!Pass::kReading && id.LiteRecordModel) return;
  block.Bytes(8, 2, Each(notify.TCPNotify));
  block.Byte(12, notify.TCPInterval);
  block.Word(13, notify.TCPPort);
}

/// Blocks 201 to 212 and 220 to 225: pieces of e-mail addresses, ended by a zero byte when short.
template <class Pass>
void EmailText(Pass& block, int number, MuxData& rec) {
  if constexpr (Pass::kReading) {
    const auto text = block.Characters(0, kBlockSize);
    rec.AlmEmailNotify.LoadText(number, text.substr(0, text.find('\0')));
  } else {
    block.PutCharacters(0, kBlockSize, rec.AlmEmailNotify.BlkStrInit(number), '\0');
  }
}

/// Block 213. Byte 0 tells the device which addresses changed; once encoded, none are.
template <class Pass>
void NotificationHosts(Pass& block, MuxData& rec, const Identity& id) {
  clsEmailNotify& notify = rec.AlmEmailNotify;
  block.Bytes(1, 4, Each(notify.SMTPServer));
  if (Pass::kReading || !id.LiteRecordModel) {
    block.Bytes(5, 4, Each(notify.TCPHost));
    block.Bytes(9, 4, Each(notify.TCPBkUpHost));
  }
  if constexpr (!Pass::kReading) {
    block.Byte(0, notify.AlmServerChange);
    notify.AlmServerChange.Load(Byte{0});
  }
}

/// Block 217. Byte 0 tells the device which servers changed; once encoded, none are.
template <class Pass>
void TimeServers(Pass& block, MuxData& rec) {
  TimeDate& clock = rec.TDInfo;
  block.Byte(1, clock.NTPUpdate);
  block.Bytes(2, 4, Each(clock.NTPPrimServer));
  block.Bytes(6, 4, Each(clock.NTPBkupServer));
  if constexpr (!Pass::kReading) {
    block.Byte(0, clock.NTPchange);
    clock.NTPchange.Load(Byte{0});
  }
}

}  // namespace quorvel::layout
