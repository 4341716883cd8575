#pragma once

#include <QFont>
#include <QIcon>

#include "quorvel/picture.h"
#include "quorvel/property_bag.h"

namespace quorvel::qt {

[[nodiscard]] QFont ToQt(const Font& font);
[[nodiscard]] Font FromQt(const QFont& font);
/// An empty icon for a picture whose size and pixels do not agree.
[[nodiscard]] QIcon ToQt(const Picture& picture);

}  // namespace quorvel::qt
