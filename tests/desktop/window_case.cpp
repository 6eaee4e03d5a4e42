#include "desktop/window_case.h"

#include <QRegularExpression>
#include <fstream>
#include <iterator>

#include "common/application_folder.h"

namespace kelvo::testing {

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

std::string readBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void failOnWarnings() {
    // The platform without a screen says of some calls that it has none.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}

void WindowCase::init() {
    failOnWarnings();
    folder_ = std::make_unique<TemporaryFolder>();
    makeApplicationFolder(folder_->path());
    window_ = std::make_unique<desktop::MainWindow>(folder_->path());
    window_->onFaultReport = [this](const QString& report) { report_ = report; };
    window_->onSheets = [this](std::vector<desktop::Sheet> sheets) { sheets_ = std::move(sheets); };
    window_->book().onSay = [this](const QString& text) { said_ = text; };
    hands_ = std::make_unique<WindowHands>(*window_);
    report_.clear();
    said_.clear();
    sheets_.clear();
    QVERIFY(window_->start());
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void WindowCase::cleanup() {
    hands_.reset();
    window_.reset();
    folder_.reset();
    // A window that was closed has asked for the end of a program that doesn't run yet; until one
    // does, no box would wait for its answer.
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QApplication::exec();
}

QString WindowCase::focused() {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
}

QWidget* WindowCase::keyTarget() const {
    QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? window_.get() : widget;
}

}  // namespace kelvo::testing
