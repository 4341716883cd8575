#include "platform/qt/choice_texts.h"

#include "platform/qt/texts.h"

namespace quorvel::qt {

ChoiceTexts::ChoiceTexts(const ChoiceWidget& choice, QObject& parent)
    : QAbstractListModel(&parent), choice_(&choice), count_(choice.Count()) {}

void ChoiceTexts::Renew() {
  beginResetModel();
  count_ = choice_ == nullptr ? 0 : choice_->Count();
  endResetModel();
}

void ChoiceTexts::LetGo() {
  choice_ = nullptr;
  Renew();
}

int ChoiceTexts::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QVariant ChoiceTexts::data(const QModelIndex& index, int role) const {
  // The model may have fewer items a moment before the toolkit is told.
  const bool there = choice_ != nullptr && index.isValid() && index.row() < choice_->Count();
  if (role != Qt::DisplayRole || !there) return {};
  return Shown(choice_->Items()[static_cast<std::size_t>(index.row())]);
}

}  // namespace quorvel::qt
