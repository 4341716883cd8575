#include <ostream>

#include "muxhost/find/folded_text.h"
#include "muxhost/report/report.h"
#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

/// The kind of file goes by its name.
void Report(Desk& desk, Words words) {
  const std::string& path = words[1];
  const std::string folded = Fold(path);
  const bool pdf = folded.ends_with(".pdf");
  if (!pdf && !folded.ends_with(".html")) throw ScriptError("a report is a .html or a .pdf");
  if (pdf && !desk.make_pdf) throw ScriptError("this muxhost was built without PDF");
  const std::string html = HtmlReport(desk.session.Control(), {{}, desk.platform.Now(), desk.say});
  if (html.empty()) throw ScriptError("no configuration has arrived");
  const std::vector<std::uint8_t> bytes =
      pdf ? desk.make_pdf(html) : std::vector<std::uint8_t>(html.begin(), html.end());
  desk.platform.StoreFile(path, bytes);
  desk.out << "report: " << (pdf ? "PDF" : "HTML") << '\n';
}

}  // namespace quorvel::muxhost::commands
