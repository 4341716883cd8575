#pragma once

#include <QPageLayout>
#include <QTextDocument>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quorvel::muxhost {

/// A report as a document that can be drawn on paper.
[[nodiscard]] std::unique_ptr<QTextDocument> DocumentOf(const std::string& html);

/// A4 on its side, for tables. The document leaves margins itself.
[[nodiscard]] QPageLayout PaperOfReports();

/// The bytes of a PDF file of it, pages of A4. Needs no screen, nor an application around it.
[[nodiscard]] std::vector<std::uint8_t> PdfOf(const std::string& html);

}  // namespace quorvel::muxhost
