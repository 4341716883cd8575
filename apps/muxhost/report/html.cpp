#include "muxhost/report/html.h"

namespace quorvel::muxhost {

void Html::Text(std::string_view text) {
  for (const char character : text) {
    switch (character) {
      case '&': html_ += "&amp;"; break;
      case '<': html_ += "&lt;"; break;
      case '>': html_ += "&gt;"; break;
      case '"': html_ += "&quot;"; break;
      default: html_ += character;
    }
  }
}

void Html::Open(std::string_view tag, std::string_view kind) {
  html_ += '<';
  html_ += tag;
  if (!kind.empty()) {
    html_ += " class=\"";
    html_ += kind;
    html_ += '"';
  }
  html_ += '>';
}

void Html::Close(std::string_view tag) {
  html_ += "</";
  html_ += tag;
  html_ += ">\n";
}

void Html::Element(std::string_view tag, std::string_view text, std::string_view kind) {
  Open(tag, kind);
  Text(text);
  Close(tag);
}

void Html::Heading(std::string_view tag, std::string_view text, const std::string& anchor) {
  Open(tag);
  html_ += "<a name=\"" + anchor + "\"></a>";
  Text(text);
  Close(tag);
}

void Html::Link(std::string_view text, const std::string& anchor) {
  html_ += "<a href=\"#" + anchor + "\">";
  Text(text);
  Close("a");
}

}  // namespace quorvel::muxhost
