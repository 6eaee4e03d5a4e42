// The help text of the application folder: the copy that is shown.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace kelvo::desktop {

// Writes KelvoHelp.txt where it is missing, and renews it when the program brings another text
// than last time. A copy that somebody has edited is kept as KelvoHelp.txt.old when it is renewed;
// as long as the program's text stays the same the edited copy stays the one that is shown.
// `settings` remember what was brought last. A folder that can't be written is left as it is.
void provideHelpFile(const QString& folder, const QByteArray& text, QSettings& settings);

}  // namespace kelvo::desktop
