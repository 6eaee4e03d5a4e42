#include "desktop/window_hands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QTest>
#include <stdexcept>

#include "desktop/text_viewer.h"
#include "support/escape.h"

namespace kelvo::testing {

namespace {

// The test module can't type Hangul key by key; this is how an input method hands over a word.
void commit(QWidget* widget, const std::string& text) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromStdString(text));
    QApplication::sendEvent(widget, &event);
}

const char* nameOf(QMessageBox::Icon icon) {
    switch (icon) {
        case QMessageBox::Information:
            return "information";
        case QMessageBox::Question:
            return "question";
        case QMessageBox::Warning:
            return "warning";
        default:
            return "none";
    }
}

}  // namespace

WindowHands::WindowHands(desktop::MainWindow& window, Print print)
    : window_(window), print_(std::move(print)) {
    watch_.setInterval(2);
    QObject::connect(&watch_, &QTimer::timeout, [this] { answerModal(); });
    watch_.start();
}

void WindowHands::tell(const std::string& line) {
    lines.push_back(line);
    if (print_) print_(line);
}

Control& WindowHands::control(const std::string& name) const {
    Control* found = window_.program().form().find(name);
    if (found == nullptr) throw std::invalid_argument("no control " + name);
    return *found;
}

QWidget* WindowHands::reachable(const std::string& name) const {
    QWidget* widget = window_.book().find(name);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) return nullptr;
    return widget;
}

void WindowHands::type(const std::string& name, const std::string& text) {
    QWidget* widget = reachable(name);
    if (auto* box = qobject_cast<QLineEdit*>(widget)) {
        box->setFocus(Qt::TabFocusReason);
        box->selectAll();
        if (text.empty()) {
            QTest::keyClick(box, Qt::Key_Delete);
        } else {
            commit(box, text);
        }
        return;
    }
    if (auto* viewer = qobject_cast<desktop::TextViewer*>(widget)) {
        viewer->editor().setFocus();
        viewer->editor().selectAll();
        QString typed = QString::fromStdString(text);
        typed.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        viewer->editor().insertPlainText(typed);
        return;
    }
    window_.gate().run([&] { control(name).typeText(text); }, desktop::EventGate::Event::Typing);
}

void WindowHands::focus(const std::string& name) {
    if (QWidget* widget = reachable(name)) {
        widget->clearFocus();
        widget->setFocus(Qt::TabFocusReason);
        return;
    }
    window_.gate().run([&] { control(name).enter(); }, desktop::EventGate::Event::Typing);
}

void WindowHands::click(const std::string& name) {
    if (QAction* action = window_.book().action(name)) {
        if (action->isEnabled()) return action->trigger();
    }
    if (auto* button = qobject_cast<QAbstractButton*>(reachable(name))) {
        return button->click();
    }
    window_.gate().run([&] { control(name).click(); });
}

void WindowHands::clickEntry(const std::string& name, int index) {
    const QString action = QStringLiteral("%1(%2)").arg(QString::fromStdString(name)).arg(index);
    for (QAction* entry : window_.book().action(control(name).parent())->menu()->actions()) {
        if (entry->objectName() != action) continue;
        if (entry->isEnabled() && !entry->isSeparator()) return entry->trigger();
    }
    window_.gate().run([&] { control(name).clickEntry(index); });
}

void WindowHands::choose(const std::string& name, int index) {
    auto* combo = qobject_cast<QComboBox*>(reachable(name));
    if (combo == nullptr) {
        window_.gate().run([&] { control(name).choose(index); });
        return;
    }
    // With a first letter or the arrows every entry on the way would be chosen, too.
    combo->setFocus();
    combo->setCurrentIndex(index);
}

void WindowHands::check(const std::string& name, bool on) {
    auto* box = qobject_cast<QAbstractButton*>(reachable(name));
    if (box == nullptr) {
        window_.gate().run([&] { control(name).setChecked(on); });
    } else if (box->isChecked() != on) {
        box->click();
    }
}

void WindowHands::answerModal() {
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) return answerBox(*box);
    if (auto* dialog = qobject_cast<QFileDialog*>(modal)) return answerDialog(*dialog);
    if (auto* dialog = qobject_cast<QPrintDialog*>(modal)) {
        tell("dialog|printer|");
        std::optional<std::string> result;
        if (!dialogResults.empty()) {
            result = dialogResults.front();
            dialogResults.pop_front();
        }
        dialog->done(result ? QDialog::Accepted : QDialog::Rejected);
    }
}

void WindowHands::answerBox(QMessageBox& box) {
    const QMessageBox::StandardButtons offered = box.standardButtons();
    const bool yesNo = (offered & QMessageBox::Yes) != 0;
    const bool cancel = (offered & QMessageBox::Cancel) != 0;
    QString text = box.text();
    text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    tell("message|" + escaped(box.windowTitle().toStdString()) + "|" + nameOf(box.icon()) + "|" +
         (yesNo    ? "yesnocancel"
          : cancel ? "okcancel"
                   : "ok") +
         "|" + escaped(text.toStdString()));
    QMessageBox::StandardButton pressed = cancel ? QMessageBox::Cancel : QMessageBox::Ok;
    if (cancel && !answers.empty()) {
        switch (answers.front()) {
            case Answer::Ok:
                pressed = QMessageBox::Ok;
                break;
            case Answer::Yes:
                pressed = QMessageBox::Yes;
                break;
            case Answer::No:
                pressed = QMessageBox::No;
                break;
            case Answer::Cancel:
                break;
        }
        answers.pop_front();
    }
    if (auto* button = box.button(pressed)) button->click();
}

void WindowHands::answerDialog(QFileDialog& dialog) {
    const bool saving = dialog.acceptMode() == QFileDialog::AcceptSave;
    tell(std::string("dialog|") + (saving ? "save" : "open") + "|" +
         escaped(dialog.windowTitle().toStdString()));
    std::optional<std::string> result;
    if (!dialogResults.empty()) {
        result = dialogResults.front();
        dialogResults.pop_front();
    }
    if (!result) return dialog.reject();
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(QString::fromStdString(*result));
    QMetaObject::invokeMethod(&dialog, "accept");
}

}  // namespace kelvo::testing
