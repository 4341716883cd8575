#include "muxhost/window/words.h"

#include <QRegularExpression>
#include <vector>

#include "muxhost/script/report.h"
#include "muxhost/window/tr.h"
#include "quorvel/identity.h"

namespace quorvel::muxhost {

namespace {

/// What a session says, with %1 and so on for what differs, and the sentence that tells it.
struct Phrase {
  const char* entry;
  const char* sentence;
};
constexpr Phrase kEvents[] = {
    {"RequestComboBlocks", ToSay("The control asks for the whole configuration.")},
    {"SendComboBlocks %1 bytes",
     ToSay("The control hands over the whole configuration: %1 bytes.")},
    {"UploadSucceeded", ToSay("The device's configuration has arrived in the control.")},
    {"ULSucceededWithStr %1 %2 %3",
     ToSay("The configuration of %1 (model %2, %3 cameras) has arrived in one piece.")},
    {"ActGridPop %1", ToSay("The user wants to edit the active zones of %1 cameras.")},
    {"ActGridData %1 bytes", ToSay("The control hands over an activity grid: %1 bytes.")},
    {"Click", ToSay("The control was clicked.")},
    {"DblClick", ToSay("The control was double-clicked.")},
    {"DownLoadData end", ToSay("The control has handed over everything.")},
    {"verified 1 block", ToSay("Verified 1 block.")},
    {"verified 1 block and the macro data", ToSay("Verified 1 block and the macro data.")},
    {"verified %1 blocks", ToSay("Verified %1 blocks.")},
    {"verified %1 blocks and the macro data", ToSay("Verified %1 blocks and the macro data.")},
    {"the macro data is not as sent", ToSay("The macro data is not as sent.")},
    {"the link is on", ToSay("The link is on.")},
    {"the link is off", ToSay("The link is off.")},
    {"nothing crosses the link: it is off", ToSay("Nothing crosses the link: it is off.")},
    {"no device is connected", ToSay("No device is connected.")},
    {"not answered: the device has no block %1",
     ToSay("Not answered: the device has no block %1.")},
    {"not answered: the device exchanges single blocks",
     ToSay("Not answered: the device exchanges single blocks.")},
    {"not written: the device refuses block %1",
     ToSay("Not written: the device refuses block %1.")},
    {"not written: the device does not take the array",
     ToSay("Not written: the device does not take the array.")},
    {"the configuration has nothing for blocks %1 of the device",
     ToSay("The configuration has nothing for blocks %1 of the device.")},
    {"somebody pressed cmdStop of frm_ToMux", ToSay("Somebody pressed STOP of the send dialog.")},
    {"somebody pressed cmdStop of frm_ULFrMux",
     ToSay("Somebody pressed STOP of the receive dialog.")},
    {"nobody could press cmdStop of frm_ToMux",
     ToSay("Nobody could press STOP of the send dialog.")},
    {"nobody could press cmdStop of frm_ULFrMux",
     ToSay("Nobody could press STOP of the receive dialog.")},
    {"somebody closed frm_ToMux", ToSay("Somebody closed the send dialog.")},
    {"somebody closed frm_ULFrMux", ToSay("Somebody closed the receive dialog.")},
    {"nobody could close frm_ToMux", ToSay("Nobody could close the send dialog.")},
    {"nobody could close frm_ULFrMux", ToSay("Nobody could close the receive dialog.")},
};

/// Why the device was not read.
constexpr Phrase kReasons[] = {
    {"the link is off", ToSay("the link is off")},
    {"the device has no block %1", ToSay("the device has no block %1")},
    {"block %1 came with %2 bytes", ToSay("block %1 came with %2 bytes")},
    {"what came is no configuration: %1", ToSay("what came is no configuration: %1")},
    {"the array that came is no configuration", ToSay("the array that came is no configuration")},
};

/// Entries about one block, and what they say of several.
struct BlockSentence {
  const char* entry;
  const char* one;
  const char* several;
};
constexpr BlockSentence kBlockSentences[] = {
    {"RequestBlk %1", ToSay("The control asks for block %1."),
     ToSay("The control asks for blocks %1 to %2.")},
    {"DownLoadData %1", ToSay("The control hands over block %1."),
     ToSay("The control hands over blocks %1 to %2.")},
    {"block %1 is not as sent", ToSay("Block %1 is not as sent."),
     ToSay("Blocks %1 to %2 are not as sent.")},
};

/// An entry with `value` in the places of %1 and so on.
QRegularExpression Pattern(QString entry, const QString& value) {
  static const QRegularExpression places("\\\\%\\d");
  entry = QRegularExpression::escape(entry).replace(places, value);
  return QRegularExpression(QRegularExpression::anchoredPattern(entry));
}

/// The sentence of an entry, or nothing.
QString Told(std::span<const Phrase> phrases, const QString& entry) {
  for (const Phrase& known : phrases) {
    const auto match = Pattern(known.entry, "(.*)").match(entry);
    if (!match.hasMatch()) continue;
    std::vector<std::string> values;
    for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
      values.push_back(match.captured(i).toStdString());
    }
    return QString::fromStdString(Fill(Say(known.sentence), values));
  }
  return {};
}

/// "the link fails: late at 3 by 300 ms".
QString FaultSentence(const QString& entry) {
  static const QRegularExpression pattern("^the link fails: (\\w+) at (\\d+)(?: by (\\d+ ms))?$");
  const auto match = pattern.match(entry);
  const auto kind = FaultKindOf(match.captured(1).toStdString());
  if (!kind) return {};
  const QString delay = match.captured(3);
  if (delay.isEmpty()) {
    return Tr("The link fails at number %1: %2.").arg(match.captured(2), InWords(*kind));
  }
  return Tr("The link fails at number %1: %2, by %3.")
      .arg(match.captured(2), InWords(*kind), delay);
}

}  // namespace

