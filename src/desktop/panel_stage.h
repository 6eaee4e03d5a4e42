// The inside of the window: panels that replace each other over the background picture.
//
// A panel fills the stage, the one shown last on top; the plot stands in the place of the text
// it belongs to, its settings beside it; the print mode panel lies in the middle.
#pragma once

#include <QWidget>

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
    void arrange();
    [[nodiscard]] QRect plotArea() const;

    QWidget* background_ = nullptr;
    QWidget* onePoint_ = nullptr;
    QWidget* plot_ = nullptr;
    QWidget* plotSettings_ = nullptr;
    QWidget* printMode_ = nullptr;
    FilePanel file_;
};

}  // namespace kelvo::desktop
