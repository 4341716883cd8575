#include "muxhost/script/parser.h"

#include <algorithm>
#include <charconv>

namespace quorvel::muxhost {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

/// What a backslash and a character stand for in quotes; nothing where they stand for themselves,
/// as in the name of a folder.
std::optional<char> Escaped(std::string_view pair, bool typed) {
  if (pair.size() < 2 || pair[0] != '\\') return std::nullopt;
  if (pair[1] == '"' || pair[1] == '\\') return pair[1];
  if (typed && pair[1] == 'n') return '\n';
  if (typed && pair[1] == 't') return '\t';
  return std::nullopt;
}

/// Appends the quoted part that starts at `at` to `word`; returns the place after its end.
std::size_t TakeQuoted(std::string_view line, std::size_t at, bool typed, std::string& word) {
  for (++at; at < line.size() && line[at] != '"'; ++at) {
    const auto escaped = Escaped(line.substr(at, 2), typed);
    if (escaped) ++at;
    word += escaped.value_or(line[at]);
  }
  if (at == line.size()) throw ScriptError("a quote does not end");
  return at + 1;
}

std::size_t TakeOneWord(std::string_view line, std::size_t at, bool typed, std::string& word) {
  while (at < line.size() && !IsBlank(line[at])) {
    if (line[at] == '"') {
      at = TakeQuoted(line, at, typed, word);
    } else {
      word += line[at++];
    }
  }
  return at;
}

std::optional<int> ParseNumber(std::string_view text, int base = 10) {
  int number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number, base);
  if (error != std::errc() || end != last) return std::nullopt;
  return number;
}

int InRange(std::string_view what, std::string_view text, std::optional<int> number, int least,
            int most) {
  if (number && *number >= least && *number <= most) return *number;
  throw ScriptError(std::string(what) + " must be a number from " + std::to_string(least) + " to " +
                    std::to_string(most) + ", not \"" + std::string(text) + "\"");
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  std::size_t at = 0;
  while (true) {
    while (at < line.size() && IsBlank(line[at])) ++at;
    if (at == line.size() || line[at] == '#') return words;
    const bool typed = !words.empty() && (words.front() == "type" || words.front() == "paste");
    at = TakeOneWord(line, at, typed, words.emplace_back());
  }
}

int ToNumber(std::string_view what, std::string_view text) {
  const auto number = ParseNumber(text);
  if (number) return *number;
  throw ScriptError(std::string(what) + " must be a number, not \"" + std::string(text) + "\"");
}

int ToNumber(std::string_view what, std::string_view text, int least, int most) {
  return InRange(what, text, ParseNumber(text), least, most);
}

int ToAnyNumber(std::string_view what, std::string_view text, int least, int most) {
  constexpr std::string_view kHex = "0x";
  const auto number =
      text.starts_with(kHex) ? ParseNumber(text.substr(kHex.size()), 16) : ParseNumber(text);
  return InRange(what, text, number, least, most);
}

Options::Options(std::span<const std::string> words)
    : command_(words.front()), left_(words.begin() + 1, words.end()) {}

std::optional<std::string> Options::Take(std::string_view key) {
  const std::string start = std::string(key) + "=";
  const auto is_key = [&start](const std::string& word) { return word.starts_with(start); };
  const auto found = std::find_if(left_.begin(), left_.end(), is_key);
  if (found == left_.end()) return std::nullopt;
  std::string value = found->substr(start.size());
  const auto next = left_.erase(found);
  if (std::any_of(next, left_.end(), is_key)) {
    throw ScriptError(std::string(key) + " is given twice");
  }
  return value;
}

std::optional<int> Options::TakeNumber(std::string_view key) {
  const auto text = Take(key);
  if (!text) return std::nullopt;
  return ToNumber(key, *text);
}

std::optional<int> Options::TakeNumber(std::string_view key, int least, int most) {
  const auto text = Take(key);
  if (!text) return std::nullopt;
  return ToNumber(key, *text, least, most);
}

bool Options::TakeWord(std::string_view word) {
  const auto found = std::find(left_.begin(), left_.end(), word);
  if (found == left_.end()) return false;
  left_.erase(found);
  return true;
}

void Options::Finish(std::string_view where) const {
  if (left_.empty()) return;
  throw ScriptError(command_ + " does not take " + left_.front() + std::string(where));
}

}  // namespace quorvel::muxhost
