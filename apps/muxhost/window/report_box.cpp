#include "muxhost/window/report_box.h"

#include <QPrintPreviewDialog>
#include <QPrinter>

#include "muxhost/report/paper.h"
#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

void PreviewReport(QWidget& window, const std::string& html) {
  const ReportOnPaper report(html);
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(PaperOfReports());
  printer.setDocName(report.Title());
  QPrintPreviewDialog preview(&printer, &window);
  preview.setWindowTitle(Tr("Report"));
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                   [&report](QPrinter* paper) { report.Print(*paper); });
  constexpr int kWidth = 900;
  constexpr int kHeight = 700;
  preview.resize(kWidth, kHeight);
  preview.exec();
}

}  // namespace quorvel::muxhost
