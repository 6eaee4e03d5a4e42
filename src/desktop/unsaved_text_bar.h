// The offer, above the panels, to bring back a text that was unsaved when a program ended. It
// stands until it is answered and keeps nobody from working.
#pragma once

#include <QLabel>
#include <QToolBar>
#include <functional>

#include "form/services.h"

namespace kelvo::desktop {

class UnsavedTextBar final : public QToolBar {
    Q_OBJECT

public:
    explicit UnsavedTextBar(QWidget* parent);

    // Shows the offer of this text, or goes away if there is none.
    void offer(const std::optional<UnsavedText>& text);

signals:
    void bringBack();
    void putAside();

private:
    QLabel* words_;
};

}  // namespace kelvo::desktop
