#include "desktop/native_paths.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>
#include <span>

namespace kelvo::desktop {

std::string argumentShownAs(const QString& shown, [[maybe_unused]] int argc,
                            [[maybe_unused]] char** argv) {
#ifndef _WIN32
    for (const char* argument : std::span(argv, static_cast<std::size_t>(argc)).subspan(1))
        if (QString::fromLocal8Bit(argument) == shown) return argument;
#endif
    return shown.toStdString();
}

std::string fileOfUrl(const QUrl& url) {
    if (!url.isLocalFile()) return {};
#ifdef _WIN32
    return QDir::toNativeSeparators(url.toLocalFile()).toStdString();
#else
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
#endif
}

std::string absoluteName(const std::string& path) {
#ifdef _WIN32
    return QDir::toNativeSeparators(QFileInfo(QString::fromStdString(path)).absoluteFilePath())
        .toStdString();
#else
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
#endif
}

}  // namespace kelvo::desktop
