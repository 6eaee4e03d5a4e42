// The window: from its making to its first paint, and a text of 3 MB in the viewer. Asked: under
// 0.15 s each. Run it with QT_QPA_PLATFORM=offscreen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <array>
#include <cstddef>
#include <fstream>
#include <string>

#include "common/application_folder.h"
#include "common/code_page.h"
#include "desktop/look_of_window.h"
#include "desktop/main_window.h"
#include "support/temporary_folder.h"

namespace {

using namespace kelvo;
using desktop::MainWindow;
using testing::TemporaryFolder;

void startToFirstPaint(benchmark::State& state) {
    const TemporaryFolder folder;
    makeApplicationFolder(folder.path());
    for (auto _ : state) {
        MainWindow window(folder.path());
        if (!window.start()) state.SkipWithError("the window didn't start");
        QApplication::processEvents();
        window.repaint();
    }
}

void openThreeMegabytes(benchmark::State& state) {
    const TemporaryFolder folder;
    makeApplicationFolder(folder.path());
    std::string text;
    for (int line = 0; line < 50000; ++line)
        text += "* 인천No-3  37.35332567  126.32293454  30.1756  \r\n";
    // In turn, since opening the file that is open already asks first.
    const std::array<std::string, 2> paths{folder.file("data/one.dat"),
                                           folder.file("data/two.dat")};
    for (const std::string& path : paths)
        std::ofstream(path, std::ios::binary) << encodeCodePage(text);
    MainWindow window(folder.path());
    if (!window.start()) state.SkipWithError("the window didn't start");
    std::size_t turn = 0;
    for (auto _ : state) {
        window.openDataFile(paths[turn++ % paths.size()]);
        QApplication::processEvents();
    }
}

BENCHMARK(startToFirstPaint)->Unit(benchmark::kMillisecond);
BENCHMARK(openThreeMegabytes)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kelvo::desktop::setUpFonts(application);
    kelvo::desktop::setTheme(application, kelvo::desktop::Theme::Light);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
