// Hands on a window: they type, click and answer boxes through the widgets, found by the names
// of the controls.
#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "desktop/main_window.h"

namespace kelvo::testing {

class WindowHands {
public:
    using Print = std::function<void(const std::string& line)>;

    explicit WindowHands(desktop::MainWindow& window, Print print = {});

    // A control that can't be reached with a mouse now is driven through the form.
    void type(const std::string& name, const std::string& text);
    void focus(const std::string& name);
    void click(const std::string& name);
    void clickEntry(const std::string& name, int index);
    void choose(const std::string& name, int index);
    void check(const std::string& name, bool on);

    // What the next boxes and dialogs are answered; with nothing queued they are cancelled.
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> dialogResults;

    // What was seen: lines as in a transcript; of a dialog only its kind and title.
    std::vector<std::string> lines;

    template <class Widget>
    [[nodiscard]] Widget* widget(const std::string& name) const {
        return qobject_cast<Widget*>(window_.book().at(name));
    }

private:
    [[nodiscard]] Control& control(const std::string& name) const;
    [[nodiscard]] QWidget* reachable(const std::string& name) const;
    void answerModal();
    void answerBox(QMessageBox& box);
    void answerDialog(QFileDialog& dialog);
    void tell(const std::string& line);

    desktop::MainWindow& window_;
    Print print_;
    QTimer watch_;
};

}  // namespace kelvo::testing
