#include "desktop/point_export.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <array>

#include "batch/run_batch.h"
#include "batch/run_files.h"
#include "common/application_folder.h"
#include "common/run_time_fault.h"
#include "desktop/native_paths.h"
#include "desktop/widget_book.h"
#include "exchange/load_point_files.h"
#include "exchange/table_export.h"

namespace kelvo::desktop {

namespace {

QString filterOf(const FormatLimits& format) {
    return QStringLiteral("%1 (*.%2)")
        .arg(qt(std::string(format.name)), qt(std::string(format.ending)));
}

// Where the points belong, as the file itself says it or not.
QString systemIn(VectorFormat format) {
    if (format == VectorFormat::Dxf) return QStringLiteral("TM 좌표, 좌표계 정보는 없음");
    if (!limitsOf(format).hasGeometry) return QStringLiteral("모든 좌표계의 칸");
    return QStringLiteral("WGS84 경위도");
}

QString chosenPath(QWidget* parent, const QString& dataFile) {
    QFileDialog dialog(parent, QStringLiteral("내보내기"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList filters;
    for (const FormatLimits& format : vectorFormats()) filters << filterOf(format);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(qt(std::string(vectorFormats().front().ending)));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& filter) {
                         for (const FormatLimits& format : vectorFormats()) {
                             if (filter == filterOf(format))
                                 dialog.setDefaultSuffix(qt(std::string(format.ending)));
                         }
                     });
    const QFileInfo data(dataFile);
    dialog.setDirectory(data.absolutePath());
    dialog.selectFile(data.completeBaseName());
    if (dialog.exec() != QDialog::Accepted) return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

std::array<std::string, 4> filesOfRun(const ProgramState& state) {
    const std::string& data = state.RecentFiles[1];
    return {data, resultFileOf(data), state.inApplicationFolder(kDetailFile), state.CorPath};
}

}  // namespace

void PointExport::warn(const std::string& sentence) {
    messages_.show({.text = sentence, .icon = Icon::Warning, .buttons = Buttons::Ok, .title = {}});
}

void PointExport::ask(QWidget* parent) {
    if (program_.state().conversion.points.PointCount == 0)
        return warn("내보낼 점이 없습니다. 먼저 데이터 파일을 변환하십시오.");
    try {
        static_cast<void>(loadPointFiles());
    } catch (const ExchangeFault& fault) {
        return warn(std::string("내보낼 수 없습니다: ") + fault.what());
    }
    const QString path = chosenPath(parent, qt(program_.status().dataFile()));
    if (!path.isEmpty()) write(path);
}

void PointExport::write(const QString& path) {
    const auto format = vectorFormatOf(path.toStdString());
    if (!format) {
        QStringList endings;
        for (const FormatLimits& known : vectorFormats())
            endings << QLatin1Char('.') + qt(std::string(known.ending));
        return warn("파일 이름의 끝이 형식을 정합니다: " +
                    endings.join(QStringLiteral(", ")).toStdString());
    }
    try {
        // An export is read by other programs; it never stands in place of the run's own files.
        requireFilesOfTheirOwn(disk_, std::array{path.toStdString()}, filesOfRun(program_.state()));
        exportTables(program_.state().conversion.points, path.toStdString());
    } catch (const RuntimeFault& fault) {
        return warn("내보내지 못했습니다: " + fault.text());
    } catch (const ExchangeFault& fault) {
        return warn(std::string("내보내지 못했습니다: ") + fault.what());
    }
    const QString said = QStringLiteral("%1점을 %2(%3)로 내보냈습니다: ")
                             .arg(program_.state().conversion.points.PointCount)
                             .arg(qt(std::string(limitsOf(*format).name)), systemIn(*format)) +
                         path;
    program_.status().say(said.toStdString());
    status_.offerFolder(QFileInfo(path).absolutePath());
}

}  // namespace kelvo::desktop
