#include "muxhost/texts/speech.h"

namespace quorvel::muxhost {

std::string Fill(std::string_view text, const std::vector<std::string>& values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool place = text.at(at) == '%' && at + 1 < text.size();
    const int number = place ? text.at(at + 1) - '0' : 0;
    if (number < 1 || number > static_cast<int>(values.size())) {
      filled += text.at(at);
      continue;
    }
    filled += values.at(static_cast<std::size_t>(number - 1));
    ++at;
  }
  return filled;
}

}  // namespace quorvel::muxhost
