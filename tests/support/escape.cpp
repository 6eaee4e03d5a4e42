#include "support/escape.h"

namespace kelvo::testing {

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '\r':
                result += "\\r";
                break;
            case '\n':
                result += "\\n";
                break;
            case '\t':
                result += "\\t";
                break;
            case '\\':
                result += "\\\\";
                break;
            default:
                result += c;
        }
    }
    return result;
}

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : escaped(text)) {
        if (c == '"') result += '\\';
        result += c;
    }
    return result + '"';
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '\\' && i + 1 < text.size()) {
            c = text[++i];
            if (c == 'r') c = '\r';
            if (c == 'n') c = '\n';
            if (c == 't') c = '\t';
        }
        result += c;
    }
    return result;
}

}  // namespace kelvo::testing
