#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <functional>
#include <optional>

#include "muxhost/device/link_fault.h"

namespace quorvel::muxhost {

/// Where the user says how the link fails next. Folded up but for its heading until
/// it is wanted.
class LinkBox : public QWidget {
 public:
  explicit LinkBox(QWidget* parent = nullptr);

  /// A fault is to be set on the link, or nothing.
  std::function<void(const std::optional<Fault>&)> on_fault;

  /// The fault that waits to strike.
  void ShowPending(const std::optional<Fault>& fault);

 private:
  [[nodiscard]] QWidget* MakePanel();
  [[nodiscard]] Fault Chosen() const;
  void Unfold(bool unfolded);

  QToolButton* const heading_;
  QComboBox* const kind_;
  QSpinBox* const at_;
  QSpinBox* const delay_;
  QPushButton* const arm_;
  QPushButton* const disarm_;
  QFormLayout* const form_;
  QWidget* const panel_;
};

}  // namespace quorvel::muxhost
