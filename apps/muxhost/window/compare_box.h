#pragma once

#include <QDialog>
#include <QString>

#include "muxhost/compare_files.h"

namespace quorvel::muxhost {

/// Shows what two configurations hold differently, a line for each, to be copied.
class CompareBox : public QDialog {
 public:
  /// `what` says what was compared.
  CompareBox(const QString& what, const Comparison& comparison, QWidget* parent);
};

}  // namespace quorvel::muxhost
