// Where a result goes as a stream of bytes: a file that takes its place as a whole, or standard
// output.
#pragma once

#include <memory>
#include <string>

#include "common/disk.h"

namespace kelvo {

// The reader of standard output has gone; nobody is left to read it.
class ClosedPipe {};

// A new file beside `path`, which takes its place, with its permissions and owner, when it is
// closed; until then, and where it is never closed, the old one stays. It has no name until then
// where the file system allows, so that a killed process leaves nothing. A link is followed; a
// device or a pipe is written in place. Faults as Disk::replace, those of opening at once.
[[nodiscard]] std::unique_ptr<ByteWriter> wholeFile(const std::string& path);

// Throws ClosedPipe where nobody reads any more. SIGPIPE must be ignored.
[[nodiscard]] std::unique_ptr<ByteWriter> standardOutput();

// Standard input. A fault names it.
[[nodiscard]] std::unique_ptr<ByteReader> standardInput();

}  // namespace kelvo
