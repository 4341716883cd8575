#include "apps/muxhost/link_fault.h"

#include "tests/muxhost/run_script.h"

namespace quorvel::muxhost {
namespace {

using namespace std::string_literals;

struct FaultCase {
  const char* fault;
  std::string outcome;
};

std::string WithFault(const std::string& script, const char* fault) {
  std::string text = script;
  text.replace(text.find("FAULT"), 5, fault);
  return text;
}

/// Three titles and a gain: blocks 1, 2, 3 and 47, so that the fifth packet ends the send.
const std::string kEdit = R"(
menu
choose mnu_CSetup
type m_CameraTitle(0) "Lobby"
type m_CameraTitle(1) "Yard"
type m_CameraTitle(2) "Gate"
tab SSTab1 1
press MSFG_SnlGain 3 1
select lstSnlGain 25
click cmd_OK
dismiss
)";

std::string Edited(const std::string& size) {
  return "downloaded " + size + R"( bytes: Finished
menu is up
opened frm_CameraSetup "Camera Setup"
closed frm_CameraSetup
menu is up
)";
}

TEST(LinkFault, EveryUploadOfModifiedBlocksCanBeRepeated) {
  const auto sent = "uploaded blocks 1-3 47: Finished\n"s;
  const auto good = sent + "read back: 4 blocks as sent\n";
  const auto stuck = [](const char* blocks, const char* panel, const char* read) {
    return "upload not finished, closed: blocks "s + blocks +
           ", StatusBar1 \"Upload block number :\" | \"" + panel + "\" | \"\"\nread back: " + read +
           " as sent\n";
  };
  const FaultCase cases[] = {
      {"silent", stuck("1", "1", "1 block")},
      {"silent at=3", stuck("1-3", "3", "3 blocks")},
      {"silent at=5", good},
      {"short", sent + "read back differs: 1\n"},
      {"short at=3", sent + "read back differs: 3\n"},
      {"short at=5", good},
      {"long", good},
      {"long at=3", good},
      {"long at=5", good},
      {"garbage", sent + "read back differs: 1\n"},
      {"garbage at=3", sent + "read back differs: 3\n"},
      {"garbage at=5", good},
      {"wrong", sent + "read back differs: 1\n"},
      {"wrong at=3", sent + "read back differs: 3\n"},
      {"wrong at=5", good},
      {"duplicate", good},
      {"duplicate at=3", good},
      {"duplicate at=5", good},
      {"late ms=5000", good},
      {"late at=3", good},
      {"late at=5", good},
      {"drop", sent + "read back differs: 1\n"},
      {"drop at=3", sent + "read back differs: 3\n"},
      {"drop at=5", good},
      {"stop", stuck("1", "Abort", "1 block")},
      {"stop at=3", stuck("1-3", "Abort", "3 blocks")},
      {"stop at=5", good},
      {"close", stuck("1", "1", "1 block")},
      {"close at=3", stuck("1-3", "3", "3 blocks")},
      {"close at=5", good},
  };
  for (const auto& [fault, outcome] : cases) {
    // Only what lands in a block beside the listed ones needs more than the same send again.
    const std::string left = fault == "wrong at=3"s
                                 ? "CamInfo(3).title: \"Camera 04   \\x00\" instead of \"Gate\", "
                                   "block 4\n"
                                 : "diff: none\n";
    ExpectOutput(WithFault("device blocks=190\ndownload" + kEdit +
                               "fault FAULT\nupload modified\nfault\nmodified\nupload modified\n"
                               "diff\nupload all macros\ndiff\n",
                           fault),
                 Edited("190 blocks, 3040") + outcome + "fault: none\nmodified: 1 2 3 47\n" + good +
                     left +
                     "uploaded blocks 1-190: Finished\nread back: 190 blocks as sent\n"
                     "diff: none\n");
  }
}

