// Files that a command reads are never files that it writes.
#pragma once

#include <initializer_list>
#include <string>

#include "common/disk.h"

namespace kelvo {

// Fault 55 if one of the files to be written is one of those to be read, or two of them are one,
// whatever names they go by. To be asked before the first of them is opened for writing.
void refuseSharedFiles(Disk& disk, std::initializer_list<std::string> written,
                       std::initializer_list<std::string> read);

}  // namespace kelvo
