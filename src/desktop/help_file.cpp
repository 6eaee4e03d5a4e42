#include "desktop/help_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace kelvo::desktop {

namespace {

constexpr const char* kBroughtLast = "help";

QString markOf(const QByteArray& text) {
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QByteArray& text) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

}  // namespace

void provideHelpFile(const QString& folder, const QByteArray& text, QSettings& settings) {
    const QString path = QDir(folder).filePath(QStringLiteral("KelvoHelp.txt"));
    const QString mark = markOf(text);
    const QString broughtLast = settings.value(QLatin1String(kBroughtLast)).toString();
    if (QFile::exists(path)) {
        const QByteArray there = contentOf(path);
        const QString markThere = markOf(there);
        if (markThere != mark && broughtLast == mark) return;  // edited since
        const bool edited = markThere != mark && markThere != broughtLast;
        if (edited && !write(path + QStringLiteral(".old"), there)) return;
        if (markThere != mark && !write(path, text)) return;
    } else if (!write(path, text)) {
        return;
    }
    settings.setValue(QLatin1String(kBroughtLast), mark);
}

}  // namespace kelvo::desktop
