// Enter and Esc in a panel, where no widget in it has a use of its own for them.
#pragma once

#include <QWidget>
#include <functional>

namespace kelvo::desktop {

class PanelKeys final : public QObject {
public:
    using Action = std::function<void()>;

    // An empty action leaves its key alone.
    PanelKeys(QWidget& panel, Action enter, Action escape);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Action enter_;
    Action escape_;
};

}  // namespace kelvo::desktop
