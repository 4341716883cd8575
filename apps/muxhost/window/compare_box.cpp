#include "muxhost/window/compare_box.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

QString Heading(const QString& what, std::size_t count) {
  if (count == 0) return Tr("%1: no differences.").arg(what);
  return Tr(count, "%1: %2 difference.", "%1: %2 differences.").arg(what, QString::number(count));
}

}  // namespace

CompareBox::CompareBox(const QString& what, const Comparison& comparison, QWidget* parent)
    : QDialog(parent) {
  constexpr int kWidth = 640;
  constexpr int kHeight = 420;
  setObjectName("Comparison");
  setWindowTitle(Tr("Compare"));
  auto* const column = new QVBoxLayout(this);
  auto* const heading = new QLabel(Heading(what, comparison.lines.size()));
  heading->setTextFormat(Qt::PlainText);
  heading->setWordWrap(true);
  column->addWidget(heading);
  QString text;
  for (const std::string& line : comparison.lines) text += QString::fromStdString(line) + '\n';
  auto* const lines = new QPlainTextEdit(text.trimmed());
  lines->setReadOnly(true);
  lines->setLineWrapMode(QPlainTextEdit::NoWrap);
  lines->setTabChangesFocus(true);
  lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lines->setAccessibleName(Tr("Differences"));
  column->addWidget(lines, 1);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* const copy = buttons->addButton(Tr("C&opy"), QDialogButtonBox::ActionRole);
  copy->setToolTip(Tr("Puts all lines into the clipboard"));
  copy->setEnabled(!text.isEmpty());
  QObject::connect(copy, &QPushButton::clicked, this,
                   [text] { QGuiApplication::clipboard()->setText(text); });
  QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(kWidth, kHeight);
}

}  // namespace quorvel::muxhost
