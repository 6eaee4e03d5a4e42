// Names of files as the system gives them. The toolkit's texts hold no name that isn't UTF-8, so
// such names come by here as the bytes that they are.
#pragma once

#include <QString>
#include <QUrl>
#include <string>

namespace kelvo::desktop {

// The argument of the command line that the toolkit shows as `shown`.
[[nodiscard]] std::string argumentShownAs(const QString& shown, int argc, char** argv);

// The file that a URL names, empty for one that is no file of this machine.
[[nodiscard]] std::string fileOfUrl(const QUrl& url);

// With the platform's separators, counted from the current folder if it is relative.
[[nodiscard]] std::string absoluteName(const std::string& path);

}  // namespace kelvo::desktop
