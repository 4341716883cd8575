#include "muxhost/window/silence_watch.h"

#include <utility>

namespace quorvel::muxhost {

SilenceWatch::SilenceWatch(std::function<void(const QString&)> say) : say_(std::move(say)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
    if (told_ || !awaits_()) return;
    told_ = true;
    say_(sentence_);
  });
}

void SilenceWatch::Begin(int patience, std::function<bool()> awaits, QString sentence) {
  awaits_ = std::move(awaits);
  sentence_ = std::move(sentence);
  told_ = false;
  timer_.start(patience);
}

void SilenceWatch::Notice() {
  if (!timer_.isActive()) return;
  told_ = false;
  timer_.start();
}

}  // namespace quorvel::muxhost
