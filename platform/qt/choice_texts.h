#pragma once

#include <QAbstractListModel>

#include "quorvel/widgets/choice.h"

namespace quorvel::qt {

/// The items of a list or drop-down list for the toolkit, read where they are.
class ChoiceTexts : public QAbstractListModel {
 public:
  ChoiceTexts(const ChoiceWidget& choice, QObject& parent);

  /// Tells the toolkit that the items were replaced.
  void Renew();
  /// Ends the tie to the model: there are no items from now on.
  void LetGo();

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  const ChoiceWidget* choice_;
  int count_ = 0;
};

}  // namespace quorvel::qt
