#pragma once

#include <memory>
#include <vector>

#include "core/survey.h"
#include "quorvel/review.h"

namespace quorvel {

struct Context;
class EntryWords;
class MuxData;
class UnseenEditors;
struct Side;

/// Tells what of the present record differs from another, and where an installer finds each
/// setting, in the words of the editors. What it takes to tell is made once for an image and its
/// texts, and the editors of a side anew when its record has changed.
class Reviewer {
 public:
  explicit Reviewer(Context& context);
  Reviewer(const Reviewer&) = delete;
  Reviewer& operator=(const Reviewer&) = delete;
  ~Reviewer();

  /// Asks for the texts that the rest needs: a text source may do anything meanwhile, even bring
  /// another image. False while it is being asked already, and where there is no image.
  [[nodiscard]] bool Prepare();
  /// What differs from another configuration of the model. What only one of the two has does not
  /// count, and neither does the keyboard lock of a device that the menu locks by itself.
  [[nodiscard]] std::vector<ReviewLine> Review(const Configuration& other);
  /// Every setting, compared with what the device holds and with the factory's values as a review
  /// does.
  [[nodiscard]] std::vector<SettingRow> AllSettings(const Configuration& device,
                                                    const Configuration& factory);

 private:
  struct Known;
  /// True while what is known is that of the present image, texts and host.
  [[nodiscard]] bool IsUpToDate() const;
  [[nodiscard]] Side Present();
  [[nodiscard]] Side Other(const Configuration& other);
  /// The editors that show another record; those of the last few are kept.
  [[nodiscard]] const UnseenEditors& EditorsOf(const MuxData& record);
  /// Which entries of the map tell what differs. The other side, that of `record`, gets its editors
  /// where one does.
  [[nodiscard]] std::vector<bool> Telling(const EntryWords& words, Side& was, const Side& is,
                                          const MuxData& record);
  void LeaveOutWhatReadsAlike(const EntryWords& words, const Side& was, const Side& is,
                              std::vector<bool>& meant) const;

  Context& context_;
  std::unique_ptr<Known> known_;
  bool asking_ = false;
};

}  // namespace quorvel
