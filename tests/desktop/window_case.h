// A window on a folder of its own, made anew for each test, and hands to work it with.
#pragma once

#include <QString>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "desktop/main_window.h"
#include "desktop/text_viewer.h"
#include "desktop/window_hands.h"
#include "support/temporary_folder.h"

namespace kelvo::testing {

[[nodiscard]] QString qtText(const std::string& text);
[[nodiscard]] std::string readBytes(const std::string& path);

// A warning of the toolkit fails the test that runs now. Called by init() of every class of tests.
void failOnWarnings();

// The base of a class of tests. A warning of the toolkit fails the test that it comes in.
class WindowCase : public QObject {
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    [[nodiscard]] Form& form() const { return window_->program().form(); }
    [[nodiscard]] desktop::TextViewer& viewer() const { return *window_->book().viewer(); }

    // The name of the widget that has the keyboard; empty if none has.
    [[nodiscard]] static QString focused();
    // What gets a key that is pressed now.
    [[nodiscard]] QWidget* keyTarget() const;

    std::unique_ptr<TemporaryFolder> folder_;
    std::unique_ptr<desktop::MainWindow> window_;
    std::unique_ptr<WindowHands> hands_;
    QString report_;  // of a fault
    QString said_;    // without a box
    std::vector<desktop::Sheet> sheets_;
};

}  // namespace kelvo::testing
