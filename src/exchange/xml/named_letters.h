// The letters of a file that names another code than UTF-8.
#pragma once

#include <iconv.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace kelvo {

// Codes of one byte a letter, or of one and two (Korean files are often in code page 949, which
// they call EUC-KR), as the platform knows them.
class NamedLetters {
public:
    static constexpr int kNone = -1;
    static constexpr int kFirstOfTwo = -2;

    // Nothing where the platform doesn't know the name.
    [[nodiscard]] static std::optional<NamedLetters> find(const std::string& name);

    // The letter of a byte, kFirstOfTwo where a second one belongs to it, or kNone.
    [[nodiscard]] int ofByte(char byte) const;
    [[nodiscard]] int ofPair(std::string_view pair) const;

private:
    struct Close {
        void operator()(iconv_t code) const { iconv_close(code); }
    };
    using Code = std::unique_ptr<std::remove_pointer_t<iconv_t>, Close>;

    explicit NamedLetters(Code code) : code_(std::move(code)) {}
    Code code_;
};

}  // namespace kelvo
