#include "platform/qt/page_help.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace quorvel::qt {

void ShowPageHelp(QWidget& window, const QString& title, const QString& help) {
  constexpr QSize kSize(520, 420);
  auto* const box = new QDialog(&window);
  box->setObjectName("page_help");
  box->setWindowTitle(title);
  box->setAttribute(Qt::WA_DeleteOnClose);
  auto* const text = new QPlainTextEdit(help, box);
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  text->setAccessibleName(title);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, box);
  QObject::connect(buttons, &QDialogButtonBox::rejected, box, &QDialog::reject);
  auto* const rows = new QVBoxLayout(box);
  rows->addWidget(text);
  rows->addWidget(buttons);
  box->resize(kSize);
  box->open();
}

}  // namespace quorvel::qt
