#include "exchange/text_limits.h"

#include <algorithm>

#include "common/utf8.h"

namespace kelvo {

namespace {

bool holdsControlLetter(std::string_view text) {
    for (const char letter : text) {
        if (static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F) return true;
    }
    return false;
}

// A drawing spells a letter by four hexadecimal digits.
bool holdsLongLetter(std::string_view utf8) {
    return std::ranges::any_of(utf8,
                               [](char byte) { return static_cast<unsigned char>(byte) >= 0xF0; });
}

// XML forbids them: the file couldn't be read by anyone.
bool holdsNoncharacter(std::string_view utf8) {
    return utf8.find("\xEF\xBF\xBE") != std::string_view::npos ||
           utf8.find("\xEF\xBF\xBF") != std::string_view::npos;
}

bool isMadeOfXml(VectorFormat format) {
    return format == VectorFormat::Kml || format == VectorFormat::Gpx ||
           format == VectorFormat::Xlsx || format == VectorFormat::Ods;
}

}  // namespace

std::string whyNotHeld(std::string_view text, VectorFormat format) {
    const std::size_t longest = limitsOf(format).longestText;
    if (longest != 0 && text.size() > longest)
        return "글이 " + std::to_string(longest) + "바이트보다 깁니다";
    if (format != VectorFormat::GeoPackage && holdsControlLetter(text))
        return "제어 문자를 담을 수 없습니다";
    if (format == VectorFormat::Dxf && (text.find_first_of("{}") != std::string_view::npos ||
                                        text.find("%%") != std::string_view::npos))
        return "{, }, %%를 담을 수 없습니다";
    if (!isWellFormedUtf8(text)) return "UTF-8이 아닌 글입니다";
    if (format == VectorFormat::Dxf && holdsLongLetter(text))
        return "U+FFFF를 넘는 글자를 담을 수 없습니다";
    if (isMadeOfXml(format) && holdsNoncharacter(text)) return "U+FFFE와 U+FFFF를 담을 수 없습니다";
    return {};
}

}  // namespace kelvo
