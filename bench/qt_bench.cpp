// Opening a window of 16 rows and 13 columns beside ten lists, on a screen that is not there and
// without a toolkit, and the largest editors on that screen. Takes the options of the benchmark
// library.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "bench/ratio_reporter.h"
#include "bench/sample_images.h"
#include "quorvel/headless_platform.h"
#include "quorvel/qt_platform.h"
#include "quorvel/widgets.h"
#include "ui/context.h"
#include "ui/editing/editor.h"
#include "ui/editing/grid_editing.h"
#include "ui/menu/menu_editors.h"

namespace quorvel::bench {
namespace {

/// A grid of cameras by settings, and a list for each setting that has choices.
class LargeWindow : public Dialog {
 public:
  explicit LargeWindow(Platform& platform) : Dialog(platform, "frm_Large") {
    constexpr int kCameras = 16;
    constexpr int kColumns = 13;
    grid.SetSize(kCameras + 1, kColumns);
    grid.SetCell(0, 0, "Camera");
    Layout rows[2] = {Row(), Row()};
    for (int i = 0; i < lists.Count(); ++i) {
      std::vector<std::string> items;
      for (int item = 0; item <= 10 * i; ++item) items.push_back(std::to_string(item) + " seconds");
      editing.Bind(i + 1, lists(i), Choices(std::move(items)));
      layout_detail::Add(rows[i % 2], lists(i));
    }
    for (int column = 1; column < kColumns; ++column) {
      grid.SetCell(0, column, "Record setting " + std::to_string(column));
    }
    for (int row = 1; row <= kCameras; ++row) {
      grid.SetCell(row, 0, "Camera " + std::to_string(row));
      for (int column = 1; column < kColumns; ++column) {
        if (column > lists.Count()) grid.SetCell(row, column, "07:45");
        if (column <= lists.Count()) editing.SetValue(row, column, 0);
      }
    }
    editing.GoTo(1, 1);
    SetLayout(Column(grid, std::move(rows[0]), std::move(rows[1]), Row(Stretch(), ok)));
  }

  Grid grid{*this, "MSFG"};
  ControlArray<ListBox> lists{*this, "lst", 10};
  Button ok{*this, "cmd_OK", "OK"};
  GridEditing editing{grid};
};

void OpenHeadless(benchmark::State& state) {
  HeadlessPlatform platform;
  for (auto _ : state) {
    const auto window = std::make_shared<LargeWindow>(platform);
    window->Show();
  }
}

/// Opens what `make` makes, until everything is drawn.
template <class Make>
void OpenUntilDrawn(benchmark::State& state, Make make) {
  for (auto _ : state) {
    auto window = make();
    window->Show();
    QApplication::processEvents();
    state.PauseTiming();
    window.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    state.ResumeTiming();
  }
}

void OpenInQt(benchmark::State& state) {
  QtPlatform platform;
  OpenUntilDrawn(state, [&] { return std::make_shared<LargeWindow>(platform); });
}

/// The editor of a 16-camera triplex recorder.
void OpenEditorInQt(benchmark::State& state, const char* item) {
  QtPlatform platform;
  Context context(platform);
  context.InitGlobals();
  context.device.Adopt(TriplexImage(), ImageSource::kDevice);
  const MenuEditor& editor = *EditorOf(item, context.device.env.identity);
  OpenUntilDrawn(state, [&] { return editor.create(context); });
}
void OpenAlarmsInQt(benchmark::State& state) { OpenEditorInQt(state, "mnu_Alarm"); }
void OpenRecordInQt(benchmark::State& state) { OpenEditorInQt(state, "mnu_Record"); }

/// All cells and items anew in a window that is open, until everything is drawn.
void RefillInQt(benchmark::State& state) {
  QtPlatform platform;
  const auto window = std::make_shared<LargeWindow>(platform);
  window->Show();
  int turn = 0;
  for (auto _ : state) {
    const int item = ++turn % 2;
    for (ListBox& list : window->lists) list.SetItems({"Off", "On", std::to_string(turn)});
    for (int row = 1; row < window->grid.Rows(); ++row) {
      for (int column = 1; column <= window->lists.Count(); ++column) {
        window->editing.SetValue(row, column, item);
      }
    }
    QApplication::processEvents();
  }
}

int Run(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const struct {
    const char* name;
    void (*run)(benchmark::State&);
    double goal_microseconds;
  } all[] = {{"open_headless", OpenHeadless, 1000},
             {"open_in_qt", OpenInQt, 50000},
             {"refill_in_qt", RefillInQt, 50000},
             {"open_alarms_in_qt", OpenAlarmsInQt, 22000},
             {"open_record_in_qt", OpenRecordInQt, 25000}};
  for (const auto& it : all) {
    auto* const added = benchmark::RegisterBenchmark(it.name, it.run);
    RatioReporter::Keep(added->Repetitions(5)->ReportAggregatesOnly()->MinTime(0.1));
  }
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  std::printf("\n");
  for (const auto& it : all) reporter.PrintTime(it.name, it.goal_microseconds);
  return 0;
}

}  // namespace
}  // namespace quorvel::bench

int main(int argc, char** argv) { return quorvel::bench::Run(argc, argv); }
