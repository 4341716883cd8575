#include "muxhost/window/window_language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <iterator>

#include "muxhost/texts/languages.h"
#include "muxhost/window/device_picker.h"
#include "muxhost/window/event_log.h"
#include "muxhost/window/tr.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {
namespace {

TEST(MuxhostWindowLanguage, IsSpokenAsLongAsItLives) {
  const QtPlatform platform;
  QVariantMap choice{{"exchange", "Combined array"}};
  {
    const WindowLanguage german(ChooseLanguage("de", {}).language);
    EventLog log;
    for (const char* const entry :
         {"RequestBlk 1", "RequestBlk 2", "verified 1 block", "verified 12 blocks",
          "ULSucceededWithStr %2 6 9", "the link fails: late at 3 by 300 ms", "a new event"}) {
      log.Add(entry);
    }
    const char* const lines[] = {
        "Das Steuerelement fragt nach den Blöcken 1 bis 2.",
        "1 Block geprüft.",
        "12 Blöcke geprüft.",
        "Die Konfiguration von %2 (Modell 6, 9 Kameras) ist in einem Stück "
        "angekommen.",
        "Die Verbindung versagt bei Nummer 3: es dauert länger, um 300 ms.",
        "A new event."};
    ASSERT_EQ(log.count(), static_cast<int>(std::size(lines)));
    for (int i = 0; i < log.count(); ++i) EXPECT_EQ(log.item(i)->text().mid(11), lines[i]);
    EXPECT_EQ(QCoreApplication::translate("QPushButton", "Cancel"), "Cancel");
    DevicePicker picker(platform);
    picker.Choose(choice);
    EXPECT_TRUE(picker.Setup().combined.has_value());
    choice = picker.Choice();
  }
  EXPECT_EQ(Tr("Cancel"), "Cancel");
  DevicePicker picker(platform);
  picker.Choose(choice);
  EXPECT_TRUE(picker.Setup().combined.has_value());
}

}  // namespace
}  // namespace quorvel::muxhost
