#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <functional>
#include <optional>
#include <vector>

#include "muxhost/compare_files.h"
#include "muxhost/host_session.h"
#include "muxhost/window/document.h"
#include "muxhost/window/event_log.h"
#include "muxhost/window/memory.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// The File menu: settings files, and factory defaults, without a device.
class FileMenu : public QObject {
 public:
  /// What it works with; all must outlive it.
  struct Surroundings {
    QtPlatform& platform;
    HostSession& session;
    QMainWindow& window;
    Memory& memory;
    EventLog& log;
  };
  explicit FileMenu(const Surroundings& at);

  /// Both must be set. Asks before changes are lost by what is named; true when they may be.
  std::function<bool(const QString& by)> may_lose;
  /// Another configuration is open, without a device.
  std::function<void()> on_opened;

  [[nodiscard]] Document& Opened() { return document_; }
  [[nodiscard]] bool IsUnsaved() const { return document_.IsUnsaved(at_.session.Control()); }
  [[nodiscard]] bool IsKept() const { return document_.IsKept(at_.session.Control()); }

  /// Opens a settings file. Asks before; what cannot be used is told.
  void OpenFile(const QString& path);
  /// Saves into the file that is open, or asks for one; false when nothing was saved.
  bool Save();
  /// Asks for a file to save into, whatever is open.
  bool SaveAs();
  /// What a file of these settings is called by default: model, name, date and an ending.
  [[nodiscard]] QString ProposedName(const QString& ending) const;
  /// Enables what can be done, and shows the file in the window's title. `why_not`, unless empty,
  /// is why nothing else can be opened now.
  void Show(const QString& why_not, bool loaded);
  /// Shows the file in the window's title.
  void ShowTitle();

 private:
  void AddActions(QMenu& menu);
  void ListRecent();
  void New();
  void AskForFile();
  bool SaveInto(const QString& path);
  /// A kind of file that can be saved.
  struct Kind {
    QString name;    ///< "PDF files"
    QString ending;  ///< ".pdf"
  };
  /// Asks for a file to save into, by the proposed name in the last folder of `purpose`; a name
  /// without an ending gets that of the kind that is chosen. Empty when the user would rather not.
  [[nodiscard]] QString AskForNewName(const QString& title, const QString& purpose,
                                      const std::vector<Kind>& kinds);
  [[nodiscard]] std::string Report();
  void SaveReport();
  void CompareWithFile();
  void CompareTwoFiles();
  /// Empty when the user would rather not.
  [[nodiscard]] QString AskForName(const QString& title, const QString& purpose);
  /// The file's bytes; what keeps it from being read is told.
  [[nodiscard]] std::optional<std::vector<Byte>> Read(const QString& path);
  void ShowComparison(const QString& what, const Comparison& comparison);
  void Warn(const QString& trouble, const std::string& why);

  Surroundings at_;
  Document document_;
  QMenu* recent_ = nullptr;
  std::vector<QAction*> opening_;  ///< that replace the configuration
  std::vector<QAction*> keeping_;  ///< that need one
};

}  // namespace quorvel::muxhost
