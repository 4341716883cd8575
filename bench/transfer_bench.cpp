#include "bench/transfer_bench.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <utility>

#include "bench/ratio_reporter.h"
#include "bench/sample_images.h"
#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::bench {

namespace {

/// A device in memory, without a link that takes time.
class QuickHost : public MainMenuEvents {
 public:
  QuickHost() {
    control_.InitProperties();
    platform_.at_modal = [](Dialog& dialog) {
      // START while it can be pressed; at the end OK or CLOSE.
      if (dialog.Find<Button>("cmdOK").Click() == Answer::kDone) return true;
      auto* const clear = dialog.FindWidget("cmdClearBlk");
      return clear != nullptr && clear->Visible() && dialog.CloseWindow() == Answer::kDone;
    };
  }

  void Download() {
    arrived_ = false;
    control_.Custom(10, 0, 0);
    if (!arrived_) throw std::logic_error("the download did not end");
  }
  void Upload() {
    packets_ = 0;
    control_.Custom(11, 0, 0);
    // 225 blocks but the macro blocks, 194 and 218, and the end packet.
    if (packets_ != 225 - 32 - 2 + 1) throw std::logic_error("the upload did not end");
  }

  [[nodiscard]] MainMenuCtrl& Control() { return control_; }
  void OpenMenu() { control_.Custom(15, 1, 0); }
  /// Opens an editor from the menu that has popped up, and leaves it with Cancel.
  void OpenEditor(const char* item) {
    platform_.RunUntilIdle();
    if (platform_.ChooseMenu(item) != Answer::kDone) throw std::logic_error("no such editor");
    platform_.Windows().back()->CloseWindow();
  }

  void RequestBlk(std::uint8_t blknum) override {
    std::array<std::uint8_t, 17> reply{blknum};
    const auto block = device_.Block(blknum);
    std::copy(block.begin(), block.end(), reply.begin() + 1);
    control_.FillDataBlk(reply);
  }
  void UploadSucceeded() override { arrived_ = true; }
  void DownLoadData(std::span<std::uint8_t> bdata) override {
    benchmark::DoNotOptimize(bdata.data());
    ++packets_;
    control_.TriggerUploadTimer();
  }

 private:
  HeadlessPlatform platform_;
  MainMenuCtrl control_{platform_, *this};
  BlockImage device_ = TriplexImage();
  bool arrived_ = false;
  int packets_ = 0;
};

}  // namespace

void RegisterTransfers() {
  RatioReporter::Keep(
      benchmark::RegisterBenchmark("download_225_blocks", [](benchmark::State& state) {
        QuickHost host;
        for (auto _ : state) host.Download();
      }));
  RatioReporter::Keep(
      benchmark::RegisterBenchmark("upload_all_blocks", [](benchmark::State& state) {
        QuickHost host;
        host.Download();
        for (auto _ : state) host.Upload();
      }));
  const auto on_control = [](const char* name, void (*step)(MainMenuCtrl&)) {
    RatioReporter::Keep(benchmark::RegisterBenchmark(name, [step](benchmark::State& state) {
      QuickHost host;
      host.Download();
      for (auto _ : state) step(host.Control());
    }));
  };
  on_control("list_all_settings",
             [](MainMenuCtrl& it) { benchmark::DoNotOptimize(it.Settings()); });
  on_control("look_up_first",
             [](MainMenuCtrl& it) { benchmark::DoNotOptimize(it.GetSetting("CamInfo(0).title")); });
  on_control("look_up_last", [](MainMenuCtrl& it) {
    benchmark::DoNotOptimize(it.GetSetting("AlmEmailNotify.BlkStrInit(225)"));
  });
  on_control("look_up_in_grid", [](MainMenuCtrl& it) {
    benchmark::DoNotOptimize(it.GetSetting("CamInfo(15).ActGrid(31)"));
  });
  on_control("find_unallowed",
             [](MainMenuCtrl& it) { benchmark::DoNotOptimize(it.SettingFindings()); });
  on_control("compare_alike", [](MainMenuCtrl& it) {
    static const BlockImage image = TriplexImage();
    benchmark::DoNotOptimize(it.DifferencesFrom(image.Bytes()));
  });
  // Against a file that differs in more than 1,000 settings; then with the editors of the present
  // settings made anew, as after every edit.
  static const BlockImage random = [] {
    ImageRandom engine(1);
    return RandomImage({6, 16, 225}, engine);
  }();
  on_control("review_1000", [](MainMenuCtrl& it) {
    if (it.Review(random.Bytes()).lines.size() < 1000) throw std::logic_error("too few differ");
  });
  on_control("review_1000_after_edit", [](MainMenuCtrl& it) {
    static int mode = 0;
    it.SetSetting("AlarmMode", std::to_string(mode = 1 - mode));
    benchmark::DoNotOptimize(it.Review(random.Bytes()));
  });
  constexpr std::pair<const char*, const char*> kEditors[] = {
      {"open_and_leave_alarms", "mnu_Alarm"}, {"open_and_leave_record", "mnu_Record"}};
  for (const auto& editor : kEditors) {
    const char* const item = editor.second;
    RatioReporter::Keep(benchmark::RegisterBenchmark(editor.first, [item](benchmark::State& state) {
      QuickHost host;
      host.Download();
      host.OpenMenu();
      for (auto _ : state) host.OpenEditor(item);
    }));
  }
}

}  // namespace quorvel::bench
