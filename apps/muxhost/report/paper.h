#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QString>
#include <QTextDocument>
#include <string>

namespace quorvel::muxhost {

/// A4 on its side, for tables.
[[nodiscard]] QPageLayout PaperOfReports();

/// A report in HTML, as pages with numbers. Wide tables are written smaller, and no heading stands
/// at the foot of a page without some of what it heads.
class ReportOnPaper {
 public:
  explicit ReportOnPaper(const std::string& html);

  [[nodiscard]] QString Title() const {
    return document_.metaInformation(QTextDocument::DocumentTitle);
  }
  void Print(QPagedPaintDevice& paper) const;

 private:
  QTextDocument document_;
};

}  // namespace quorvel::muxhost
