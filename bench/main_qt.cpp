// The benchmarks' entry point: text is measured with real fonts, so a
// QGuiApplication on the offscreen platform lives for the whole run.
#include <benchmark/benchmark.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
