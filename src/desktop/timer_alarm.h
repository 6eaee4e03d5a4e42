// The form's alarm on the event loop of the screen.
#pragma once

#include <QTimer>
#include <functional>
#include <utility>

#include "desktop/event_gate.h"
#include "form/services.h"

namespace kelvo::desktop {

class TimerAlarm final : public Alarm {
public:
    explicit TimerAlarm(EventGate& gate) {
        timer_.setSingleShot(true);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, &gate] {
            gate.run([this] { std::exchange(ring_, nullptr)(); }, EventGate::Event::Typing);
        });
    }

    void set(std::chrono::milliseconds later, std::function<void()> ring) override {
        ring_ = std::move(ring);
        timer_.start(later);
    }
    void cancel() override { timer_.stop(); }

private:
    QTimer timer_;
    std::function<void()> ring_;
};

}  // namespace kelvo::desktop
