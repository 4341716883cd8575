#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <string>

#include "quorvel/platform.h"

namespace quorvel::qt {

/// Shows a message box; true when it was answered with OK.
[[nodiscard]] bool AskMessage(const Message& message, const QWidget* over);

/// Shows a file dialog that starts in `folder`, which becomes the folder of the answer.
[[nodiscard]] std::optional<std::string> AskForFile(const FileRequest& request, QString& folder,
                                                    const QWidget* over);

}  // namespace quorvel::qt
