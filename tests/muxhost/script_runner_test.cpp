#include "apps/muxhost/script_runner.h"

#include <fstream>

#include "tests/muxhost/run_script.h"
#include "tests/temp_path.h"

namespace quorvel::muxhost {
namespace {

TEST(ScriptRunner, ListsAndComparesSettings) {
  const std::string odd = TempPath("odd.bin");
  std::ofstream(odd) << "odd";
  ExpectOutput(R"(
device model=6 cameras=4
download
settings multidwell
settings nothing
diff
menu
choose mnu_CSetup
type m_CameraTitle(3) "Yard"
click cmd_OK
diff
)",
               R"(downloaded 225 blocks, 3600 bytes: Finished
MultiDwell = 5 s
settings: none
diff: none
menu is up
opened frm_CameraSetup "Camera Setup"
closed frm_CameraSetup
menu is up
CamInfo(3).title: "Yard" instead of "Camera 04   \x00", block 4
)");
  EXPECT_EQ(RunScript("diff").err, "line 1: the component has no configuration\n");
  EXPECT_EQ(RunScript("download\ndiff " + odd).err,
            "line 2: not a configuration image: " + odd + "\n");
  EXPECT_EQ(RunScript("download\ndiff /no/such").err, "line 2: cannot read /no/such\n");
  EXPECT_EQ(RunScript("\xEF\xBB\xBFmodified").status, 0);
}

TEST(ScriptRunner, CarriesAnEditToTheDevice) {
  ExpectOutput(R"(
device model=6 cameras=16 blocks=225 variant=2 name="TX16"
download
menu
choose mnu_CSetup
type m_CameraTitle(0) "Lobby north door"
tab SSTab1 1
press MSFG_SnlGain 3 1
select lstSnlGain 25
release MSFG_SnlGain 3 4
click cmd_OK
modified
upload modified
block 1
image 47
block 47
)",
               R"(downloaded 225 blocks, 3600 bytes: Finished
menu is up
opened frm_CameraSetup "Camera Setup"
closed frm_CameraSetup
menu is up
modified: 1 47
uploaded blocks 1 47: Finished
read back: 2 blocks as sent
block 1: 4c 6f 62 62 79 20 6e 6f 72 74 68 20 64 00 00 e1
image 47: 32 32 19 19 32 32 32 32 32 32 32 32 32 32 32 32
block 47: 32 32 19 19 32 32 32 32 32 32 32 32 32 32 32 32
)");
}

TEST(ScriptRunner, Transfers) {
  const std::pair<const char*, const char*> cases[] = {
      {"download\nupload all",
       "downloaded 225 blocks, 3600 bytes: Finished\n"
       "uploaded blocks 1-149 182-193 195-217 219-225: Finished\n"
       "read back: 191 blocks as sent\n"},
      {"device model=2\nhost sync\ndownload\nupload all macros\nupload modified\nmodified",
       "downloaded 185 blocks, 2960 bytes: Finished\n"
       "uploaded blocks 1-185: Finished\n"
       "read back: 185 blocks as sent\n"
       "upload: no modified blocks\n"
       "modified: none\n"},
      {"device model=6 cameras=4 name=N4\nhost commid=3\ndownload\nevents",
       "downloaded 225 blocks, 3600 bytes: ULSucceededWithStr\n"
       "event RequestBlk 1\n"
       "event ULSucceededWithStr N4 6 4\n"},
      {"host family=16\ndownload\nupload all\nmessages\nmessages",
       "downloaded 225 blocks, 3600 bytes: Finished\n"
       "upload: frm_ToMux did not open\n"
       "message box Error Message: The current data does not match the data of the remote device\n"
       "Error Message: The current data does not match the data of the remote device\n"
       "messages: none\n"},
  };
  for (const auto& [script, expected] : cases) ExpectOutput(script, expected);
}

TEST(ScriptRunner, LinesAfterHoldRunInsideTheDialogsLoop) {
  ExpectOutput(
      "host latency=10 dvr=0\n"
      "download hold\n"
      "wait 25\n"
      "show frm_ULFrMux.prgBar1\n"
      "show frm_ULFrMux.cmdOK\n"
      "close frm_ULFrMux\n"
      "events\n"
      "download hold\n",
      "opened frm_ULFrMux \"Downloading Data from Plexar\"\n"
      "prgBar1 progress = 2 of 225\n"
      "cmdOK button \"OK\" [disabled]\n"
      "closed frm_ULFrMux\n"
      "event RequestBlk 1\n"
      "event RequestBlk 2\n"
      "event RequestBlk 3\n"
      "opened frm_ULFrMux \"Downloading Data from Plexar\"\n"
      "nothing more happens: frm_ULFrMux is closed by its window's button\n"
      "closed frm_ULFrMux\n");
}

