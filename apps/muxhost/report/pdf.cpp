#include "muxhost/report/pdf.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <optional>

namespace quorvel::muxhost {

namespace {

constexpr int kPointsPerInch = 72;

/// Fonts need an application: of a run without a window there is none.
class Application {
 public:
  Application() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    own_.emplace(count_, arguments_);
  }

 private:
  int count_ = 1;
  char name_[8] = "muxhost";
  char* arguments_[2] = {name_, nullptr};
  std::optional<QGuiApplication> own_;
};

}  // namespace

QPageLayout PaperOfReports() {
  return {QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()};
}

std::unique_ptr<QTextDocument> DocumentOf(const std::string& html) {
  auto document = std::make_unique<QTextDocument>();
  document->setDefaultFont(QFont("sans-serif", 8));
  document->setHtml(QString::fromStdString(html));
  return document;
}

std::vector<std::uint8_t> PdfOf(const std::string& html) {
  const Application application;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setPageLayout(PaperOfReports());
    writer.setResolution(kPointsPerInch * 10);
    const auto document = DocumentOf(html);
    writer.setTitle(document->metaInformation(QTextDocument::DocumentTitle));
    writer.setCreator("muxhost");
    document->print(&writer);
  }
  return {bytes.begin(), bytes.end()};
}

}  // namespace quorvel::muxhost
