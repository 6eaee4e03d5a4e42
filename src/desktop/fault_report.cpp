#include "desktop/fault_report.h"

#include <QDir>
#include <QStringList>

#include "common/shown_line.h"
#include "desktop/widget_book.h"

namespace kelvo::desktop {

QString faultReport(int number, const std::string& text, const Rescued& rescued) {
    QStringList lines;
    lines << QStringLiteral("오류 %1").arg(number) << qt(shownLine(text)) << QString()
          << QStringLiteral("프로그램을 끝냅니다.") << QString()
          << QStringLiteral(
                 "· 결과 파일(*.out, kelvo.det)은 오류가 나기 전까지 쓴 데까지 남아 있습니다.")
          << QStringLiteral(
                 "· 설정(kelvo.cfg, plot.cfg)은 마지막으로 저장한 그대로입니다. "
                 "그 뒤에 입력창에서 바꾼 값은 저장되지 않았습니다.");
    if (!rescued.wasNeeded) return lines.join(QLatin1Char('\n'));
    if (!rescued.file.isEmpty()) {
        lines << QStringLiteral("· 저장하지 않은 글은 다음 파일에 옮겨 두었습니다:")
              << QStringLiteral("  ") + QDir::toNativeSeparators(rescued.file)
              << QStringLiteral("  같은 글이 클립보드에도 있습니다.");
    } else {
        lines << QStringLiteral(
            "· 저장하지 않은 글을 파일로 옮기지 못했습니다. 클립보드에 넣어 두었으니, "
            "이 창을 닫기 전에 다른 프로그램에 붙여 넣어 저장하십시오.");
    }
    return lines.join(QLatin1Char('\n'));
}

}  // namespace kelvo::desktop
