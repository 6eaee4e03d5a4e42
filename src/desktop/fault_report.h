// What a person is told when a fault ends the program.
#pragma once

#include <QString>
#include <string>

namespace kelvo::desktop {

// Writes text that would be lost into a new file of the application folder, in the code page of
// all text files. The file's path, or an empty one if that failed, too.
[[nodiscard]] QString writeRescueFile(const std::string& applicationFolder,
                                      const std::string& text);

// Number, sentence, what was saved and what not. `rescueFile` is empty if there was nothing to
// rescue; `rescueFailed` says that there was and that it couldn't be written.
[[nodiscard]] QString faultReport(int number, const std::string& text, const QString& rescueFile,
                                  bool rescueFailed);

}  // namespace kelvo::desktop
