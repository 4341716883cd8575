#pragma once

#include <QTranslator>
#include <memory>

#include "muxhost/texts/language.h"

namespace quorvel::muxhost {

/// Has the application's windows speak a language as long as it lives: the texts of Tr, and those
/// of the toolkit where its translations are installed. None: English.
class WindowLanguage {
 public:
  explicit WindowLanguage(std::shared_ptr<const Language> language);

 private:
  class Texts : public QTranslator {
   public:
    explicit Texts(std::shared_ptr<const Language> language) : language_(std::move(language)) {}
    [[nodiscard]] bool isEmpty() const override { return language_->window.empty(); }
    [[nodiscard]] QString translate(const char* context, const char* english,
                                    const char* disambiguation, int count) const override;

   private:
    std::shared_ptr<const Language> language_;
  };

  std::unique_ptr<Texts> texts_;
  QTranslator toolkit_;
};

}  // namespace quorvel::muxhost
