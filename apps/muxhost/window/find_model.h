#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <string>
#include <vector>

#include "muxhost/find/setting_table.h"

namespace quorvel::muxhost {

/// The settings that fit what the user looks for, one a row. What differs from the device is bold,
/// and called so.
class FindModel : public QAbstractTableModel {
 public:
  enum Column { kWhere, kValue, kInFile, kBlocks, kDiffers, kNames, kColumns };

  /// The session must outlive the model.
  explicit FindModel(HostSession& session, QObject* parent = nullptr)
      : QAbstractTableModel(parent), table_(session) {}

  /// Takes over how the control's settings are now; false when nothing has changed.
  bool Update();
  void Show(Among among, const QString& words);
  void CompareWith(std::optional<std::vector<Byte>> file);

  [[nodiscard]] const SettingTable& Table() const { return table_; }
  /// Numbers in the table of what is shown.
  [[nodiscard]] const std::vector<std::size_t>& Shown() const { return shown_; }
  [[nodiscard]] const SettingRow& Setting(int row) const;
  /// The row that shows these settings, or -1.
  [[nodiscard]] int RowOf(const std::vector<std::string>& settings) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& cell, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;

 private:
  [[nodiscard]] QString TextOf(const SettingRow& row, int column) const;
  void List();

  SettingTable table_;
  Among among_ = Among::kAll;
  std::string words_;
  std::vector<std::size_t> shown_;
};

}  // namespace quorvel::muxhost
