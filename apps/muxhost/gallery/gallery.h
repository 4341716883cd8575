#pragma once

#include <memory>
#include <string>
#include <vector>

#include "muxhost/texts/language.h"

namespace quorvel::muxhost {

/// How the pictures of a gallery look.
struct Look {
  std::string name;
  bool dark = false;
  int percent = 100;        ///< of the usual size
  bool long_texts = false;  ///< texts half again as long as the English ones
};

/// The looks there are, the usual one first.
[[nodiscard]] const std::vector<Look>& Looks();

/// Draws the host's windows, the component's and every kind of control, without a screen, into
/// FOLDER/LOOK/DEVICE/WINDOW.png, and prints the name of each picture. The component's texts are of
/// a language; none: English. Throws std::runtime_error when a window does not come or a picture
/// cannot be written.
void DrawGallery(int argc, char** argv, const std::string& folder, const Look& look,
                 const std::shared_ptr<const Language>& language);

}  // namespace quorvel::muxhost
