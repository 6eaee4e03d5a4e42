#include "desktop/angle_reading.h"

#include <QLineEdit>
#include <array>
#include <optional>

#include "panels/angle_text.h"

namespace kelvo::desktop {

namespace {

struct AngleBox {
    std::string_view name;
    CoordinateForm form;
};

constexpr std::array<AngleBox, 8> kAngleBoxes{{{"txtWdegPhi", CoordinateForm::Degrees},
                                               {"txtWdegLam", CoordinateForm::Degrees},
                                               {"txtWdmsPhi", CoordinateForm::Dms},
                                               {"txtWdmsLam", CoordinateForm::Dms},
                                               {"txtBdegPhi", CoordinateForm::Degrees},
                                               {"txtBdegLam", CoordinateForm::Degrees},
                                               {"txtBdmsPhi", CoordinateForm::Dms},
                                               {"txtBdmsLam", CoordinateForm::Dms}}};

QString readingOfTyped(const std::string& typed, CoordinateForm form) {
    const std::optional<std::string> number = angleAsNumber(typed, form);
    if (!number) return qt(readingOf(typed, form));
    return qt(readingOf(*number, form)) +
           QStringLiteral(" (Enter를 누르면 %1로 바꿉니다)").arg(qt(*number));
}

}  // namespace

void sayReadingsOfAngles(WidgetBook& book) {
    for (const AngleBox& angle : kAngleBoxes) {
        auto* box = qobject_cast<QLineEdit*>(book.at(angle.name));
        const QString label = box->accessibleName();
        QObject::connect(box, &QLineEdit::textEdited, box,
                         [&book, label, form = angle.form](const QString& text) {
                             const QString read = readingOfTyped(text.toStdString(), form);
                             if (!text.trimmed().isEmpty()) {
                                 book.say(label + QStringLiteral(": ") + read);
                             }
                         });
    }
}

void takeAngleAsNumber(const WidgetBook& book, const QWidget* box) {
    for (const AngleBox& angle : kAngleBoxes) {
        if (book.at(angle.name) != box) continue;
        auto* typed = qobject_cast<QLineEdit*>(book.at(angle.name));
        if (typed->isReadOnly()) return;
        const auto number = angleAsNumber(typed->text().toStdString(), angle.form);
        if (number) typed->setText(qt(*number));
    }
}

}  // namespace kelvo::desktop