TEST(LinkFault, EveryUploadOfAllBlocksCanBeRepeated) {
  const auto sent = "uploaded blocks 1-185: Finished\n"s;
  const auto good = sent + "read back: 185 blocks as sent\n";
  const FaultCase cases[] = {
      {"short at=1", sent + "read back differs: 1\n"},
      {"garbage at=47", sent + "read back differs: 47\n"},
      {"garbage at=185", sent + "read back differs: 185\n"},
      {"wrong at=47", sent + "read back differs: 47\n"},
      {"wrong at=185", sent + "read back differs: 184\n"},
      {"drop at=47", sent + "read back differs: 47\n"},
      {"drop at=186", good},
      {"duplicate at=185", good},
      {"late at=186", good},
      {"silent at=47",
       "upload not finished, closed: blocks 1-47, StatusBar1 \"Upload block number :\" | \"47\" | "
       "\"\"\nread back: 47 blocks as sent\n"},
      {"stop at=185",
       "upload not finished, closed: blocks 1-185, StatusBar1 \"Upload block number :\" | "
       "\"Abort\" | \"Finished\"\nread back: 185 blocks as sent\n"},
      {"close at=185",
       "upload not finished, closed: blocks 1-185, StatusBar1 \"Upload block number :\" | \"185\" "
       "| \"Finished\"\nread back: 185 blocks as sent\n"},
  };
  for (const auto& [fault, outcome] : cases) {
    ExpectOutput(
        WithFault("device blocks=185\ndownload" + kEdit +
                      "fault FAULT\nupload all macros\nmodified\nupload all macros\n"
                      "diff\n",
                  fault),
        Edited("185 blocks, 2960") + outcome + "modified: 1 2 3 47\n" + good + "diff: none\n");
  }
}

TEST(LinkFault, DownloadsKeepTheOldRecordOrBringTheNewOne) {
  const auto complete = "downloaded 190 blocks, 3040 bytes: Finished\n"s;
  const auto cut = [](int blocks, const char* bytes, const char* status) {
    return "download not finished, closed: " + std::to_string(blocks) + " blocks, Label3 \"" +
           bytes + "\", Label4 \"" + status + "\"\n";
  };
  const auto refused = "message box Quorvel: Error found in FillDataBlk\n"s;
  const FaultCase kept[] = {
      {"silent", cut(0, "0", "")},
      {"silent at=92", cut(91, "1456", "Downloading block 91")},
      {"silent at=190", cut(189, "3024", "Downloading block 189")},
      {"short", cut(1, "0", "") + refused},
      {"short at=92", cut(190, "3032", "Downloading block 190")},
      {"short at=190", cut(190, "3032", "Downloading block 190")},
      {"long", cut(1, "0", "") + refused},
      {"long at=92", cut(92, "1456", "Downloading block 91") + refused},
      {"long at=190", cut(190, "3024", "Downloading block 189") + refused},
      {"garbage", cut(190, "3040", "Downloading block 190")},
      {"wrong", cut(1, "0", "")},
      {"wrong at=92", cut(92, "1456", "Downloading block 91")},
      {"wrong at=190", cut(190, "3024", "Downloading block 189")},
      {"stop", cut(1, "0", "")},
      {"stop at=92", cut(92, "1456", "Downloading block 91")},
      {"stop at=190", cut(190, "3024", "Downloading block 189")},
      {"close", cut(1, "0", "")},
      {"close at=92", cut(92, "1456", "Downloading block 91")},
      {"close at=190", cut(190, "3024", "Downloading block 189")},
  };
  const FaultCase renewed[] = {
      {"duplicate", complete}, {"duplicate at=92", complete}, {"duplicate at=190", complete},
      {"late", complete},      {"late at=92", complete},      {"late ms=9000 at=190", complete},
      {"drop", complete},      {"garbage at=92", complete},   {"garbage at=190", complete},
  };
  const auto check = [&](const FaultCase& it, const char* title) {
    ExpectOutput(WithFault("device blocks=190\ndownload" + kEdit +
                               "fault FAULT\ndownload\nmenu\nchoose mnu_CSetup\n"
                               "show frm_CameraSetup.m_CameraTitle(0)\nclose\ndismiss\ndownload\n"
                               "diff\n",
                           it.fault),
                 Edited("190 blocks, 3040") + it.outcome +
                     "menu is up\nopened frm_CameraSetup \"Camera Setup\"\n" +
                     "m_CameraTitle(0) text box = \"" + title +
                     "\"\nclosed frm_CameraSetup\nmenu is up\n" + complete + "diff: none\n");
  };
  for (const FaultCase& it : kept) check(it, "Lobby");
  for (const FaultCase& it : renewed) check(it, "Camera 01");
}

