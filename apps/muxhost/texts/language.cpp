#include "muxhost/texts/language.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>

#include "muxhost/script/report.h"
#include "muxhost/texts/built_in_languages.h"
#include "quorvel/texts.h"

namespace quorvel::muxhost {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// The same in UTF-8, so that one wrong byte costs one text and not the file: each byte that is no
/// part of a character becomes a replacement character.
std::string ValidUtf8(std::string_view bytes) {
  return Json::parse(Json(bytes).dump(-1, ' ', false, Json::error_handler_t::replace))
      .get<std::string>();
}

/// Where a program puts something into a text, as "%1" or "{0}", in order.
std::vector<std::string> Placeholders(std::string_view text) {
  const auto is_digit = [&](std::size_t at) {
    return at < text.size() && std::isdigit(static_cast<unsigned char>(text.at(at))) != 0;
  };
  std::vector<std::string> found;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.at(at) != '%' && text.at(at) != '{') continue;
    std::size_t end = at + 1;
    while (is_digit(end)) ++end;
    const bool percent = text.at(at) == '%' && end > at + 1;
    const bool brace = text.at(at) == '{' && end < text.size() && text.at(end) == '}';
    if (percent || brace) found.emplace_back(text.substr(at, end + (brace ? 1 : 0) - at));
  }
  std::ranges::sort(found);
  return found;
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' '; }

/// What would go wrong with a text in place of the English one, or nothing.
const char* Flaw(std::string_view english, std::string_view text) {
  const auto differ = [&](char c) {
    return std::ranges::count(english, c) != std::ranges::count(text, c);
  };
  const auto controls = [](std::string_view it) { return std::ranges::count_if(it, IsControl); };
  if (english.empty() != text.empty()) return text.empty() ? "is empty" : "must be empty";
  if (text.find(kReplacement) != std::string_view::npos) return "is not UTF-8";
  if (Placeholders(english) != Placeholders(text)) return "has other placeholders";
  if (differ('\r')) return "has other line breaks";
  if (controls(english) != controls(text)) return "has a control character";
  if (english.starts_with(' ') != text.starts_with(' ')) return "begins otherwise with a blank";
  if (english.ends_with(' ') != text.ends_with(' ')) return "ends otherwise with a blank";
  return nullptr;
}

/// The component's texts have the mnemonics that their places are made for.
const char* FlawInText(std::string_view english, std::string_view text) {
  const char* const flaw = Flaw(english, text);
  if (flaw != nullptr) return flaw;
  const bool same = std::ranges::count(english, '&') == std::ranges::count(text, '&');
  return same ? nullptr : "has other mnemonics";
}

/// In the window a mnemonic may be left out, for want of a letter that is free.
const char* FlawInWindow(std::string_view english, std::string_view text) {
  const char* const flaw = Flaw(english, text);
  if (flaw != nullptr) return flaw;
  const bool more = std::ranges::count(text, '&') > std::ranges::count(english, '&');
  return more ? "has a mnemonic too many" : nullptr;
}

const BuiltInEntry* Find(std::string_view key) {
  int id = 0;
  const char* const end = key.data() + key.size();
  const auto read = std::from_chars(key.data(), end, id);
  if (read.ec != std::errc() || read.ptr != end) return nullptr;
  const auto texts = BuiltInTexts();
  const auto found = std::ranges::lower_bound(texts, id, {}, &BuiltInEntry::id);
  return found == texts.end() || found->id != id ? nullptr : &*found;
}

void Take(Language& language, std::set<int>& missing, const std::string& key, const Json& value) {
  const BuiltInEntry* const entry = Find(key);
  if (entry == nullptr) {
    language.findings.push_back("there is no text " + key + ": it is passed over");
    return;
  }
  missing.erase(entry->id);
  const auto* const text = value.get_ptr<const std::string*>();
  const char* const flaw = text == nullptr ? "is no text" : FlawInText(entry->english, *text);
  if (flaw == nullptr) {
    language.texts.insert_or_assign(entry->id, *text);
  } else {
    language.findings.push_back("text " + key + " " + flaw + ": the English one is shown");
  }
}

void TakeWindow(Language& language, const Json& window) {
  std::set<std::string, std::less<>> missing = WindowTexts();
  for (const auto& [english, value] : window.items()) {
    if (!WindowTexts().contains(english)) {
      language.findings.push_back("the window has no text \"" + english + "\": it is passed over");
      continue;
    }
    missing.erase(english);
    const auto* const text = value.get_ptr<const std::string*>();
    const char* const flaw = text == nullptr ? "is no text" : FlawInWindow(english, *text);
    if (flaw == nullptr) {
      language.window.insert_or_assign(english, *text);
    } else {
      language.findings.push_back("the window's text for \"" + english + "\" " + flaw +
                                  ": the English one is shown");
    }
  }
  if (missing.empty()) return;
  language.findings.push_back("missing texts of the window: " + std::to_string(missing.size()) +
                              ", such as \"" + *missing.begin() + "\"; the English ones are shown");
}

}  // namespace

Speech SpeechIn(std::shared_ptr<const Language> language) {
  if (language == nullptr) return InEnglish;
  return [language = std::move(language)](const char* english) {
    const auto text = language->window.find(english);
    return text == language->window.end() ? InEnglish(english) : text->second;
  };
}

const std::set<std::string, std::less<>>& WindowTexts() {
  // Each of the files that are part of the program has them all.
  static const auto texts = [] {
    std::set<std::string, std::less<>> keys;
    if (BuiltInLanguages().empty()) return keys;
    const Json file = Json::parse(BuiltInLanguages().front().json, nullptr, false);
    const auto window = file.find("window");
    if (window == file.end()) return keys;
    for (const auto& [english, text] : window->items()) keys.insert(english);
    return keys;
  }();
  return texts;
}

Language ReadLanguage(std::string_view json) {
  const Json file = Json::parse(ValidUtf8(json), nullptr, false);
  if (file.is_discarded()) throw std::runtime_error("this is not JSON");
  const auto name = file.find("language");
  const auto texts = file.find("texts");
  if (!file.is_object() || name == file.end() || !name->is_string() || texts == file.end() ||
      !texts->is_object()) {
    throw std::runtime_error(R"(no {"language": "NAME", "texts": {"ID": "TEXT", ...}})");
  }
  Language language{name->get<std::string>(), {}, {}};
  const auto code = file.find("code");
  if (code != file.end() && code->is_string()) language.code = code->get<std::string>();
  std::set<int> missing;
  for (const BuiltInEntry& entry : BuiltInTexts()) missing.insert(entry.id);
  for (const auto& [key, value] : texts->items()) Take(language, missing, key, value);
  if (!missing.empty()) {
    const std::vector<int> ids(missing.begin(), missing.end());
    language.findings.push_back("missing texts: " + AbbreviateRuns(ids) +
                                "; the English ones are shown");
  }
  const auto window = file.find("window");
  if (window != file.end() && window->is_object()) {
    TakeWindow(language, *window);
  } else if (window != file.end()) {
    language.findings.emplace_back(
        "\"window\" holds no texts by name: the English ones are shown in the window");
  }
  return language;
}

}  // namespace quorvel::muxhost
