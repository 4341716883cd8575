#pragma once

#include <QWidget>
#include <string>

namespace quorvel::muxhost {

/// Shows a report as it would be printed, and prints it.
void PreviewReport(QWidget& window, const std::string& html);

}  // namespace quorvel::muxhost
