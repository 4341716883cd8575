#include "muxhost/texts/languages.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "muxhost/texts/built_in_languages.h"
#include "quorvel/platform.h"
#include "quorvel/whole_files.h"

namespace quorvel::muxhost {

namespace {

constexpr const char* kClass = "Muxhost.Texts";

/// A text source of a language. Where it has nothing to say, the component's own text serves.
class LanguageTexts : public AutomationObject {
 public:
  explicit LanguageTexts(std::shared_ptr<const Language> language)
      : language_(std::move(language)) {}

  std::string Call(std::string_view method, std::int32_t argument) override {
    if (method != "getresourcestring") throw std::invalid_argument("no such method");
    return language_->texts.at(argument);
  }

 private:
  std::shared_ptr<const Language> language_;
};

const BuiltInLanguage* FindBuiltIn(std::string_view code) {
  const auto all = BuiltInLanguages();
  const auto found = std::ranges::find(all, code, &BuiltInLanguage::code);
  return found == all.end() ? nullptr : &*found;
}

/// "de" of "de_AT.UTF-8".
std::string CodeOf(std::string_view locale) {
  std::string code;
  for (const char letter : locale) {
    const auto character = static_cast<unsigned char>(letter);
    if (std::isalpha(character) == 0) break;
    code += static_cast<char>(std::tolower(character));
  }
  return code;
}

std::string CodeOfSystem(std::span<const std::string> locales) {
  for (const std::string& locale : locales) {
    std::string code = CodeOf(locale);
    if (code == "en" || FindBuiltIn(code) != nullptr) return code;
  }
  return "en";
}

std::vector<std::uint8_t> ReadBytes(const std::string& path) {
  try {
    return ReadWholeFile(path);
  } catch (const PlatformError& error) {
    throw std::runtime_error(std::string(error.what()) + "; a language is " + LanguageChoices());
  }
}

ChosenLanguage FromFile(const std::string& path) {
  const auto bytes = ReadBytes(path);
  ChosenLanguage chosen;
  try {
    chosen.language =
        std::make_shared<Language>(ReadLanguage(std::string(bytes.begin(), bytes.end())));
  } catch (const std::exception& error) {
    throw std::runtime_error(path + ": " + error.what());
  }
  for (const std::string& finding : chosen.language->findings) {
    chosen.findings.push_back(path + ": " + finding);
  }
  return chosen;
}

}  // namespace

std::string LanguageChoices() {
  std::string choices = "en";
  for (const BuiltInLanguage& language : BuiltInLanguages()) {
    choices += ", " + std::string(language.code);
  }
  return choices + ", system, or a file in JSON";
}

ChosenLanguage ChooseLanguage(const std::string& request, std::span<const std::string> locales) {
  const std::string code = request == "system" ? CodeOfSystem(locales) : request;
  if (code == "en") return {};
  const BuiltInLanguage* const built_in = FindBuiltIn(code);
  if (built_in == nullptr) return FromFile(request);
  return {std::make_shared<Language>(ReadLanguage(built_in->json)), {}};
}

std::vector<std::string> LocalesOfEnvironment() {
  // The first that is set decides, as everywhere on the system.
  for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0') return {value};
  }
  return {};
}

void Speak(Platform& platform, HostSession& session, std::shared_ptr<const Language> language) {
  if (language == nullptr) return session.UseTexts({});
  platform.Classes().Register(kClass, [language = std::move(language)] {
    return std::make_shared<LanguageTexts>(language);
  });
  session.UseTexts(kClass);
}

}  // namespace quorvel::muxhost
