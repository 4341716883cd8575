#include "muxhost/window/window_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <string_view>
#include <utility>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

constexpr const char* kContext = "muxhost";
constexpr std::string_view kOfPlatform = "Quorvel";

}  // namespace

QString Tr(const char* english) { return QCoreApplication::translate(kContext, english); }

QString Tr(std::size_t count, const char* one, const char* several) {
  return Tr(count == 1 ? one : several);
}

std::string Say(const char* english) { return Tr(english).toStdString(); }

WindowLanguage::WindowLanguage(std::shared_ptr<const Language> language) {
  if (language == nullptr) return;
  const QString code = QString::fromStdString(language->code);
  texts_ = std::make_unique<Texts>(std::move(language));
  QCoreApplication::installTranslator(texts_.get());
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (!code.isEmpty() && toolkit_.load("qtbase_" + code, folder)) {
    QCoreApplication::installTranslator(&toolkit_);
  }
}

QString WindowLanguage::Texts::translate(const char* context, const char* english,
                                         const char* /*disambiguation*/, int /*count*/) const {
  if (context != std::string_view(kContext) && context != kOfPlatform) return {};
  const auto text = language_->window.find(english);
  return text == language_->window.end() ? QString() : QString::fromStdString(text->second);
}

}  // namespace quorvel::muxhost