TEST(LinkFault, CombinedExchange) {
  struct CombinedCase {
    const char* fault;
    std::string upload;
    const char* left;  ///< of the fault, after the upload
    std::string download;
  };
  const auto parts = "190 blocks and macros, 3069 bytes"s;
  const auto sent = "uploaded " + parts + ": Finished\n";
  const auto good = sent + "read back: 190 blocks and macros as sent\n";
  // The dialog says what the header says; the host has seen no block.
  const auto not_taken =
      "upload not taken by the device: " + parts + "\nread back differs: 1-3 47 61\n";
  const auto complete = "downloaded 190 blocks, 3069 bytes: Finished\n"s;
  const auto after_close =
      "download not finished, closed: 190 blocks, Label3 \"0\", Label4 \"\"\n"s;
  const CombinedCase cases[] = {
      {"silent", good, "silent at 1",
       "download not finished, closed: 0 blocks, Label3 \"0\", Label4 \"\"\n"},
      {"short", not_taken, "none", "downloaded 0 blocks, 3069 bytes: Finished\n"},
      {"long", good, "none", complete},
      {"garbage", not_taken, "none", "downloaded 0 blocks, 119913 bytes: Finished\n"},
      {"wrong", not_taken, "none", "downloaded 0 blocks, 3069 bytes: Finished\n"},
      {"duplicate", good, "none", complete},
      {"late", good, "late at 1 by 300 ms", complete},
      {"drop", sent + "read back differs: 1-3 47 61\n", "none", complete},
      {"stop", good, "stop at 1", after_close},
      {"close", good, "none", after_close},
  };
  for (const CombinedCase& it : cases) {
    const std::string edited = Edited("190 blocks, 3069");
    const std::string again =
        "modified: 1 2 3 47\nuploaded blocks 1-3 47: Finished\n"
        "read back: 4 blocks as sent\n" +
        good + "diff: none\n";
    ExpectOutput(WithFault("device blocks=190 combined macros=2x8\ndownload" + kEdit +
                               "fault FAULT\nupload all macros\nfault\nfault none\nmodified\n"
                               "upload modified\nupload all macros\ndiff\n",
                           it.fault),
                 edited + it.upload + "fault: " + it.left + "\n" + again);
    ExpectOutput(
        WithFault("device blocks=190 combined macros=2x8\ndownload" + kEdit +
                      "upload modified\nfault FAULT\ndownload\nsettings CamInfo(0).title\n",
                  it.fault),
        edited + "uploaded blocks 1-3 47: Finished\nread back: 4 blocks as sent\n" + it.download +
            "CamInfo(0).title = \"Lobby\"\n");
  }
}

TEST(LinkFault, AnswersInsideTheEventFailAlike) {
  ExpectOutput(
      "host sync\nfault wrong at=3\ndownload\nfault stop at=2\ndownload\nfault close at=9\n"
      "upload all\nfault late at=4\nupload all\n",
      "download not finished, closed: 3 blocks, Label3 \"32\", Label4 \"Downloading block "
      "2\"\n"
      "downloaded 225 blocks, 3600 bytes: Finished\n"
      "upload not finished, closed: blocks 1-9, StatusBar1 \"Upload block number :\" | "
      "\"8\" | \"\"\n"
      "read back: 9 blocks as sent\n"
      "uploaded blocks 1-149 182-193 195-217 219-225: Finished\n"
      "read back: 191 blocks as sent\n");
}

}  // namespace
}  // namespace quorvel::muxhost
