#include "desktop/several_runs.h"

#include <QFileInfo>
#include <QProgressDialog>

namespace kelvo::desktop {

QString SeveralRuns::convertOne(const std::string& path) {
    const QString name = QFileInfo(qt(path)).fileName();
    if (!QFileInfo(qt(path)).isReadable() || !open_(path)) {
        return name + QStringLiteral(": 열지 못했습니다");
    }
    book_.gate().run([this] { program_.form().find("mnuBatchGo")->click(); });
    const auto points = program_.state().conversion.points.PointCount;
    const auto messages = program_.status().messages().size();
    return QStringLiteral("%1: %2점, 알림 %3개").arg(name).arg(points).arg(messages);
}

QStringList SeveralRuns::convert(const std::vector<std::string>& paths, QWidget* parent) {
    QProgressDialog progress(QString(), QStringLiteral("취소"), 0, static_cast<int>(paths.size()),
                             parent);
    progress.setObjectName(QStringLiteral("severalRuns"));
    progress.setWindowTitle(QStringLiteral("여러 데이터 파일 변환"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    QStringList done;
    for (const std::string& path : paths) {
        progress.setLabelText(QFileInfo(qt(path)).fileName());
        progress.setValue(static_cast<int>(done.size()));
        if (onProgress) onProgress(static_cast<int>(done.size()));
        if (progress.wasCanceled() || book_.gate().isClosed()) break;
        done << convertOne(path);
    }
    return done;
}

}  // namespace kelvo::desktop
