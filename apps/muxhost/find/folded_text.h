#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::muxhost {

/// A text without case and accents: "Kamera-Übersicht" is "kamera-ubersicht", "Größe" is "grosse".
/// Letters beyond Latin Extended-A stay as they are.
[[nodiscard]] std::string Fold(std::string_view text);

/// A text as it is searched.
class FoldedText {
 public:
  explicit FoldedText(std::string_view text);

  /// How far a folded word, which must not be empty, is from what the text says: 0 for the first
  /// word of the text, more where only the beginning of a word or the middle of one fits. "Gain" is
  /// a word of "SignalGain", and a number only fits where a number begins. Nothing where the text
  /// lacks it.
  [[nodiscard]] std::optional<int> Distance(std::string_view word) const;
  static constexpr int kFarthest = 5;

 private:
  enum class Place : char { kBetween, kBegins, kInside };
  [[nodiscard]] int DistanceAt(std::size_t at, std::size_t length) const;

  std::string text_;
  std::vector<Place> places_;  ///< in words, by byte of the text
};

}  // namespace quorvel::muxhost
