#include <ostream>

#include "muxhost/report/report.h"
#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

/// The kind of file goes by its name.
void Report(Desk& desk, Words words) {
  const std::string& path = words[1];
  const bool pdf = path.ends_with(".pdf");
  if (!pdf && !path.ends_with(".html")) throw ScriptError("a report is a .html or a .pdf");
  if (pdf && !desk.make_pdf) throw ScriptError("this muxhost was built without PDF");
  const std::string source = desk.say(desk.session.HasDevice() ? "the device" : "a settings file");
  const std::string html =
      HtmlReport(desk.session.Control(), {source, desk.platform.Now(), desk.say});
  if (html.empty()) throw ScriptError("no configuration has arrived");
  const std::vector<std::uint8_t> bytes =
      pdf ? desk.make_pdf(html) : std::vector<std::uint8_t>(html.begin(), html.end());
  desk.platform.StoreFile(path, bytes);
  desk.out << "report: " << (pdf ? "PDF" : "HTML") << '\n';
}

}  // namespace quorvel::muxhost::commands
