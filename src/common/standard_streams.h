// What a program has to see to before it opens its first file.
#pragma once

namespace kelvo {

// Gives the numbers of standard input, output and error, where the caller closed them, to nothing,
// so that no file of the program's own gets such a number, and messages with it. A pipe that nobody
// reads any more and a size that the user may not exceed become errors of the write that meets
// them; neither ends the program. Programs started by this one don't inherit that.
void secureStandardStreams();

}  // namespace kelvo
