// What goes from one library to another: exceptions, kinds of controls, values.
#include <iostream>
#include <string>

#include "quorvel/code_page.h"
#include "quorvel/headless_platform.h"
#include "quorvel/identity.h"
#include "quorvel/version.h"
#include "quorvel/widget_page.h"

namespace {

template <class Error, class Call>
bool Throws(const Call& call) {
  try {
    call();
  } catch (const Error&) {
    return true;
  }
  return false;
}

std::string Fault() {
  using namespace quorvel;
  HeadlessPlatform platform;
  const auto page = MakeWidgetPage(platform);
  page->Show();
  if (page->Find<TextBox>("txtTitle").Type("Gate") != Answer::kDone) return "a control";
  if (!Throws<PlatformError>([&] { (void)platform.ReadFile("/no/such/file"); })) return "a file";
  if (!Throws<ImageError>([] { (void)ReadIdentity(BlockImage()); })) return "an image";
  if (CodePageToUtf8("\xE9") != "\xC3\xA9") return "the code page";
  const std::string version = std::to_string(QUORVEL_VERSION_MAJOR) + "." +
                              std::to_string(QUORVEL_VERSION_MINOR) + "." +
                              std::to_string(QUORVEL_VERSION_PATCH);
  return Version() == version ? "" : "the version";
}

}  // namespace

int main() {
  const std::string fault = Fault();
  if (!fault.empty()) std::cerr << "consumer: " << fault << " is not as it should be\n";
  return fault.empty() ? 0 : 1;
}
