// The tests of the window are one program, since what takes time is reading Qt's headers and
// linking: `window_tests keyboard_test [OPTION...]` runs one class of them, with Qt Test's options.
#include "desktop/window_tests.h"

#include <QApplication>
#include <QTest>
#include <cstdio>
#include <string_view>

#include "desktop/look_of_window.h"

using namespace kelvo;

namespace {

struct WindowTests {
    std::string_view name;  // of the file
    std::unique_ptr<QObject> (*make)();
};

constexpr WindowTests kTests[] = {
    {"coordinates_test", testing::coordinatesTest},
    {"day_by_keyboard_test", testing::dayByKeyboardTest},
    {"help_file_test", testing::helpFileTest},
    {"keyboard_test", testing::keyboardTest},
    {"native_paths_test", testing::nativePathsTest},
    {"other_programs_test", testing::otherProgramsTest},
    {"panel_room_test", testing::panelRoomTest},
    {"plot_view_test", testing::plotViewTest},
    {"printed_sheet_test", testing::printedSheetTest},
    {"several_runs_test", testing::severalRunsTest},
    {"surface_test", testing::surfaceTest},
    {"text_on_view_test", testing::textOnViewTest},
    {"text_viewer_test", testing::textViewerTest},
    {"two_programs_test", testing::twoProgramsTest},
    {"unsaved_text_test", testing::unsavedTextTest},
    {"window_test", testing::windowTest},
};

}  // namespace

int main(int argc, char** argv) {
    for (const WindowTests& tests : kTests) {
        if (argc < 2 || tests.name != argv[1]) continue;
        argv[1] = argv[0];
        QApplication application(--argc, ++argv);
        desktop::setUpFonts(application);
        desktop::setTheme(application, desktop::Theme::Light);
        return QTest::qExec(tests.make().get(), argc, argv);
    }
    for (const WindowTests& tests : kTests) std::fprintf(stderr, "%s\n", tests.name.data());
    return 2;
}
