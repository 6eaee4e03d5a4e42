#include "desktop/screen_services.h"

#include <QApplication>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QWindow>
#include <algorithm>
#include <array>

#include "common/shown_line.h"
#include "desktop/paper_surface.h"
#include "desktop/twips.h"
#include "desktop/widget_book.h"

namespace kelvo::desktop {

namespace {

// While a box waits for its answer the pointer is free.
class Waiting {
public:
    Waiting() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
};

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

// The toolkit puts the program's name on a window whose title is empty. Only the window of the
// display gets the blank: to its user the box stays one without a title.
class EmptyTitle final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* box = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && box != nullptr && box->windowHandle() != nullptr) {
            box->windowHandle()->setTitle(QStringLiteral(" "));
        }
        return false;
    }
};

}  // namespace

Answer ScreenMessages::show(const Message& message) {
    if (parent_.nobodyAnswers) return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    const Waiting waiting;
    const QString text = boxText(message.text);
    QMessageBox box(iconOf(message.icon), qt(message.title), text, buttonsOf(message.buttons),
                    parent_.window);
    box.setTextFormat(Qt::PlainText);
    // Words of our own: the translation of the standard buttons may not be installed.
    constexpr std::array<std::pair<QMessageBox::StandardButton, const char*>, 4> words{{
        {QMessageBox::Ok, "확인(&O)"},
        {QMessageBox::Yes, "예(&Y)"},
        {QMessageBox::No, "아니요(&N)"},
        {QMessageBox::Cancel, "취소(&C)"},
    }};
    for (const auto& [button, word] : words) {
        if (auto* shown = box.button(button)) shown->setText(QString::fromUtf8(word));
    }
    if (message.title.empty()) box.installEventFilter(new EmptyTitle(&box));
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Ok:
            return Answer::Ok;
        default:
            return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
}

QString boxText(const std::string& text) {
    QStringList lines;
    for (const QString& line : qt(text).split(QStringLiteral("\r\n")))
        lines << qt(shownLine(line.toStdString()));
    return lines.join(QLatin1Char('\n'));
}

QStringList qtFilters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = qt(filter).split(QLatin1Char('|'));
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        QString name = parts[at];
        name.truncate(name.indexOf(QLatin1Char('(')));
        QString pattern = parts[at + 1];
        if (pattern == QLatin1String("*.*")) {
            pattern = QStringLiteral("*");
        } else if (pattern.toUpper() != pattern) {
            pattern += QLatin1Char(' ') + pattern.toUpper();  // names may be told apart by case
        }
        filters << name.trimmed() + QStringLiteral(" (") + pattern + QLatin1Char(')');
    }
    return filters;
}

std::optional<std::string> ScreenDialogs::show(DialogKind kind,
                                               const DialogProperties& properties) {
    if (kind == DialogKind::Printer) return showPrinterDialog();
    if (!chosen_.empty()) {
        std::string path = chosen_.front();
        chosen_.pop_front();
        return path;
    }
    if (parent_.nobodyAnswers) return std::nullopt;
    const Waiting waiting;
    QFileDialog dialog(parent_.window, qt(properties.title));
    const bool saving = kind == DialogKind::Save;
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // A new file is named in an open dialog, and the questions about it are asked afterwards.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = qtFilters(properties.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        const int place = std::max(1, properties.filterIndex) - 1;
        dialog.selectNameFilter(filters.value(place, filters.first()));
    }
    const QString name = qt(properties.fileName);
    const QFileInfo named(name);
    if (named.isAbsolute()) {
        dialog.setDirectory(named.absolutePath());
    } else if (!properties.folder.empty()) {
        dialog.setDirectory(qt(properties.folder));
    }
    const bool isPattern = name.contains(QLatin1Char('*'));
    if (!name.isEmpty() && !isPattern) dialog.selectFile(named.fileName());
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    // A proposed ending waits for the name to be typed in front of it.
    if (edit != nullptr && name.startsWith(QLatin1Char('.'))) {
        edit->setText(name);
        QMetaObject::invokeMethod(
            edit, [edit] { edit->home(false); }, Qt::QueuedConnection);
    }
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    QString chosen = dialog.selectedFiles().value(0);
    // What stands in the box counts; the list may still mark the proposed file (without focus in
    // the box, as with assistive technology, the dialog doesn't take that mark away).
    if (edit != nullptr && !edit->text().isEmpty()) {
        chosen = QDir(dialog.directory()).absoluteFilePath(edit->text());
    }
    return QDir::toNativeSeparators(QDir::cleanPath(chosen)).toStdString();
}

std::optional<std::string> ScreenDialogs::showPrinterDialog() {
    if (parent_.nobodyAnswers) return std::nullopt;
    const Waiting waiting;
    QPrintDialog dialog(&printer_(), parent_.window);
    // Nothing is printed here: the printer is chosen.
    dialog.setWindowTitle(QStringLiteral("Printer설정"));
    for (const QDialogButtonBox* box : dialog.findChildren<QDialogButtonBox*>()) {
        for (QAbstractButton* button : box->buttons()) {
            if (box->buttonRole(button) == QDialogButtonBox::AcceptRole) {
                button->setText(QStringLiteral("확인(&O)"));
            }
        }
    }
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return printer_().printerName().toStdString();
}

void DetachedPrograms::start(const std::string& command) {
    QStringList words = QProcess::splitCommand(qt(command));
    if (words.isEmpty()) raise(Fault::FileNotFound);
    const QString program = words.takeFirst();
    if (!QProcess::startDetached(program, words)) raise(Fault::FileNotFound, command);
}

void RawPrintService::print(const std::string& path) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("lp"));
    const QStringList arguments{QStringLiteral("-o"), QStringLiteral("raw"), QStringLiteral("--"),
                                qt(path)};
    if (program.isEmpty() || !QProcess::startDetached(program, arguments)) {
        tell_(
            QStringLiteral("인쇄하지 못했습니다: 인쇄 프로그램 lp가 없습니다 "
                           "(꾸러미 cups-client를 설치하십시오)."));
    }
}

void ScreenBeeper::beep() {
    QApplication::beep();
}

std::string LocaleClock::date() {
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string LocaleClock::time() {
    return QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat).toStdString();
}

ScreenSize PrimaryScreen::size() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return {15360, 11520};
    const QSize pixels = screen->availableGeometry().size();
    return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

void OverridePointer::setBusy(bool busy) {
    if (busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
}

void WindowEnd::end() {
    ended_ = true;
}

}  // namespace kelvo::desktop
