#include "muxhost/report/paper.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <algorithm>
#include <memory>

namespace quorvel::muxhost {

namespace {

/// A document laid out on the pages of a paper, with a line at the foot of each for its number.
class Pages {
 public:
  Pages(const QTextDocument& document, QPagedPaintDevice& paper)
      : document_(document.clone()),
        paper_(paper),
        number_height_(2 * QFontMetrics(document.defaultFont(), &paper).height()) {
    const QSize room = paper.pageLayout().paintRectPixels(paper.logicalDpiX()).size();
    document_->setDocumentMargin(0);
    document_->documentLayout()->setPaintDevice(&paper);
    document_->setPageSize(room - QSize(0, number_height_));
  }

  /// Writes tables smaller that are wider than the paper.
  void FitTables() const {
    for (QTextFrame* const frame : document_->rootFrame()->childFrames()) {
      auto* const table = qobject_cast<QTextTable*>(frame);
      if (table == nullptr) continue;
      constexpr double kStep = 0.5;
      constexpr double kLeastPoints = 4;
      double points = document_->defaultFont().pointSizeF();
      constexpr double kLines = 1.01;  // a table that fills the width has its lines beside it
      while (WidthOf(*table) > document_->pageSize().width() * kLines && points > kLeastPoints) {
        points -= kStep;
        SetFontSize(*table, points);
      }
    }
  }
  /// No heading stands at the foot of a page without some of what it heads.
  void KeepHeadings() const {
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
      if (!IsHeading(block)) continue;
      const QTextBlock first = block;
      while (IsHeading(block.next())) block = block.next();
      if (PageAt(PlaceOf(first).top()) == PageAt(EndOfBeginning(block.next()))) continue;
      QTextBlockFormat format = first.blockFormat();
      format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      QTextCursor(first).setBlockFormat(format);
    }
  }
  /// The pages that the paper is to have.
  void Print() const {
    QPainter painter(&paper_);
    const QPageRanges ranges = paper_.pageRanges();
    bool is_first = true;
    for (int page = 1; page <= document_->pageCount(); ++page) {
      if (!ranges.isEmpty() && !ranges.contains(page)) continue;
      if (!is_first) paper_.newPage();
      is_first = false;
      PrintPage(painter, page);
    }
  }

 private:
  static bool IsHeading(const QTextBlock& block) {
    return block.isValid() && block.blockFormat().headingLevel() > 0;
  }
  [[nodiscard]] double WidthOf(QTextTable& table) const {
    return document_->documentLayout()->frameBoundingRect(&table).right();
  }
  static void SetFontSize(const QTextTable& table, double points) {
    QTextCursor cells = table.firstCursorPosition();
    cells.setPosition(table.lastPosition(), QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setFontPointSize(points);
    cells.mergeCharFormat(format);
  }
  [[nodiscard]] QRectF PlaceOf(const QTextBlock& block) const {
    return document_->documentLayout()->blockBoundingRect(block);
  }
  [[nodiscard]] int PageAt(double y) const {
    return static_cast<int>(y / document_->pageSize().height());
  }
  /// The lower end of a block or, of a table, of its head and two rows.
  [[nodiscard]] double EndOfBeginning(const QTextBlock& block) const {
    if (!block.isValid()) return 0;
    const QTextTable* const table = QTextCursor(block).currentTable();
    if (table == nullptr) return PlaceOf(block).bottom();
    const int row = std::min(table->rows() - 1, 2);
    return PlaceOf(table->cellAt(row, 0).firstCursorPosition().block()).bottom();
  }
  void PrintPage(QPainter& painter, int page) const {
    const QSizeF size = document_->pageSize();
    const QRectF place(QPointF(0, size.height() * (page - 1)), size);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = place;
    context.palette.setColor(QPalette::Text, Qt::black);  // whatever the screen's look
    painter.save();
    painter.translate(-place.topLeft());
    painter.setClipRect(place);
    document_->documentLayout()->draw(&painter, context);
    painter.restore();
    painter.setFont(document_->defaultFont());
    painter.drawText(QRectF(0, size.height(), size.width(), number_height_),
                     Qt::AlignRight | Qt::AlignBottom, QString::number(page));
  }

  std::unique_ptr<QTextDocument> document_;
  QPagedPaintDevice& paper_;
  int number_height_;
};

}  // namespace

QPageLayout PaperOfReports() {
  constexpr double kMillimetres = 15;
  return {QPageSize(QPageSize::A4), QPageLayout::Landscape,
          QMarginsF(kMillimetres, kMillimetres, kMillimetres, kMillimetres),
          QPageLayout::Millimeter};
}

ReportOnPaper::ReportOnPaper(const std::string& html) {
  document_.setDefaultFont(QFont("sans-serif", 8));
  QTextOption option = document_.defaultTextOption();
  option.setWrapMode(QTextOption::WordWrap);  // no column is narrower than a word
  document_.setDefaultTextOption(option);
  document_.setHtml(QString::fromStdString(html));
}

void ReportOnPaper::Print(QPagedPaintDevice& paper) const {
  const Pages pages(document_, paper);
  pages.FitTables();
  pages.KeepHeadings();
  pages.Print();
}

}  // namespace quorvel::muxhost
