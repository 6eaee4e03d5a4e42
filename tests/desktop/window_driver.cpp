// window_driver APP_FOLDER < script > transcript: the scripts of form_driver, driven through the
// real widgets. It prints what can be seen on a screen: of a dialog its kind and title, nothing
// of drawing calls, of raw printing and of started programs.
#include <QApplication>
#include <iostream>
#include <sstream>

#include "desktop/look_of_window.h"
#include "desktop/main_window.h"
#include "desktop/window_hands.h"
#include "drivers/form_values.h"
#include "support/escape.h"

namespace {

using namespace kelvo;
using namespace kelvo::testing;

void print(const std::string& line) {
    std::cout << line << '\n';
}

std::string rest(std::istringstream& words) {
    std::string text;
    if (words.peek() == ' ') words.get();
    std::getline(words, text);
    return text;
}

Answer answerNamed(const std::string& word) {
    if (word == "ok") return Answer::Ok;
    if (word == "yes") return Answer::Yes;
    if (word == "no") return Answer::No;
    return Answer::Cancel;
}

void obey(const std::string& line, desktop::MainWindow& window, WindowHands& hands) {
    std::istringstream words(line);
    std::string command;
    std::string name;
    words >> command;
    if (command.empty() || command[0] == '#' || command == "calls") return;
    if (command == "close") {
        window.close();
        return;
    }
    if (command == "dialog") {
        const std::string path = rest(words);
        hands.dialogResults.push_back(
            path == "cancel" ? std::nullopt : std::optional<std::string>(unescaped(path)));
        return;
    }
    if (command == "printfile") {
        const std::string path = unescaped(rest(words));
        window.gate().run([&] { window.program().PrintFile(path); });
        return;
    }
    words >> name;
    if (command == "type") hands.type(name, unescaped(rest(words)));
    if (command == "focus") hands.focus(name);
    if (command == "choose") hands.choose(name, std::stoi(rest(words)));
    if (command == "check") hands.check(name, rest(words) == "on");
    if (command == "answer") hands.answers.push_back(answerNamed(name));
    if (command == "click") {
        const auto target = indexedName(name);
        if (target && target->index) {
            hands.clickEntry(target->name, *target->index);
        } else {
            hands.click(name);
        }
    }
    if (command == "get") {
        // What was typed into the viewer last is handed over before anything looks at it.
        window.gate().run([&] { window.book().takeViewerText(); },
                          desktop::EventGate::Event::Typing);
        const auto value = valueOf(window.program(), name);
        print(value ? name + "=" + escaped(*value) : "error|nothing to get " + name);
    }
}

// No session expects one: its line makes the transcript differ. The platform without a screen says
// of some calls that it has none.
void printWarning(QtMsgType type, const QMessageLogContext& /*place*/, const QString& text) {
    const bool expected = text.startsWith(QLatin1String("This plugin does not support "));
    if (type != QtDebugMsg && type != QtInfoMsg && !expected) {
        print("warning|" + escaped(text.toStdString()));
    }
}

}  // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(printWarning);
    QApplication application(argc, argv);
    if (argc != 2) return 2;
    desktop::setUpFonts(application);
    desktop::setTheme(application, desktop::Theme::Light);

    desktop::MainWindow window(argv[1]);
    bool faulted = false;
    window.onFaultReport = [&faulted](const QString& report) {
        faulted = true;
        // The number stands in the report's first line: "오류 NUMBER".
        print("fault|" +
              report.section(QLatin1Char('\n'), 0, 0).section(QLatin1Char(' '), 1).toStdString() +
              "|");
    };
    window.onSheets = [](const std::vector<desktop::Sheet>&) {};
    WindowHands hands(window, print);
    if (window.start()) {
        QApplication::processEvents();
        std::string line;
        while (!window.gate().isClosed() && std::getline(std::cin, line)) {
            obey(line, window, hands);
            QApplication::processEvents();
        }
        if (window.gate().isClosed() && !faulted) print("end");
    }
    return faulted ? 1 : 0;
}
