#pragma once

#include <QTimer>
#include <functional>
#include <string>

namespace quorvel::muxhost {

/// Says so when an answer of the device is overdue.
class SilenceWatch {
 public:
  static constexpr int kUsualPatience = 3000;  ///< milliseconds

  /// Called with the sentence that Begin was given.
  explicit SilenceWatch(std::function<void(const QString& sentence)> say);

  /// An answer may take `patience` milliseconds while `awaits` is true.
  void Begin(int patience, std::function<bool()> awaits, QString sentence);
  /// Something has crossed the link: the time begins anew.
  void Notice();
  void End() { timer_.stop(); }

 private:
  std::function<void(const QString&)> say_;
  std::function<bool()> awaits_;
  QString sentence_;
  QTimer timer_;
  bool told_ = false;
};

}  // namespace quorvel::muxhost
