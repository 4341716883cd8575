#include "quorvel/qt_platform.h"

#include <QApplication>
#include <QDateTime>
#include <QFontMetrics>
#include <QLoggingCategory>

#include "platform/qt/desktop.h"
#include "platform/qt/in_front.h"
#include "platform/qt/looks.h"
#include "platform/qt/qt_timer.h"
#include "platform/qt/questions.h"
#include "platform/qt/texts.h"
#include "quorvel/code_page.h"
#include "quorvel/whole_files.h"

namespace quorvel {

namespace {
Q_LOGGING_CATEGORY(lcQuorvel, "quorvel", QtWarningMsg)
}

QtPlatform::QtPlatform() : desktop_(std::make_unique<Desktop>()) {}
QtPlatform::~QtPlatform() = default;

void QtPlatform::SetHostWindow(QWidget* window) { desktop_->host = window; }

void QtPlatform::SetMenuButton(QWidget* button) { desktop_->menu_button = button; }

QWidget* QtPlatform::WindowOf(const Dialog& dialog) const { return desktop_->Find(dialog); }

void QtPlatform::Show(Dialog& dialog) { desktop_->Open(dialog).Present(desktop_->Host()); }

void QtPlatform::ShowModal(Dialog& dialog) {
  const auto keep = dialog.shared_from_this();
  qt::DialogWindow& window = desktop_->Open(dialog);
  window.hide();  // a window that is on screen cannot become modal
  window.setWindowModality(Qt::ApplicationModal);
  qt::KeepInFrontOf(window, QApplication::activeWindow());
  window.Present(desktop_->Host());
  desktop_->Wait(dialog);
  // The loop has also ended when the application quits under the dialog.
  if (dialog.Shown()) dialog.Close();
}

void QtPlatform::Hide(Dialog& dialog) noexcept { desktop_->Close(dialog); }

bool QtPlatform::TakesInput(const Dialog& dialog) const { return !desktop_->Locks(dialog); }

void QtPlatform::PopUp(std::shared_ptr<PopupMenu> menu, int x, int y) {
  const QWidget* const host = desktop_->Host();
  const QPoint corner = host != nullptr ? host->mapToGlobal(QPoint()) : QPoint();
  desktop_->popup.PopUp(std::move(menu),
                        desktop_->BelowMenuButton().value_or(corner + QPoint(x, y)), host);
}

void QtPlatform::TakeDown(const PopupMenu& menu) noexcept { desktop_->popup.TakeDown(menu); }

bool QtPlatform::Ask(const Message& message) {
  return qt::AskMessage(message, QApplication::activeWindow());
}

std::optional<std::string> QtPlatform::AskFile(const FileRequest& request) {
  return qt::AskForFile(request, desktop_->folder, QApplication::activeWindow());
}

void QtPlatform::Log(LogLevel level, std::string_view text) {
  const QString line = qt::Shown(text);
  switch (level) {
    case LogLevel::kDebug: qCDebug(lcQuorvel).noquote() << line; return;
    case LogLevel::kInformation: qCInfo(lcQuorvel).noquote() << line; return;
    case LogLevel::kWarning: qCWarning(lcQuorvel).noquote() << line; return;
    case LogLevel::kError: qCCritical(lcQuorvel).noquote() << line; return;
  }
}

std::unique_ptr<Timer> QtPlatform::NewTimer(std::function<void()> tick) {
  return qt::MakeTimer(std::move(tick));
}

LocalTime QtPlatform::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return {{now.date().year(), now.date().month(), now.date().day()},
          {now.time().hour(), now.time().minute(), now.time().second()}};
}

std::vector<std::uint8_t> QtPlatform::ReadFile(const std::string& path) {
  return ReadWholeFile(path);
}

void QtPlatform::StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  ReplaceWholeFile(path, bytes);
}

quorvel::Font QtPlatform::AmbientFont() const { return qt::FromQt(QApplication::font()); }

Size QtPlatform::MeasureText(const quorvel::Font& font, std::string_view text) const {
  const QFontMetrics metrics(qt::ToQt(font));
  return {metrics.horizontalAdvance(qt::Shown(text)), metrics.height()};
}

std::string QtPlatform::ToUtf8(std::string_view bytes) const { return CodePageToUtf8(bytes); }

std::string QtPlatform::FromUtf8(std::string_view text) const { return Utf8ToCodePage(text); }

ClassFactory& QtPlatform::Classes() { return desktop_->classes; }

}  // namespace quorvel
