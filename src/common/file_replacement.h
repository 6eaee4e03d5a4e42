// Putting new bytes into a file so that it keeps all else: owner, group, mode, access list,
// attributes, hard links. Links have been followed: a target is the file itself.
//
// Where that can be had, the bytes are written into a new file beside the target, which then
// takes its name. Where it can't (hard links, a file of another user, a folder that may not be
// written) the target is written in place.
//
// While a new file is being written it is called "kelvo.<16 hexadecimal digits>.new". A copy that
// stands by while a file is written in place ends in ".copy".
#pragma once

#include <memory>
#include <string_view>

#include "common/disk.h"
#include "common/file_calls.h"

namespace kelvo {

// Replaces what the file holds: afterwards it holds either the old bytes or the new ones, also
// after a power cut; one that was interrupted while writing in place does so once finishInPlace
// was called on the copy. Faults as Disk::replace.
void replaceFile(FileCalls& calls, const std::filesystem::path& target, std::string_view bytes);

// Rewrites the file as it goes. What is written takes the place of the file when the writer is
// closed, if that can be; a writer that goes without being closed leaves the file as it was.
// Where it can't, the file is emptied at once.
[[nodiscard]] std::unique_ptr<ByteWriter> writeAnew(std::unique_ptr<FileCalls> calls,
                                                    const std::filesystem::path& target);

// Ends what was interrupted: the copy's bytes go into the file it was made for, unless somebody
// has written something else there since; then the copy is removed. Nothing if it isn't whole.
void finishInPlace(FileCalls& calls, const std::filesystem::path& copy, std::string_view bytes);

[[nodiscard]] bool isNameOfNewFile(std::string_view name);
[[nodiscard]] bool isNameOfCopy(std::string_view name);

}  // namespace kelvo
