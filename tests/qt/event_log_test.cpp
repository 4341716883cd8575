#include "muxhost/window/event_log.h"

#include <gtest/gtest.h>

#include <iterator>

namespace quorvel::muxhost {
namespace {

TEST(MuxhostEventLog, TellsEventsInWordsAndRunsInOneLine) {
  EventLog log;
  for (const char* const entry :
       {"RequestBlk 1", "RequestBlk 2", "RequestBlk 3", "RequestBlk 3", "UploadSucceeded",
        "DownLoadData 9", "DownLoadData end", "not written: the device refuses block 9",
        "block 12 is not as sent", "block 13 is not as sent", "SendComboBlocks 3613 bytes",
        "ULSucceededWithStr TX 16 6 9", "the link fails: late at 3 by 300 ms",
        "nobody could press cmdStop of frm_ToMux"}) {
    log.Add(entry);
  }
  const char* const lines[] = {
      "The control asks for blocks 1 to 3.",
      "The control asks for block 3.",
      "The device's configuration has arrived in the control.",
      "The control hands over block 9.",
      "The control has handed over everything.",
      "Not written: the device refuses block 9.",
      "Blocks 12 to 13 are not as sent.",
      "The control hands over the whole configuration: 3613 bytes.",
      "The configuration of TX 16 (model 6, 9 cameras) has arrived in one piece.",
      "The link fails at number 3: it takes longer, by 300 ms.",
      "Nobody could press STOP of the send dialog."};
  ASSERT_EQ(log.count(), static_cast<int>(std::size(lines)));
  for (int i = 0; i < log.count(); ++i) EXPECT_EQ(log.item(i)->text().mid(11), lines[i]);
}

}  // namespace
}  // namespace quorvel::muxhost
