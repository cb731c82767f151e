// What the open window costs a Hyper-Drive run: the same run headless, and
// live from the window with the bankroll screen showing its figures as it
// goes. The window should take no more than a few percent.
#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "sim/table.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/desktop_front_end.h"
#include "ui/main_window.h"
#include "ui/picture_dialogs.h"
#include "ui/sound_board.h"

namespace {

constexpr int kRolls = 1'000'000;

class QuietSink : public SoundSink {
 public:
  void Play(const QString&, double) override {}
};

void HyperDriveHeadless(benchmark::State& state) {
  SilentFrontEnd screen;
  Table table(screen);
  table.StartFresh();
  for (auto _ : state) {
    table.New(false);
    table.HyperDrive(kRolls);
  }
  state.counters["rolls/s"] = benchmark::Counter(static_cast<double>(kRolls) * state.iterations(),
                                                 benchmark::Counter::kIsRate);
}

void HyperDriveFromTheWindow(benchmark::State& state) {
  QTemporaryDir folder;
  PictureDialogs dialogs;
  QuietSink sink;
  SoundBoard sounds(sink);
  DesktopFrontEnd frontEnd(dialogs, sounds);
  Table table(frontEnd);
  table.StartFresh();
  MainWindow window(table, frontEnd, dialogs, sounds, {folder.path(), {}});
  window.show();
  window.Action(MenuCommand::Bankroll)->trigger();
  for (auto _ : state) {
    table.New(false);
    QSignalSpy finished(&window, &MainWindow::RunFinished);
    emit window.Bankroll()->StartRequested(kRolls);
    finished.wait(600'000);
  }
  state.counters["rolls/s"] = benchmark::Counter(static_cast<double>(kRolls) * state.iterations(),
                                                 benchmark::Counter::kIsRate);
}

BENCHMARK(HyperDriveHeadless)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(HyperDriveFromTheWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
