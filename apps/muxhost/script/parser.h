#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::muxhost {

/// A line of a script cannot be carried out; the text is the reason.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words of a line: separated by blanks; a part in double quotes keeps its blanks, and in it \"
/// and \\ stand for a quote and a backslash, after the word type also \n and \t for a line end and
/// a tab. A # that starts a word starts a comment. Throws ScriptError for a quote that does not
/// end.
[[nodiscard]] std::vector<std::string> SplitWords(std::string_view line);

/// A whole decimal number; throws ScriptError that names `what` otherwise.
[[nodiscard]] int ToNumber(std::string_view what, std::string_view text);
/// A whole decimal number from `least` to `most`; throws ScriptError that names `what` otherwise.
[[nodiscard]] int ToNumber(std::string_view what, std::string_view text, int least, int most);

/// The same for a number that is decimal or, after 0x, hexadecimal.
[[nodiscard]] int ToAnyNumber(std::string_view what, std::string_view text, int least, int most);

/// The `key=value` pairs and single words after a command, taken one by one.
class Options {
 public:
  /// `words` is a whole line, the command first.
  explicit Options(std::span<const std::string> words);

  /// The value of a key; nothing when the line does not give it. Throws ScriptError for a key that
  /// is given twice, or a value that is no such number.
  [[nodiscard]] std::optional<std::string> Take(std::string_view key);
  [[nodiscard]] std::optional<int> TakeNumber(std::string_view key);
  [[nodiscard]] std::optional<int> TakeNumber(std::string_view key, int least, int most);
  /// True when the line has this word.
  [[nodiscard]] bool TakeWord(std::string_view word);
  /// Throws ScriptError that names what was not taken; `where` is added to its reason.
  void Finish(std::string_view where = {}) const;

 private:
  std::string command_;
  std::vector<std::string> left_;
};

}  // namespace quorvel::muxhost
