#include "muxhost/window/report_box.h"

#include <QPrintPreviewDialog>
#include <QPrinter>

#include "muxhost/report/pdf.h"

namespace quorvel::muxhost {

void PreviewReport(QWidget& window, const std::string& html) {
  const auto document = DocumentOf(html);
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(PaperOfReports());
  printer.setDocName(document->metaInformation(QTextDocument::DocumentTitle));
  QPrintPreviewDialog preview(&printer, &window);
  preview.setWindowTitle("Report");
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                   [&document](QPrinter* paper) { document->print(paper); });
  constexpr int kWidth = 900;
  constexpr int kHeight = 700;
  preview.resize(kWidth, kHeight);
  preview.exec();
}

}  // namespace quorvel::muxhost
