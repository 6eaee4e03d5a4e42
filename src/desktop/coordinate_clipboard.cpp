#include "desktop/coordinate_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QToolButton>
#include <algorithm>

namespace kelvo::desktop {

QString coordinatesOf(const std::vector<std::string>& texts) {
    QStringList parts;
    for (const std::string& text : texts) parts << qt(text).trimmed();
    return parts.join(QLatin1Char('\t'));
}

std::vector<std::string> coordinatesIn(const QString& text, std::size_t most) {
    static const QRegularExpression parting(QStringLiteral("[\\s,;]+"));
    static const QRegularExpression number(
        QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?$"));
    std::vector<std::string> found;
    for (const QString& part : text.split(parting, Qt::SkipEmptyParts)) {
        if (found.size() == most) break;
        if (number.match(part).hasMatch()) found.push_back(part.toStdString());
    }
    return found;
}

QWidget* clipboardButtons(WidgetBook& book, const std::vector<std::string>& boxes) {
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    const auto button = [&](const QString& text, const QString& hint, const QString& name) {
        auto* made = new QToolButton(buttons);
        made->setText(text);
        made->setToolTip(hint);
        made->setAutoRaise(true);
        QFont small = made->font();
        small.setPointSizeF(small.pointSizeF() * 0.88);
        made->setFont(small);
        made->setObjectName(name + qt(boxes.front()));
        made->setFocusPolicy(Qt::ClickFocus);  // out of the way of the Tab key
        row->addWidget(made);
        return made;
    };
    auto* copy = button(QStringLiteral("복사"), QStringLiteral("이 좌표를 클립보드에 복사"),
                        QStringLiteral("copy "));
    auto* paste = button(QStringLiteral("붙여넣기"),
                         QStringLiteral("클립보드의 좌표를 여기에 입력"), QStringLiteral("paste "));
    Form& form = book.form();
    QObject::connect(copy, &QToolButton::clicked, buttons, [&form, boxes] {
        std::vector<std::string> texts;
        texts.reserve(boxes.size());
        for (const std::string& name : boxes) texts.push_back(form.find(name)->text());
        QGuiApplication::clipboard()->setText(coordinatesOf(texts));
    });
    QObject::connect(paste, &QToolButton::clicked, buttons, [&book, &form, boxes] {
        const bool open = std::all_of(boxes.begin(), boxes.end(), [&form](const std::string& name) {
            return form.find(name)->enabled();
        });
        if (!open) return;
        const auto values = coordinatesIn(QGuiApplication::clipboard()->text(), boxes.size());
        book.gate().run([&] {
            for (std::size_t at = 0; at < values.size(); ++at) {
                form.find(boxes[at])->typeText(values[at]);
            }
        });
    });
    return buttons;
}

}  // namespace kelvo::desktop
