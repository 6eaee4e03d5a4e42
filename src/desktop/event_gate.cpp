#include "desktop/event_gate.h"

#include <QCursor>
#include <QGuiApplication>
#include <exception>
#include <new>

namespace kelvo::desktop {

namespace {

constexpr int kOutOfMemory = 7;

}  // namespace

void EventGate::run(const Work& work, Event event) {
    if (closed_) return;
    ++depth_;
    const bool outermost = depth_ == 1;
    if (outermost) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        if (before) guarded([&] { before(event); });
    }
    guarded(work);
    if (outermost) {
        while (QGuiApplication::overrideCursor() != nullptr) {
            QGuiApplication::restoreOverrideCursor();
        }
        if (after) guarded([&] { after(event); });
    }
    --depth_;
}

void EventGate::guarded(const Work& work) {
    if (closed_) return;
    try {
        work();
    } catch (const RuntimeFault& fault) {
        closed_ = true;
        onFault(fault.number(), fault.text());
    } catch (const std::bad_alloc&) {
        closed_ = true;
        onFault(kOutOfMemory, "메모리가 모자랍니다");
    } catch (const std::exception& failure) {
        closed_ = true;
        onFault(0, failure.what());
    }
}

}  // namespace kelvo::desktop
