#include "platform/qt/looks.h"

#include <QFontInfo>
#include <QImage>
#include <QPixmap>

#include "platform/qt/texts.h"

namespace quorvel::qt {

QFont ToQt(const Font& font) {
  QFont result(Shown(font.family));
  if (font.points > 0) result.setPointSizeF(font.points);
  result.setBold(font.bold);
  result.setItalic(font.italic);
  return result;
}

Font FromQt(const QFont& font) {
  // A font that was set in pixels has no point size of its own.
  return {Stored(font.family()), QFontInfo(font).pointSizeF(), font.bold(), font.italic()};
}

QIcon ToQt(const Picture& picture) {
  constexpr int kBytesPerPixel = 4;
  const auto pixels =
      static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  if (picture.width <= 0 || picture.height <= 0 || picture.rgba.size() != pixels * kBytesPerPixel) {
    return {};
  }
  const QImage image(picture.rgba.data(), picture.width, picture.height,
                     qsizetype{picture.width} * kBytesPerPixel, QImage::Format_RGBA8888);
  return QIcon(QPixmap::fromImage(image.copy()));
}

}  // namespace quorvel::qt
