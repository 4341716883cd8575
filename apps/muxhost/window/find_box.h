#pragma once

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <functional>

#include "muxhost/window/find_model.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// Finds settings by words, lists them with their values, and opens their editors; all of it with
/// the keyboard alone, too. It follows the control's settings and leaves the focus where it is.
class FindBox : public QDockWidget {
 public:
  /// Both must outlive the box.
  FindBox(QtPlatform& platform, HostSession& session, QWidget* parent = nullptr);

  /// The user wants to find something.
  void Begin();
  /// Takes over how things are now, while the box is to be seen.
  void Update();

  /// The user wants a setting's editor; false when it does not open now.
  std::function<bool(const SettingPosition& at)> on_open;
  /// The box was closed with the keyboard or its button.
  std::function<void()> on_close;
  /// What a list is to be called that is exported.
  std::function<std::string()> name_of_export;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  /// Keys that the list and the line of words hand to each other.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  [[nodiscard]] QWidget* MakeContents();
  void SetUpList();
  void Measure();

  void Choose(int filter);
  void TakeFile(const std::string& path);
  /// The filters as they are called; the file's with its name.
  void NameFilters();
  [[nodiscard]] Among Chosen() const;
  /// Lists what fits; the first row becomes current.
  void List();
  void MakeCurrent(int row);
  /// How many there are, or why there are none.
  void Tell();
  [[nodiscard]] QString WhyNone() const;

  /// True when the key was taken.
  bool KeyInWords(const QKeyEvent& key);
  bool KeyInList(QKeyEvent& key);
  void Open();
  void Copy();
  void Export();

  QtPlatform& platform_;
  FindModel model_;
  QLineEdit* const words_;
  QComboBox* const filter_;
  QPushButton* const export_;
  QLabel* const count_;
  QTreeView* const list_;
  QLabel* const nothing_;
  std::string file_;        ///< path of the file that is compared, or was last
  std::string unreadable_;  ///< why it was not read, in words
  int chosen_ = 0;          ///< filter
};

}  // namespace quorvel::muxhost
