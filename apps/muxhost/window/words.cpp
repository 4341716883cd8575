#include "muxhost/window/words.h"

#include <QMap>
#include <QRegularExpression>

#include "muxhost/script/report.h"
#include "quorvel/identity.h"

namespace quorvel::muxhost {

namespace {

/// Events by name, with %1 for what follows the name.
const QMap<QString, QString>& Sentences() {
  static const QMap<QString, QString> sentences{
      {"RequestComboBlocks", "The control asks for the whole configuration."},
      {"SendComboBlocks", "The control hands over the whole configuration: %1."},
      {"UploadSucceeded", "The device's configuration has arrived in the control."},
      {"ActGridPop", "The user wants to edit the active zones of %1 cameras."},
      {"ActGridData", "The control hands over an activity grid: %1."},
      {"Click", "The control was clicked."},
      {"DblClick", "The control was double-clicked."},
      {"DownLoadData end", "The control has handed over everything."},
  };
  return sentences;
}

/// Entries about one block, and what they say of several.
struct BlockSentence {
  const char* entry;
  const char* one;
  const char* several;
};
constexpr BlockSentence kBlockSentences[] = {
    {"RequestBlk %1", "The control asks for block %1.", "The control asks for blocks %1."},
    {"DownLoadData %1", "The control hands over block %1.", "The control hands over blocks %1."},
    {"block %1 is not as sent", "Block %1 is not as sent.", "Blocks %1 are not as sent."},
};

QString AsSentence(const QString& words) { return words.left(1).toUpper() + words.mid(1) + "."; }

/// "ULSucceededWithStr NAME MODEL CAMERAS".
QString ArrivalSentence(const QString& entry) {
  static const QRegularExpression pattern("^ULSucceededWithStr (.*) (\\d+) (\\d+)$");
  const auto match = pattern.match(entry);
  if (!match.hasMatch()) return {};
  return QString("The configuration of %1 (model %2, %3 cameras) has arrived in one piece.")
      .arg(match.captured(1), match.captured(2), match.captured(3));
}

/// "the link fails: late at 3 by 300 ms".
QString FaultSentence(const QString& entry) {
  static const QRegularExpression pattern("^the link fails: (\\w+) at (\\d+)(?: by (\\d+ ms))?$");
  const auto match = pattern.match(entry);
  const auto kind = FaultKindOf(match.captured(1).toStdString());
  if (!kind) return {};
  const QString delay = match.captured(3);
  return QString("The link fails at number %1: %2.")
      .arg(match.captured(2), InWords(*kind) + (delay.isEmpty() ? "" : ", by " + delay));
}

/// "somebody pressed cmdStop of frm_ToMux".
QString InterruptionSentence(const QString& entry) {
  if (!entry.startsWith("somebody ") && !entry.startsWith("nobody ")) return {};
  QString words = entry;
  words.replace("cmdStop", "STOP")
      .replace("frm_ToMux", "the send dialog")
      .replace("frm_ULFrMux", "the receive dialog");
  return AsSentence(words);
}

}  // namespace

QString InWords(const QString& what, std::span<const Byte> numbers) {
  const QString text = QString::fromStdString(AbbreviateRuns(numbers)).replace(" ", ", ");
  return what + (numbers.size() == 1 ? " " : "s ") + text;
}

QString InWords(FaultKind kind) {
  switch (kind) {
    case FaultKind::kSilent: return "no answer comes";
    case FaultKind::kShort: return "half of it arrives";
    case FaultKind::kLong: return "8 bytes too many arrive";
    case FaultKind::kGarbage: return "noise arrives";
    case FaultKind::kWrong: return "its number is changed";
    case FaultKind::kDuplicate: return "it comes twice";
    case FaultKind::kLate: return "it takes longer";
    case FaultKind::kDrop: return "it is lost on the way";
    case FaultKind::kStop: return "somebody presses STOP";
    case FaultKind::kClose: return "somebody closes the dialog";
  }
  return {};
}

QString InWords(BlockState state) {
  const auto name = NameOf(state);
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString NameOf(const SimulatedDevice& device, const Platform& platform) {
  const auto& identity = device.IdentityBytes();
  const std::string name(identity.begin() + 2, identity.end());
  return QString::fromStdString(platform.ToUtf8(name.substr(0, name.find('\0')))).trimmed();
}

QString Describe(const SimulatedDevice& device, const Platform& platform) {
  const std::string model(ModelText(device.ModelCode()));
  return QString("%1:  %2, %3 cameras, %4 blocks, %5")
      .arg(NameOf(device, platform), QString::fromStdString(model),
           QString::number(device.IdentityBytes().at(0)), QString::number(device.BlockCount()),
           device.IsCombined() ? "combined array" : "single blocks");
}

QString LackingBlocks(HostSession& session) {
  const std::vector<Byte> lacking = session.LackingBlocks();
  return lacking.empty() ? QString() : InWords("block", lacking);
}

QString Sentence(const QString& entry) {
  for (const auto& make : {ArrivalSentence, FaultSentence, InterruptionSentence}) {
    QString sentence = make(entry);
    if (!sentence.isEmpty()) return sentence;
  }
  QString whole = Sentences().value(entry);
  if (!whole.isEmpty()) return whole;
  const QString sentence = Sentences().value(entry.section(' ', 0, 0));
  if (!sentence.isEmpty()) return sentence.arg(entry.section(' ', 1));
  return AsSentence(entry);  // it is in words already
}

QString BlockEntry::SentenceFrom(int first) const {
  for (const BlockSentence& known : kBlockSentences) {
    if (about != known.entry) continue;
    if (first == number) return QString(known.one).arg(number);
    return QString(known.several).arg(QString("%1 to %2").arg(first).arg(number));
  }
  return {};
}

BlockEntry AsBlockEntry(const QString& entry) {
  for (const BlockSentence& known : kBlockSentences) {
    QString pattern = QRegularExpression::escape(known.entry);
    pattern.replace(QRegularExpression::escape("%1"), "(\\d+)");
    const auto match =
        QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(entry);
    if (match.hasMatch()) return {known.entry, match.captured(1).toInt()};
  }
  return {};
}

QString WhatWentWrong(const Exchange& upload) {
  QStringList sentences;
  if (upload.array_bytes > 0 && !upload.array_taken) {
    sentences << "The device has not taken the combined array.";
  }
  if (upload.ended && !upload.end_written && upload.unanswered) {
    sentences << QString("The device has not acknowledged block %1.").arg(*upload.unanswered);
  }
  if (upload.read_back && !upload.read_back->differ.empty()) {
    const auto& differ = upload.read_back->differ;
    sentences << "The device does not hold " + InWords("block", differ) + " as sent.";
  }
  if (upload.read_back && upload.read_back->macros_differ) {
    sentences << "The device does not hold the macro data as sent.";
  }
  return sentences.join('\n');
}

}  // namespace quorvel::muxhost