QString InWords(std::span<const Byte> numbers) {
  return QString::fromStdString(AbbreviateRuns(numbers)).replace(" ", ", ");
}

QString InWords(FaultKind kind) {
  switch (kind) {
    case FaultKind::kSilent: return Tr("no answer comes");
    case FaultKind::kShort: return Tr("half of it arrives");
    case FaultKind::kLong: return Tr("8 bytes too many arrive");
    case FaultKind::kGarbage: return Tr("noise arrives");
    case FaultKind::kWrong: return Tr("its number is changed");
    case FaultKind::kDuplicate: return Tr("it comes twice");
    case FaultKind::kLate: return Tr("it takes longer");
    case FaultKind::kDrop: return Tr("it is lost on the way");
    case FaultKind::kStop: return Tr("somebody presses STOP");
    case FaultKind::kClose: return Tr("somebody closes the dialog");
  }
  return {};
}

QString InWords(BlockState state) { return Tr(NameOf(state)); }

QString NameOf(const SimulatedDevice& device, const Platform& platform) {
  const auto& identity = device.IdentityBytes();
  const std::string name(identity.begin() + 2, identity.end());
  return QString::fromStdString(platform.ToUtf8(name.substr(0, name.find('\0')))).trimmed();
}

QString Describe(const SimulatedDevice& device, const Platform& platform) {
  const std::string model(ModelText(device.ModelCode()));
  return Tr("%1:  %2, %3 cameras, %4 blocks, %5")
      .arg(NameOf(device, platform), QString::fromStdString(model),
           QString::number(device.IdentityBytes().at(0)), QString::number(device.BlockCount()),
           device.IsCombined() ? Tr("combined array") : Tr("single blocks"));
}

QString LackingInWords(std::span<const Byte> blocks) {
  if (blocks.empty()) return {};
  return Tr(blocks.size(), "The configuration has nothing for block %1 of the device.",
            "The configuration has nothing for blocks %1 of the device.")
      .arg(InWords(blocks));
}

QString Sentence(const QString& entry) {
  for (const QString& sentence : {FaultSentence(entry), Told(kEvents, entry)}) {
    if (!sentence.isEmpty()) return sentence;
  }
  return entry.left(1).toUpper() + entry.mid(1) + ".";  // it is in words already
}

QString Reason(const QString& reason) {
  const QString told = Told(kReasons, reason);
  return told.isEmpty() ? reason : told;
}

QString BlockEntry::SentenceFrom(int first) const {
  for (const BlockSentence& known : kBlockSentences) {
    if (about != known.entry) continue;
    if (first == number) return Tr(known.one).arg(number);
    return Tr(known.several).arg(first).arg(number);
  }
  return {};
}

BlockEntry AsBlockEntry(const QString& entry) {
  for (const BlockSentence& known : kBlockSentences) {
    const auto match = Pattern(known.entry, "(\\d+)").match(entry);
    if (match.hasMatch()) return {known.entry, match.captured(1).toInt()};
  }
  return {};
}

QString WhatWentWrong(const Exchange& upload) {
  QStringList sentences;
  if (upload.array_bytes > 0 && !upload.array_taken) {
    sentences << Tr("The device has not taken the combined array.");
  }
  if (upload.ended && !upload.end_written && upload.unanswered) {
    sentences << Tr("The device has not acknowledged block %1.").arg(*upload.unanswered);
  }
  if (upload.read_back && !upload.read_back->differ.empty()) {
    const auto& differ = upload.read_back->differ;
    sentences << Tr(differ.size(), "The device does not hold block %1 as sent.",
                    "The device does not hold blocks %1 as sent.")
                     .arg(InWords(differ));
  }
  if (upload.read_back && upload.read_back->macros_differ) {
    sentences << Tr("The device does not hold the macro data as sent.");
  }
  return sentences.join('\n');
}

}  // namespace quorvel::muxhost
