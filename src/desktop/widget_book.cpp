#include "desktop/widget_book.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <stdexcept>

#include "desktop/background_picture.h"
#include "desktop/number_box.h"
#include "desktop/plot_view.h"
#include "desktop/text_viewer.h"

namespace kelvo::desktop {

namespace {

template <class Map>
auto findIn(const Map& map, std::string_view name) -> typename Map::mapped_type {
    const auto found = map.find(name);
    return found == map.end() ? nullptr : found->second;
}

// What every widget shows in the same way. True if that was all that the change meant.
bool showCommon(const Control& control, QWidget& widget, Property property) {
    if (property == Property::Enabled) {
        widget.setEnabled(control.enabled());
        return true;
    }
    if (property == Property::Visible) {
        widget.setVisible(control.visible());
        return true;
    }
    return property == Property::Place;
}

// A list that the wheel turns only when it has the focus: on its way down a panel it would change
// what it passes over.
class QuietList final : public QComboBox {
public:
    explicit QuietList(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

// A picture of arrows says more than the two signs of their captions.
QString shownCaption(const Control& control) {
    if (control.caption() == "->") return QStringLiteral("→");
    if (control.caption() == "<-") return QStringLiteral("←");
    return qt(control.caption());
}

}  // namespace

WidgetBook::WidgetBook(Form& form, EventGate& gate, QMenuBar& menuBar, QWidget* firstParent)
    : form_(form), gate_(gate), menuBar_(menuBar), firstParent_(firstParent) {
    for (Control& control : form.controls()) make(control);
}

QWidget* WidgetBook::at(std::string_view name) const {
    QWidget* widget = find(name);
    if (widget == nullptr) throw std::logic_error("no control " + std::string(name));
    return widget;
}

QWidget* WidgetBook::find(std::string_view name) const {
    return findIn(widgets_, name);
}
QWidget* WidgetBook::labelOf(std::string_view name) const {
    return findIn(labels_, name);
}
QWidget* WidgetBook::unitOf(std::string_view name) const {
    return findIn(units_, name);
}
QAction* WidgetBook::action(std::string_view name) const {
    return findIn(actions_, name);
}

void WidgetBook::make(Control& control) {
    switch (control.kind()) {
        case ControlKind::Window:
            return;
        case ControlKind::Menu:
            return makeMenu(control);
        case ControlKind::MenuItem:
            return makeMenuItem(control);
        case ControlKind::MenuArray:
            return makeMenuArray(control);
        case ControlKind::Frame:
            return enter(control, makeFrame(control));
        case ControlKind::TextBox:
            return enter(control,
                         control.design().multiLine ? makeViewer(control) : makeTextBox(control));
        case ControlKind::OptionButton:
            return enter(control, makeOption(control));
        case ControlKind::CheckBox:
            return enter(control, makeCheck(control));
        case ControlKind::ComboBox:
            return enter(control, makeCombo(control));
        case ControlKind::Button:
            return enter(control, makeButton(control));
        case ControlKind::Label:
            return enter(control, makeLabel(control));
        case ControlKind::Picture:
            return enter(control, makePicture(control));
    }
}

void WidgetBook::enter(Control& control, QWidget* widget) {
    // The viewer is a panel around the text box that bears the name.
    QWidget* named = widget == viewer_ ? &viewer_->editor() : widget;
    named->setObjectName(qt(control.name()));
    named->setAccessibleDescription(qt(control.name()));
    if (!control.label().empty()) addWords(control, widget);
    widget->setEnabled(control.enabled());
    if (!control.visible()) widget->hide();
    widgets_.emplace(control.name(), widget);
}

void WidgetBook::addWords(Control& control, QWidget* widget) {
    const QString words = qt(control.label());
    widget->setAccessibleName(words);
    auto* label = new QLabel(words, firstParent_);
    label->setBuddy(widget);
    labels_.emplace(control.name(), label);
    if (control.design().unit.empty()) return;
    units_.emplace(control.name(), new QLabel(qt(control.design().unit), firstParent_));
}

QWidget* WidgetBook::makeTextBox(Control& control) {
    auto* box = new NumberBox(firstParent_);
    box->setText(qt(control.text()));
    // Any change of the text, not only by keys: assistive technology sets it as a whole.
    QObject::connect(box, &QLineEdit::textChanged, box, [this, &control](const QString& text) {
        const std::string typed = text.toStdString();
        if (typed == control.text()) return;
        gate_.run([&] { control.typeText(typed); }, EventGate::Event::Typing);
    });
    // Asked late: handlers are hung on after the controls are made.
    box->setSelectsOnEntry([&control] { return static_cast<bool>(control.onFocus); });
    QObject::connect(box, &NumberBox::entered, box, [this, &control, box] {
        gate_.run([&] { control.enter(); }, EventGate::Event::Typing);
        if (control.onFocus) box->setSelection(control.selStart(), control.selLength());
    });
    control.watch([&control, box](Property property) {
        if (showCommon(control, *box, property)) return;
        if (property == Property::Text && box->text() != qt(control.text())) {
            box->setText(qt(control.text()));
            box->setCursorPosition(0);
        }
        // While a person types, the box itself knows best where its caret is.
        if (property == Property::Selection && control.selLength() > 0) {
            box->setSelection(control.selStart(), control.selLength());
        }
    });
    return box;
}

QWidget* WidgetBook::makeViewer(Control& control) {
    auto* viewer = new TextViewer(firstParent_);
    viewer->editor().setAccessibleName(QStringLiteral("글"));
    viewer_ = viewer;
    viewerControl_ = &control;
    QObject::connect(viewer, &TextViewer::edited, viewer,
                     [this] { gate_.run([this] { takeViewerText(); }, EventGate::Event::Typing); });
    control.watch([this, &control, viewer](Property property) {
        if (showCommon(control, *viewer, property)) return;
        if (property != Property::Text || takingText_) return;
        viewer->load(qt(form_.find(control.parent())->caption()), control.text());
    });
    return viewer;
}

void WidgetBook::takeViewerText() {
    if (viewer_ == nullptr || !viewer_->hasUntakenText()) return;
    viewer_->markTaken();
    takingText_ = true;
    viewerControl_->typeText(viewer_->text());
    takingText_ = false;
}

QWidget* WidgetBook::makeOption(Control& control) {
    auto* button = new QRadioButton(qt(control.caption()), firstParent_);
    // A group makes the arrow keys walk among its buttons.
    const QString groupName = QStringLiteral("group ") + qt(control.design().group);
    auto* group = firstParent_->findChild<QButtonGroup*>(groupName, Qt::FindDirectChildrenOnly);
    if (group == nullptr) {
        group = new QButtonGroup(firstParent_);
        group->setObjectName(groupName);
    }
    group->addButton(button);
    const auto show = [&control, button, group] {
        const QSignalBlocker blocker(button);
        // An exclusive group wouldn't let its last button go off.
        group->setExclusive(false);
        button->setChecked(control.value());
        group->setExclusive(true);
        // The Tab key comes to the button that is on; the arrow keys lead to the others.
        const bool oneIsOn = group->checkedButton() != nullptr;
        for (QAbstractButton* other : group->buttons()) {
            other->setFocusPolicy(!oneIsOn || other->isChecked() ? Qt::StrongFocus
                                                                 : Qt::ClickFocus);
        }
    };
    show();
    // The state, not the click: assistive technology changes it without one.
    QObject::connect(button, &QRadioButton::toggled, button, [this, &control, show](bool on) {
        if (!on || control.value()) return;
        gate_.run([&] { control.click(); });
        show();
    });
    control.watch([&control, button, show](Property property) {
        if (showCommon(control, *button, property)) return;
        if (property == Property::Value) show();
        if (property == Property::Caption) button->setText(qt(control.caption()));
    });
    return button;
}

QWidget* WidgetBook::makeCheck(Control& control) {
    auto* box = new QCheckBox(qt(control.caption()), firstParent_);
    box->setChecked(control.value());
    QObject::connect(box, &QCheckBox::toggled, box, [this, &control](bool on) {
        if (on == control.value()) return;
        gate_.run([&] { control.setChecked(on); });
    });
    control.watch([&control, box](Property property) {
        if (showCommon(control, *box, property)) return;
        if (property == Property::Value) box->setChecked(control.value());
        if (property == Property::Caption) box->setText(qt(control.caption()));
    });
    return box;
}

QWidget* WidgetBook::makeCombo(Control& control) {
    auto* combo = new QuietList(firstParent_);
    const auto fill = [&control, combo] {
        const QSignalBlocker blocker(combo);
        combo->clear();
        for (const std::string& item : control.items()) combo->addItem(qt(item));
        combo->setCurrentIndex(control.index());
    };
    fill();
    QObject::connect(combo, &QComboBox::currentIndexChanged, combo,
                     [this, &control, combo](int index) {
                         if (index == control.index()) return;
                         gate_.run([&] { control.choose(index); });
                         combo->setCurrentIndex(control.index());
                     });
    control.watch([&control, combo, fill](Property property) {
        if (showCommon(control, *combo, property)) return;
        if (property == Property::Items) fill();
        if (property == Property::Index) combo->setCurrentIndex(control.index());
    });
    return combo;
}

QWidget* WidgetBook::makeButton(Control& control) {
    auto* button = new QPushButton(shownCaption(control), firstParent_);
    button->setAutoDefault(true);
    // A breath of room around the caption.
    button->setMinimumWidth(button->sizeHint().width() + 12);
    if (shownCaption(control) != qt(control.caption())) {
        button->setAccessibleName(qt(control.caption()));
    }
    QObject::connect(button, &QPushButton::clicked, button,
                     [this, &control] { gate_.run([&] { control.click(); }); });
    control.watch([&control, button](Property property) {
        if (showCommon(control, *button, property)) return;
        if (property == Property::Caption) button->setText(shownCaption(control));
    });
    return button;
}

QWidget* WidgetBook::makeFrame(Control& control) {
    // The panels fill the window, the frames inside them are boxes with a caption.
    QWidget* frame = nullptr;
    if (control.parent() == "frmKelvo") {
        frame = new QWidget(firstParent_);
        frame->setAutoFillBackground(true);
        frame->setProperty("caption", qt(control.caption()));
    } else {
        frame = new QGroupBox(qt(control.caption()), firstParent_);
    }
    frame->setAccessibleName(qt(control.caption()));
    control.watch([&control, frame](Property property) {
        if (showCommon(control, *frame, property)) return;
        if (property != Property::Caption) return;
        frame->setAccessibleName(qt(control.caption()));
        if (auto* box = qobject_cast<QGroupBox*>(frame)) {
            box->setTitle(qt(control.caption()));
        } else {
            frame->setProperty("caption", qt(control.caption()));
        }
    });
    return frame;
}

QWidget* WidgetBook::makeLabel(Control& control) {
    auto* label = new QLabel(qt(control.caption()), firstParent_);
    control.watch([&control, label](Property property) {
        if (showCommon(control, *label, property)) return;
        if (property == Property::Caption) label->setText(qt(control.caption()));
    });
    return label;
}

QWidget* WidgetBook::makePicture(Control& control) {
    QWidget* picture = nullptr;
    if (control.name() == "pctPlot") {
        plotView_ = new PlotView(firstParent_);
        plotView_->setAccessibleName(QStringLiteral("그림"));
        picture = plotView_;
    } else {
        picture = new BackgroundPicture(firstParent_);
    }
    control.watch(
        [&control, picture](Property property) { showCommon(control, *picture, property); });
    return picture;
}

}  // namespace kelvo::desktop
