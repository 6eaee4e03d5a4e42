#include "desktop/fault_report.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include "common/code_page.h"
#include "desktop/widget_book.h"

namespace kelvo::desktop {

QString writeRescueFile(const std::string& applicationFolder, const std::string& text) {
    const QDir folder(qt(applicationFolder));
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    // Two faults in one second don't overwrite each other.
    for (int attempt = 1; attempt < 100; ++attempt) {
        const QString path =
            folder.filePath(QStringLiteral("rescue-%1-%2.txt").arg(stamp).arg(attempt));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            if (QFile::exists(path)) continue;
            return {};
        }
        const std::string bytes = encodeCodePage(text);
        const auto size = static_cast<qint64>(bytes.size());
        const bool written = file.write(bytes.data(), size) == size && file.flush();
        return written ? path : QString();
    }
    return {};
}

QString faultReport(int number, const std::string& text, const QString& rescueFile,
                    bool rescueFailed) {
    QStringList lines;
    lines << QStringLiteral("오류 %1").arg(number) << qt(text) << QString()
          << QStringLiteral("프로그램을 끝냅니다.") << QString()
          << QStringLiteral(
                 "· 결과 파일(*.out, kelvo.det)은 오류가 나기 전까지 쓴 데까지 남아 있습니다.")
          << QStringLiteral(
                 "· 설정(kelvo.cfg, plot.cfg)은 마지막으로 저장한 그대로입니다. "
                 "그 뒤에 입력창에서 바꾼 값은 저장되지 않았습니다.");
    if (!rescueFile.isEmpty()) {
        lines << QStringLiteral("· 저장하지 않은 글은 다음 파일에 옮겨 두었습니다:")
              << QStringLiteral("  ") + QDir::toNativeSeparators(rescueFile);
    } else if (rescueFailed) {
        lines << QStringLiteral(
            "· 저장하지 않은 글을 옮겨 두지 못했습니다. "
            "이 창을 닫기 전에 글을 따로 복사하여 두십시오.");
    }
    return lines.join(QLatin1Char('\n'));
}

}  // namespace kelvo::desktop
