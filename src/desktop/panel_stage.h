// The inside of the window: panels that replace each other over the background picture.
//
// What stands on the stage are layers: the one-point panel; the text panel with the plot in the
// place of its text and the plot's settings beside it; the print mode panel. The layer shown last
// is on top and has the keyboard. The layers that it covers are hidden, so that no key reaches
// them, although their controls stay visible; they come back, focus included, when it goes.
#pragma once

#include <QPointer>
#include <QWidget>
#include <array>
#include <vector>

#include "desktop/panel_layouts.h"

namespace kelvo::desktop {

class PanelStage final : public QWidget {
public:
    PanelStage() = default;

    // All widgets of the book are on the stage already, or in a panel that is.
    void setUp(const WidgetBook& book, const FilePanel& filePanel);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Layer { None, OnePoint, File, PrintMode };

    struct Part {
        Layer layer;
        const Control* control;
        QWidget* widget;
    };

    // Shows the layer on top and hides the others; `shown` is the one that has just been shown.
    void settle(Layer shown);
    [[nodiscard]] Layer top() const { return order_.empty() ? Layer::None : order_.back(); }
    [[nodiscard]] bool isWanted(Layer layer) const;
    [[nodiscard]] bool hasFocusIn(Layer layer) const;
    void keepFocusOf(Layer layer);
    void giveFocusTo(Layer layer);
    void arrange();
    [[nodiscard]] QRect plotArea() const;

    QWidget* background_ = nullptr;
    QWidget* onePoint_ = nullptr;
    QWidget* plot_ = nullptr;
    QWidget* plotSettings_ = nullptr;
    QWidget* printMode_ = nullptr;
    QWidget* text_ = nullptr;
    FilePanel file_;

    std::vector<Part> parts_;
    std::vector<Layer> order_;  // the wanted ones, the topmost last
    std::array<QPointer<QWidget>, 4> focus_;
    bool settling_ = false;
};

}  // namespace kelvo::desktop
