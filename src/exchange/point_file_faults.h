// Why a file of points is refused, in the same words whoever reads it. All throw ExchangeFault.
#pragma once

#include <string>

#include "exchange/vector_format.h"

namespace kelvo {

// `words` and what errno says.
[[noreturn]] void failBySystem(const std::string& words, const std::string& path);

// `found`, which may be empty, is what the reader says of it, here and below.
[[noreturn]] void failOtherKind(VectorFormat format, const std::string& found,
                                const std::string& path);
[[noreturn]] void failDamaged(const std::string& found, const std::string& path);
[[noreturn]] void failOtherShape(const std::string& shape, const std::string& path);
[[noreturn]] void failWithoutPoints(const std::string& path);

}  // namespace kelvo
