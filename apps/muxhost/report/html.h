#pragma once

#include <string>
#include <string_view>

namespace quorvel::muxhost {

/// HTML as it is written: elements and their texts, which are escaped.
class Html {
 public:
  /// "<h2 class="x">text</h2>"; without a class, none.
  void Element(std::string_view tag, std::string_view text, std::string_view kind = {});
  void Open(std::string_view tag, std::string_view kind = {});
  void Close(std::string_view tag);
  /// A heading that can be linked to.
  void Heading(std::string_view tag, std::string_view text, const std::string& anchor);
  void Link(std::string_view text, const std::string& anchor);
  void Text(std::string_view text);
  /// As it stands.
  void Raw(std::string_view html) { html_ += html; }

  [[nodiscard]] const std::string& All() const { return html_; }

 private:
  std::string html_;
};

}  // namespace quorvel::muxhost