TEST(ScriptRunner, TellsHowFarADownloadCame) {
  const std::string path = TempPath("three_blocks.bin");
  std::string image(48, '\0');
  image[15] = 5;
  std::ofstream(path, std::ios::binary) << image;
  ExpectOutput("device image=\"" + path + "\"\ndownload\nevents\n",
               "download not finished, closed: 3 blocks, Label3 \"48\", Label4 \"Downloading block "
               "3\"\n"
               "event RequestBlk 1\n"
               "event RequestBlk 2\n"
               "event RequestBlk 3\n"
               "event RequestBlk 4\n"
               "event not answered: the device has no block 4\n");
}

TEST(ScriptRunner, StopsAtTheLineThatCannotBeCarriedOut) {
  const std::pair<const char*, const char*> cases[] = {
      {"\n# comment\nslip 4\nmodified", "line 3: unknown command slip\n"},
      {"type x", "line 1: usage: type CONTROL TEXT\n"},
      {"type x \"y", "line 1: a quote does not end\n"},
      {"device model=21", "line 1: model must be 0 to 20, not 21\n"},
      {"device model=six", "line 1: model must be a number, not \"six\"\n"},
      {"device model=6 model=7", "line 1: model is given twice\n"},
      {"device colour=1", "line 1: device does not take colour=1\n"},
      {"device variant=22", "line 1: variant must be one character, not \"22\"\n"},
      {"device firmware=5", "line 1: firmware must be as 5.06, not \"5\"\n"},
      {"device macros=16x64", "line 1: macros belong to a combined device\n"},
      {"device combined macros=16", "line 1: macros must be as 16x64, not \"16\"\n"},
      {"device combined macros=255x258", "line 1: macro bytes must be 0 to 65535, not 65790\n"},
      {"device image=x model=3", "line 1: device does not take model=3 with image=\n"},
      {"host family=256", "line 1: family must be a number from 0 to 255, not \"256\"\n"},
      {"upload some", "line 1: upload does not take some\n"},
      {"device combined\ndownload\nupload none", "line 3: cmdOK is disabled\n"},
      {"fault sleepy", "line 1: no such fault: sleepy\n"},
      {"fault silent ms=3", "line 1: silent does not take ms=3\n"},
      {"fault late at=0", "line 1: at must be a number from 1 to 1000, not \"0\"\n"},
      {"zones 0", "line 1: the component has no camera 0\n"},
      {"device cameras=4\ndownload\nzones 4 1=2", "line 3: the component has no camera 4\n"},
      {"download\nzones 0 32=1", "line 2: zone byte must be a number from 0 to 31, not \"32\"\n"},
      {"download\nzones 0 1=0x100",
       "line 2: zone value must be a number from 0 to 255, not \"0x100\"\n"},
      {"answer file", "line 1: answer takes ok, cancel or a file, not file\n"},
      {"click cmd_OK", "line 1: no open window has a control cmd_OK\n"},
      {"show frm_Alarm", "line 1: no window frm_Alarm is open\n"},
      {"choose mnu_CSetup", "line 1: no menu is up\n"},
      {"block 226", "line 1: the device has no block 226\n"},
      {"image 1", "line 1: the component has no block 1\n"},
      {"download hold\ndownload", "line 2: a modal dialog is open: frm_ULFrMux\n"},
      {"download hold\nclick cmdOK\nmodified", "line 2: cmdOK is disabled\n"},
      {"download\nmenu\nchoose mnuVCR", "line 3: mnuVCR is hidden\n"},
      {"menu\nchoose mnu_Factory", "line 2: mnu_Factory opens a submenu\n"},
  };
  for (const auto& [script, expected] : cases) {
    const Outcome outcome = RunScript(script);
    EXPECT_EQ(outcome.status, 1) << script;
    EXPECT_EQ(outcome.err, expected) << script;
    EXPECT_EQ(outcome.out.find("modified"), std::string::npos) << "ran on: " << script;
  }
}

TEST(ScriptRunner, ControlsOfAnEditorRefuseWhatAPersonCannotDo) {
  const std::pair<const char*, const char*> cases[] = {
      {"type m_CameraTitle(4) x", "m_CameraTitle(4) is hidden"},
      {"click m_CameraColor(0)", "m_CameraColor(0) is disabled"},
      {"select lstSnlGain 3", "lstSnlGain is hidden"},
      {"press frm_CameraSetup.SSTab1 1 1", "frm_CameraSetup.SSTab1 is nothing to press"},
      {"tab SSTab1 3", "SSTab1 has no such place"},
      {"click m_CameraTitle(0)", "m_CameraTitle(0) is nothing to click"},
      {"click frm_CameraSetup.cmdNone", "frm_CameraSetup has no such control: cmdNone"},
  };
  for (const auto& [line, reason] : cases) {
    const Outcome outcome =
        RunScript(std::string("device cameras=4\ndownload\nmenu\nchoose mnu_CSetup\n") + line);
    EXPECT_EQ(outcome.status, 1) << line;
    EXPECT_EQ(outcome.err, std::string("line 5: ") + reason + "\n");
  }
}

}  // namespace
}  // namespace quorvel::muxhost
