// The classes of tests that window_tests runs, one at each start.
#pragma once

#include <QObject>
#include <memory>

namespace kelvo::testing {

[[nodiscard]] std::unique_ptr<QObject> coordinatesTest();
[[nodiscard]] std::unique_ptr<QObject> dayByKeyboardTest();
[[nodiscard]] std::unique_ptr<QObject> helpFileTest();
[[nodiscard]] std::unique_ptr<QObject> keyboardTest();
[[nodiscard]] std::unique_ptr<QObject> nativePathsTest();
[[nodiscard]] std::unique_ptr<QObject> otherProgramsTest();
[[nodiscard]] std::unique_ptr<QObject> panelRoomTest();
[[nodiscard]] std::unique_ptr<QObject> plotViewTest();
[[nodiscard]] std::unique_ptr<QObject> printedSheetTest();
[[nodiscard]] std::unique_ptr<QObject> severalRunsTest();
[[nodiscard]] std::unique_ptr<QObject> surfaceTest();
[[nodiscard]] std::unique_ptr<QObject> textOnViewTest();
[[nodiscard]] std::unique_ptr<QObject> textViewerTest();
[[nodiscard]] std::unique_ptr<QObject> twoProgramsTest();
[[nodiscard]] std::unique_ptr<QObject> unsavedTextTest();
[[nodiscard]] std::unique_ptr<QObject> windowTest();

}  // namespace kelvo::testing
