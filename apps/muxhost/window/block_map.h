#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <array>
#include <functional>

#include "muxhost/block_states.h"
#include "muxhost/device/bare_blocks.h"
#include "muxhost/host_session.h"
#include "muxhost/window/block_model.h"

namespace quorvel::muxhost {

/// The cells, in as many columns as there is space for. Arrow keys move between them.
class BlockGrid : public QListView {
 public:
  explicit BlockGrid(QWidget* parent = nullptr);

  /// The pointer is over another block, or the keys have chosen one: its number. Without a pointer
  /// over the cells it is the chosen one.
  std::function<void(int block)> on_look;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool viewportEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] QSize Cells(int columns, int rows) const;
};

/// The map of all blocks with their states, and a legend.
class BlockMapBox : public QGroupBox {
 public:
  /// The session must outlive the box.
  explicit BlockMapBox(HostSession& session, QWidget* parent = nullptr);

  /// Another device is connected.
  void Forget() { states_.Forget(); }
  /// Takes over how things are now. While a transfer runs nothing is edited, so that only what
  /// crosses the link is looked at; settings are compared while an editor or the menu is open, and
  /// when the list of modified blocks, the image or the device has changed.
  void Update(bool transfer_runs, bool editor_is_open);
  [[nodiscard]] const BlockStates& States() const { return states_; }
  /// What is changed or has failed goes to the device only together with the macros.
  [[nodiscard]] bool OnlyMacrosAreLeft() const;
  /// What the block under the pointer, or the chosen one, holds: to be placed beside the map.
  [[nodiscard]] QWidget* ContentsBox() { return contents_box_; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] QLayout* MakeLegend();
  /// Takes over what comes from the font's size.
  void Measure();
  [[nodiscard]] bool MayHaveChanges(bool editor_is_open);
  void TakeChanges();
  [[nodiscard]] bool IsLockOfTheMenu(const SettingDifference& difference) const;
  void Look(int block);
  void ShowContents();
  void ShowCounts();

  HostSession& session_;
  BlockStates states_;
  BlockModel* const model_;
  BlockGrid* const grid_;
  QGroupBox* const contents_box_;
  QPlainTextEdit* const contents_;
  std::array<QLabel*, kBlockStates> counts_{};
  std::vector<SettingDifference> differences_;
  std::vector<Byte> image_;
  std::vector<Byte> edited_;
  std::vector<Byte> device_;
  std::vector<Byte> listed_;
  BareBlocks bare_;  ///< of the image
  bool editor_was_open_ = true;
  int looked_at_ = 1;
  bool contents_are_old_ = true;
};

}  // namespace quorvel::muxhost
