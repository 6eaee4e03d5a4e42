// The signals by which the system or a person at a terminal ends a program: taken here so that
// there is time to put away what isn't saved.
#pragma once

#include <QObject>
#include <functional>

namespace kelvo::desktop {

// One at a time in a program. Signals that come while nobody listens end it as ever.
class EndSignals final : public QObject {
    Q_OBJECT

public:
    explicit EndSignals(QObject* parent = nullptr);
    ~EndSignals() override;

signals:
    // From the event loop, so that everything is allowed.
    void endWanted();

private:
    int wakeUp_[2] = {-1, -1};
};

}  // namespace kelvo::desktop
