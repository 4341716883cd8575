#include "muxhost/window/block_model.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

/// One colour with `part` of another in it.
QColor Mix(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](int mine, int theirs) {
    return static_cast<int>(mine * (1 - part) + theirs * part);
  };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()),
          mix(one.blue(), other.blue())};
}

/// The palette's field, with so much of the state's hue in it that its text stays legible.
QColor ColourOf(BlockState state, const QPalette& palette) {
  static const QColor hues[kBlockStates] = {
      {}, {255, 176, 0}, {40, 130, 255}, {20, 170, 70}, {230, 40, 40}};
  const QColor field = palette.color(QPalette::Base);
  const QColor& hue = hues[static_cast<int>(state)];
  if (!hue.isValid()) return field;
  constexpr double kPart = 0.38;
  return Mix(field, hue, kPart);
}

QColor BorderColour(const QPalette& palette) {
  constexpr double kPart = 0.3;
  return Mix(palette.color(QPalette::Base), palette.color(QPalette::Text), kPart);
}

/// The sign of a state in a square from 0 to 1.
QPainterPath SignOf(BlockState state) {
  QPainterPath sign;
  const auto line = [&sign](std::initializer_list<QPointF> points) {
    sign.moveTo(*points.begin());
    for (const QPointF& point : points) sign.lineTo(point);
  };
  switch (state) {
    case BlockState::kUntouched: break;
    case BlockState::kChanged: line({{.5, .1}, {.9, .5}, {.5, .9}, {.1, .5}, {.5, .1}}); break;
    case BlockState::kSent:
      line({{.5, .95}, {.5, .1}});
      line({{.15, .45}, {.5, .1}, {.85, .45}});
      break;
    case BlockState::kVerified: line({{.1, .55}, {.4, .85}, {.9, .15}}); break;
    case BlockState::kFailed:
      line({{.15, .15}, {.85, .85}});
      line({{.85, .15}, {.15, .85}});
      break;
  }
  return sign;
}

void PaintSign(QPainter& painter, const QRect& area, const QPalette& palette, BlockState state) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(area.width(), area.height()) * 0.6;
  const QRectF square(area.center().x() + 0.5 - side / 2, area.center().y() + 0.5 - side / 2, side,
                      side);
  QPen pen(palette.color(QPalette::Text), 0.16);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.translate(square.topLeft());
  painter.scale(side, side);
  painter.setPen(pen);
  if (state == BlockState::kChanged) painter.setBrush(palette.color(QPalette::Text));
  painter.drawPath(SignOf(state));
  painter.restore();
}

}  // namespace

void BlockModel::Show(int blocks, const BlockStates& states) {
  if (blocks != rowCount()) {
    beginResetModel();
    states_.assign(static_cast<std::size_t>(blocks), BlockState::kUntouched);
    endResetModel();
  }
  for (int row = 0; row < blocks; ++row) {
    const BlockState state = states.Of(static_cast<Byte>(row + 1));
    if (std::exchange(states_.at(static_cast<std::size_t>(row)), state) == state) continue;
    emit dataChanged(index(row), index(row));
  }
}

int BlockModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(states_.size());
}

QVariant BlockModel::data(const QModelIndex& cell, int role) const {
  if (!cell.isValid()) return {};
  const BlockState state = states_.at(static_cast<std::size_t>(cell.row()));
  const int number = cell.row() + 1;
  switch (role) {
    case kStateRole: return static_cast<int>(state);
    case Qt::DisplayRole: return number;
    case Qt::AccessibleTextRole: return Tr("Block %1, %2").arg(number).arg(InWords(state));
    default: return {};
  }
}

void BlockPainter::PaintState(QPainter& painter, const QRect& area, const QPalette& palette,
                              BlockState state) {
  painter.fillRect(area, ColourOf(state, palette));
  painter.setPen(BorderColour(palette));
  painter.drawRect(area.adjusted(0, 0, -1, -1));
  PaintSign(painter, area, palette, state);
}

void BlockPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& cell) const {
  const auto state = static_cast<BlockState>(cell.data(BlockModel::kStateRole).toInt());
  const QRect area = option.rect.adjusted(0, 0, -1, -1);
  const int sign = area.height() * 3 / 4;
  painter->fillRect(area, ColourOf(state, option.palette));
  painter->setPen(option.palette.color(QPalette::Text));
  painter->drawText(area.adjusted(3, 0, -sign, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    cell.data().toString());
  PaintSign(*painter, area.adjusted(area.width() - sign - 1, 0, -1, 0), option.palette, state);
  const bool current = (option.state & QStyle::State_Selected) != 0;
  const bool focus = (option.state & QStyle::State_HasFocus) != 0;
  painter->setPen(current ? QPen(option.palette.color(QPalette::Text), focus ? 3 : 1)
                          : QPen(BorderColour(option.palette)));
  painter->drawRect(area.adjusted(focus ? 1 : 0, focus ? 1 : 0, focus ? -2 : -1, focus ? -2 : -1));
}

QSize BlockPainter::sizeHint(const QStyleOptionViewItem& option,
                             const QModelIndex& /*cell*/) const {
  const int height = option.fontMetrics.height() + 8;
  return {option.fontMetrics.horizontalAdvance("255") + height * 3 / 4 + 6, height};
}

}  // namespace quorvel::muxhost
