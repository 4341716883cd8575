#include "muxhost/report/pdf.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <optional>

#include "muxhost/report/paper.h"

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

std::vector<std::uint8_t> PdfOf(const std::string& html) {
  const Application application;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setPageLayout(PaperOfReports());
    writer.setResolution(kPointsPerInch * 10);
    const ReportOnPaper report(html);
    writer.setTitle(report.Title());
    writer.setCreator("muxhost");
    report.Print(writer);
  }
  return {bytes.begin(), bytes.end()};
}

}  // namespace quorvel::muxhost
