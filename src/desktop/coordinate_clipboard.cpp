#include "desktop/coordinate_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

namespace kelvo::desktop {

namespace {

// The boxes' texts without their blanks, tabs between them.
QString copied(const Form& form, const CoordinateGroup& group) {
    QStringList parts;
    for (const std::string& name : group.boxes) parts << qt(form.find(name)->text()).trimmed();
    return parts.join(QLatin1Char('\t'));
}

void paste(WidgetBook& book, const CoordinateGroup& group) {
    Form& form = book.form();
    const bool open =
        std::all_of(group.boxes.begin(), group.boxes.end(),
                    [&form](const std::string& name) { return form.find(name)->enabled(); });
    if (!open) {
        book.say(QStringLiteral("닫혀 있는 칸입니다. 먼저 이 칸의 단위를 고르십시오."));
        return;
    }
    const CoordinateTexts read =
        readCoordinates(QGuiApplication::clipboard()->text().toStdString(), group.form);
    if (read.texts.empty()) {
        book.say(qt(read.refusal));
        return;
    }
    book.gate().run([&] {
        for (std::size_t at = 0; at < read.texts.size(); ++at) {
            form.find(group.boxes[at])->typeText(read.texts[at]);
        }
    });
    QStringList shown;
    for (std::size_t at = 0; at < read.texts.size(); ++at) {
        const bool angle = at < 2 && group.form != CoordinateForm::Grid;
        shown << qt(angle ? readingOf(read.texts[at], group.form) : read.texts[at]);
    }
    QString said = QStringLiteral("붙여 넣음: ") + shown.join(QStringLiteral("  "));
    if (read.texts.size() < group.boxes.size()) {
        said += QStringLiteral(" (높이는 그대로 두었습니다)");
    }
    book.say(said);
}

// Little more than its words, in the size of the text around it.
class TightButton final : public QPushButton {
public:
    using QPushButton::QPushButton;

    [[nodiscard]] QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(text()) + 14, fontMetrics().height() + 4};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace

QWidget* clipboardButtons(WidgetBook& book, const CoordinateGroup& group) {
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    const auto button = [&](const QString& text, const QString& hint, const QString& name) {
        auto* made = new TightButton(text, buttons);
        made->setToolTip(hint);
        made->setObjectName(name + qt(group.boxes.front()));
        made->setFocusPolicy(Qt::ClickFocus);  // out of the way of the Tab key
        row->addWidget(made);
        return made;
    };
    auto* copy = button(QStringLiteral("복사"), QStringLiteral("이 좌표를 클립보드에 복사"),
                        QStringLiteral("copy "));
    auto* pasting =
        button(QStringLiteral("붙여넣기"), QStringLiteral("클립보드의 한 점을 여기에 입력"),
               QStringLiteral("paste "));
    QObject::connect(copy, &QPushButton::clicked, buttons, [&book, group] {
        const QString text = copied(book.form(), group);
        QGuiApplication::clipboard()->setText(text);
        book.say(QStringLiteral("복사함: ") + text);
    });
    QObject::connect(pasting, &QPushButton::clicked, buttons,
                     [&book, group] { paste(book, group); });
    return buttons;
}

}  // namespace kelvo::desktop
