#include "muxhost/window/find_model.h"

#include <QFont>
#include <utility>

#include "muxhost/review_text.h"
#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Differs(const SettingRow& row) {
  QStringList from;
  if (row.differs_from_device) from << Tr("device");
  if (row.differs_from_factory) from << Tr("factory");
  return from.join(", ");
}

}  // namespace

bool FindModel::Update() {
  if (!table_.Update()) return false;
  List();
  return true;
}

void FindModel::Show(Among among, const QString& words) {
  among_ = among;
  words_ = words.toStdString();
  List();
}

void FindModel::CompareWith(std::optional<std::vector<Byte>> file) {
  table_.CompareWith(std::move(file));
  List();
}

void FindModel::List() {
  beginResetModel();
  shown_ = table_.List(among_, words_);
  endResetModel();
}

const SettingRow& FindModel::Setting(int row) const {
  return table_.Rows().at(shown_.at(static_cast<std::size_t>(row)));
}

int FindModel::RowOf(const std::vector<std::string>& settings) const {
  for (int row = 0; row < rowCount(); ++row) {
    if (Setting(row).settings == settings) return row;
  }
  return -1;
}

int FindModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int FindModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QString FindModel::TextOf(const SettingRow& row, int column) const {
  switch (column) {
    case kWhere:
      return row.at.item.empty() ? Tr("In no editor") : Text(Place(row.at, row.settings));
    case kValue: return Text(row.value);
    case kInFile: return Text(table_.InFile(row).value_or(row.value));
    case kBlocks: return Text(Numbers(row.blocks));
    case kDiffers: return Differs(row);
    case kNames: return Text(NamesIn(row.settings));
    default: return {};
  }
}

QVariant FindModel::data(const QModelIndex& cell, int role) const {
  if (!cell.isValid()) return {};
  const SettingRow& row = Setting(cell.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return TextOf(row, cell.column());
    case Qt::AccessibleTextRole:
      if (cell.column() != kWhere || !row.differs_from_device) return TextOf(row, cell.column());
      return Tr("%1, changed").arg(TextOf(row, cell.column()));
    case Qt::FontRole: {
      QFont font;
      if (row.differs_from_device) font.setBold(true);
      return font;
    }
    default: return {};
  }
}

QVariant FindModel::headerData(int section, Qt::Orientation orientation, int role) const {
  static const char* const names[kColumns] = {ToSay("Where"),        ToSay("Value"),
                                              ToSay("In the file"),  ToSay("Blocks"),
                                              ToSay("Differs from"), ToSay("Name")};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  if (section < 0 || section >= kColumns) return {};
  return Tr(names[section]);
}

}  // namespace quorvel::muxhost
