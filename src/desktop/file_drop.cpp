#include "desktop/file_drop.h"

#include <QDropEvent>
#include <QUrl>
#include <algorithm>
#include <array>

#include "desktop/native_paths.h"

namespace kelvo::desktop {

std::vector<std::string> openableFiles(const QMimeData& data) {
    constexpr std::array<const char*, 3> endings{".dat", ".out", ".det"};
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        std::string path = fileOfUrl(url);
        const QString shown = QString::fromStdString(path);
        const bool known =
            std::any_of(endings.begin(), endings.end(), [&shown](const char* ending) {
                return shown.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
            });
        if (!known) return {};
        paths.push_back(std::move(path));
    }
    return paths;
}

FileDrop::FileDrop(QWidget& window, Open open) : QObject(&window), open_(std::move(open)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    for (QWidget* inside : window.findChildren<QWidget*>()) {
        if (inside->acceptDrops()) inside->installEventFilter(this);
    }
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            break;
        default:
            return QObject::eventFilter(watched, event);
    }
    auto* drag = static_cast<QDropEvent*>(event);
    const std::vector<std::string> paths = openableFiles(*drag->mimeData());
    if (paths.empty()) return QObject::eventFilter(watched, event);
    drag->acceptProposedAction();
    if (event->type() == QEvent::Drop) open_(paths);
    return true;
}

}  // namespace kelvo::desktop
