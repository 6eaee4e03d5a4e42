#include "library/text_bytes.h"

#include "common/code_page.h"
#include "common/utf8.h"

namespace kelvo {

std::string textOfBytes(std::string_view bytes) {
    const std::string_view text = withoutMark(bytes);
    return isWellFormedUtf8(text) ? std::string(text) : decodeCodePage(text);
}

}  // namespace kelvo
