#pragma once

#include <QListWidget>
#include <QString>
#include <string>

namespace quorvel::muxhost {

/// What crossed between control and host, in plain words. A run of block numbers takes one line.
/// The newest line is in sight, unless the user has scrolled up from it.
class EventLog : public QListWidget {
 public:
  explicit EventLog(QWidget* parent = nullptr);
  /// An entry of the session's log.
  void Add(const std::string& entry);
  /// What the window itself has to say.
  void Tell(const QString& sentence);

 private:
  void AddLine(const QString& text);

  QString run_;  ///< what is said of the blocks of the run, or empty
  int run_first_ = 0;
  int run_last_ = 0;
  QString run_time_;
  bool at_end_ = true;  ///< the newest line is in sight
};

}  // namespace quorvel::muxhost
