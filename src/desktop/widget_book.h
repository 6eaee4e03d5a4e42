// One widget a control, by the control's name, kept in step with it both ways.
//
// The object name and the accessible description of a widget are the control's name, its label
// is the accessible name. Menus become actions under the same names.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "desktop/event_gate.h"
#include "desktop/qt_text.h"
#include "form/form.h"

namespace kelvo::desktop {

class PlotView;
class TextViewer;

class WidgetBook {
public:
    // Makes the widgets of all controls but the window itself; layouts put them into their
    // places. Menus go into the menu bar.
    WidgetBook(Form& form, EventGate& gate, QMenuBar& menuBar, QWidget* firstParent);

    // The widget of a control. A missing name is a mistake of the layout and throws.
    [[nodiscard]] QWidget* at(std::string_view name) const;
    [[nodiscard]] QWidget* find(std::string_view name) const;
    // The words beside a box, bound to it; null if it has none.
    [[nodiscard]] QWidget* labelOf(std::string_view name) const;
    [[nodiscard]] QWidget* unitOf(std::string_view name) const;
    [[nodiscard]] QAction* action(std::string_view name) const;

    [[nodiscard]] TextViewer* viewer() const { return viewer_; }
    [[nodiscard]] PlotView* plotView() const { return plotView_; }

    [[nodiscard]] Form& form() const { return form_; }
    [[nodiscard]] EventGate& gate() const { return gate_; }

    // Tells the person at the desk something that needs no answer.
    void say(const QString& text) const {
        if (onSay) onSay(text);
    }
    std::function<void(const QString& text)> onSay;

    // Hands text typed into the viewer to its control.
    void takeViewerText();

private:
    void make(Control& control);
    QWidget* makeTextBox(Control& control);
    QWidget* makeViewer(Control& control);
    QWidget* makeOption(Control& control);
    QWidget* makeCheck(Control& control);
    QWidget* makeCombo(Control& control);
    QWidget* makeButton(Control& control);
    QWidget* makeFrame(Control& control);
    QWidget* makeLabel(Control& control);
    QWidget* makePicture(Control& control);
    void makeMenu(Control& control);
    void makeMenuItem(Control& control);
    void makeMenuArray(Control& control);
    void enter(Control& control, QWidget* widget);
    void addWords(Control& control, QWidget* widget);

    Form& form_;
    EventGate& gate_;
    QMenuBar& menuBar_;
    QWidget* firstParent_;
    std::map<std::string, QWidget*, std::less<>> widgets_;
    std::map<std::string, QWidget*, std::less<>> labels_;
    std::map<std::string, QWidget*, std::less<>> units_;
    std::map<std::string, QMenu*, std::less<>> menus_;
    std::map<std::string, QAction*, std::less<>> actions_;
    TextViewer* viewer_ = nullptr;
    Control* viewerControl_ = nullptr;
    bool takingText_ = false;
    PlotView* plotView_ = nullptr;
};

}  // namespace kelvo::desktop
