#include <gtest/gtest.h>

#include <cstdio>

#include "tests/muxhost/run_script.h"
#include "tests/temp_path.h"

namespace quorvel::muxhost {
namespace {

std::string TitleEdit(const std::string& title) {
  return "menu\nchoose mnu_CSetup\ntype m_CameraTitle(0) \"" + title +
         "\"\nclick cmd_OK\ndismiss\n";
}

constexpr const char* kEditShown =
    "menu is up\nopened frm_CameraSetup \"Camera Setup\"\nclosed frm_CameraSetup\nmenu is up\n";

class SettingsFiles : public ::testing::Test {
 protected:
  ~SettingsFiles() override { std::remove(path_.c_str()); }
  const std::string path_ = TempPath("settings.bin");
};

TEST(TransferScript, CombinedExchange) {
  ExpectOutput("device combined macros=16x64\ndownload\n" + TitleEdit("Lobby") +
                   "upload modified\nblock 1\nevents\n" + TitleEdit("Yard") +
                   "upload all\nblock 1\nblock 61\nupload modified macros\nupload none macros\n"
                   "upload all macros\n",
               std::string("downloaded 225 blocks, 4637 bytes: Finished\n") + kEditShown +
                   "uploaded blocks 1: Finished\n"
                   "read back: 1 block as sent\n"
                   "block 1: 4c 6f 62 62 79 20 20 20 20 20 20 20 20 00 00 e1\n"
                   "event RequestComboBlocks\n"
                   "event UploadSucceeded\n"
                   "event DownLoadData 1\n"
                   "event DownLoadData end\n"
                   "event verified 1 block\n" +
                   kEditShown +
                   "uploaded 225 blocks, 4637 bytes: Finished\n"
                   "read back: 225 blocks as sent\n"
                   "block 1: 59 61 72 64 20 20 20 20 20 20 20 20 20 00 00 e1\n"
                   "block 61: 00 00 00 01 01 00 00 00 00 00 01 01 01 00 00 01\n"
                   "uploaded 225 blocks and macros, 4637 bytes: Finished\n"
                   "read back: 225 blocks and macros as sent\n"
                   "uploaded macros, 4637 bytes: Finished\n"
                   "read back: macros as sent\n"
                   "uploaded 225 blocks and macros, 4637 bytes: Finished\n"
                   "read back: 225 blocks and macros as sent\n");
  ExpectOutput("download\nupload none macros\n",
               "downloaded 225 blocks, 3600 bytes: Finished\nupload: block data is not left out\n");
}

TEST_F(SettingsFiles, SavedAndRestored) {
  for (const char* exchange : {"", " combined macros=2x8"}) {
    const bool combined = *exchange != '\0';
    const std::string size = combined ? "3629 bytes" : "3600 bytes";
    ExpectOutput(std::string("device") + exchange + "\nsave " + path_ + "\ndownload\n" +
                     TitleEdit("Saved") + "save " + path_ + "\n" + TitleEdit("Later") +
                     "upload modified\nrestore " + path_ +
                     "\nmodified\ndiff\nupload all\nblock 1\nrestore /no/such\n",
                 "not saved\ndownloaded 225 blocks, " + size + ": Finished\n" + kEditShown +
                     "saved " + size + "\n" + kEditShown +
                     "uploaded blocks 1: Finished\nread back: 1 block as sent\nrestored " + size +
                     ": Finished\nmodified: none\n"
                     "CamInfo(0).title: \"Saved\" instead of \"Later\", block 1\n" +
                     (combined ? "uploaded 225 blocks, 3629 bytes: Finished\n"
                                 "read back: 225 blocks as sent\n"
                               : "uploaded blocks 1-149 182-193 195-217 219-225: Finished\n"
                                 "read back: 191 blocks as sent\n") +
                     "block 1: 53 61 76 65 64 20 20 20 20 20 20 20 20 00 00 e1\n"
                     "not restored\nmessage box Quorvel: Error found in RestoreImageFromFile\n");
  }
}

TEST_F(SettingsFiles, OfTheOtherExchangeAreSentInTheDevicesOwn) {
  static_cast<void>(RunScript("device combined name=M\ndownload\nsave " + path_));
  ExpectOutput("device name=M\nrestore " + path_ + "\nupload all\ndownload\n",
               "restored 3613 bytes: Finished\n"
               "uploaded blocks 1-149 182-193 195-217 219-225: Finished\n"
               "read back: 191 blocks as sent\n"
               "downloaded 225 blocks, 3600 bytes: Finished\n");
}

TEST_F(SettingsFiles, ReceivedDataIsSavedFromItsDialog) {
  ExpectOutput("answer file cancel\nanswer file " + path_ +
                   "\ndownload hold\nwait 3000\nclick cmdSaveFile\nclick cmdSaveFile\n"
                   "click cmdOK\ndevice image=" +
                   path_ + "\ndownload\n",
               "opened frm_ULFrMux \"Downloading Data from DVR\"\nclosed frm_ULFrMux\n"
               "downloaded 225 blocks, 3600 bytes: Finished\n");
}

TEST_F(SettingsFiles, AreSentToTheirModelAndItsTwinOnly) {
  struct Case {
    const char* device;
    const char* other;  ///< as the message names it; null when the file is accepted
  };
  const Case cases[] = {
      {"model=6 name=\"Vaultline Adv\"", nullptr},
      {"model=7 name=\"Vaultline Adv\"", nullptr},
      {"model=7 name=\"Vaultline Pro\"", nullptr},
      {"model=7 name=Vaultline", "Vaultline (16 ch, Triplex PAL)"},
      {"model=8 name=\"Vaultline Adv\"", "Vaultline Adv (16 ch, Triplex NTSC, Lite/EZ)"},
      {"model=6 cameras=9 name=\"Vaultline Adv\"", "Vaultline Adv (9 ch, Triplex NTSC)"},
  };
  static_cast<void>(RunScript("device name=\"Vaultline Adv\"\ndownload\nsave " + path_));
  for (const char* exchange : {"", " combined"}) {
    for (const auto& [device, other] : cases) {
      const std::string accepted =
          *exchange != '\0'
              ? "uploaded 225 blocks, 3613 bytes: Finished\nread back: 225 blocks as sent\n"
              : "uploaded blocks 1-149 182-193 195-217 219-225: Finished\n"
                "read back: 191 blocks as sent\n";
      ExpectOutput(
          std::string("device ") + device + exchange + "\nrestore " + path_ + "\nupload all\n",
          "restored 3600 bytes: Finished\n" +
              (other == nullptr
                   ? accepted
                   : "upload: frm_ToMux did not open\n"
                     "message box Error Message: The current data does not match the data of the "
                     "remote device\n  You are connected to model:  " +
                         std::string(other) +
                         "\n  You are loading data from model:  Vaultline Adv (16 ch, Triplex "
                         "NTSC)\n"));
    }
  }
}

TEST(TransferScript, DefaultsFitTheDevice) {
  const std::string zeros = "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";
  const auto all = [](const char* byte) {
    std::string text = byte;
    for (int i = 1; i < 16; ++i) text += std::string(" ") + byte;
    return text;
  };
  struct Case {
    const char* device;
    const char* name;
    std::vector<std::pair<int, std::string>> blocks;
  };
  const Case cases[] = {
      {"model=8 variant=4 name=Lite",
       "Lite",
       {{56, all("d2")}, {58, all("02")}, {62, all("12")}, {63, all("07")}}},
      {"model=6 variant=1 name=Full", "Full", {{56, all("92")}, {62, all("06")}}},
      {"model=9 cameras=4 variant=2 name=Four",
       "Four",
       {{38, "03 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e"},
        {58, all("07")},
        {62, all("01")},
        {63, all("0c")},
        {185, "04 09 46 6f 75 72 00 00 00 00 00 00 00 00 00 00"}}},
      {"model=2 name=Duplex",
       "Duplex",
       {{54, "01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f 10"},
        {185, "10 02 44 75 70 6c 65 78 00 00 00 00 00 00 00 00"}}},
      {"model=4 cameras=10 name=Lite",
       "Lite",
       {{38, "09 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e"},
        {58, all("02")},
        {62, all("11")},
        {63, all("06")}}},
      {"blocks=224 combined name=Long",
       "Long",
       {{1, "43 61 6d 65 72 61 20 30 31 20 20 20 00 00 00 e0"}, {201, zeros}, {224, zeros}}},
  };
  for (const auto& [device, name, blocks] : cases) {
    std::string script = std::string("device ") + device + "\ndefaults\nmodified\nevents\n";
    std::string expected =
        "defaults loaded\n"
        "message box Message: The default setting has been loaded for model " +
        std::string(name) +
        "\nmodified: none\nevent RequestBlk 183\nevent RequestBlk 185\nevent UploadSucceeded\n";
    for (const auto& [block, bytes] : blocks) {
      script += "image " + std::to_string(block) + "\n";
      expected += "image " + std::to_string(block) + ": " + bytes + "\n";
    }
    ExpectOutput(script, expected);
  }
  ExpectOutput("device combined name=C\ndefaults\nupload all\ndiff\nfault silent at=2\ndefaults\n",
               "defaults loaded\n"
               "message box Message: The default setting has been loaded for model C\n"
               "uploaded 225 blocks, 3613 bytes: Finished\nread back: 225 blocks as sent\n"
               "diff: none\ndefaults not loaded\n");
}

TEST(TransferScript, ZonesAreSentAsBlocksOfTheirCamera) {
  ExpectOutput(
      "download\nzones 2\nzones 2 30=7 3=0x0f\nmodified\nzones 2\nzones 2 3=15\nupload modified\n"
      "block 89\nblock 90\nzones 15 0=0 15=1\nmodified\n",
      "downloaded 225 blocks, 3600 bytes: Finished\n"
      "zones 2: ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff "
      "ff "
      "ff ff ff ff\n"
      "modified: 89 90\n"
      "zones 2: ff ff ff 0f ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff "
      "ff "
      "ff ff 07 ff\n"
      "uploaded blocks 89 90: Finished\n"
      "read back: 2 blocks as sent\n"
      "block 89: ff ff ff 0f ff ff ff ff ff ff ff ff ff ff ff ff\n"
      "block 90: ff ff ff ff ff ff ff ff ff ff ff ff ff ff 07 ff\n"
      "modified: 89 90 115\n");
}

}  // namespace
}  // namespace quorvel::muxhost
