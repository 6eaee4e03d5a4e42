// An XML file read from front to end; what stands in it is kept by nobody here.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "exchange/vector_format.h"

namespace kelvo {

using XmlAttributes = std::span<const std::pair<std::string_view, std::string_view>>;

// Is called in the order of the file, in UTF-8. What it throws comes out of XmlStream::more().
class XmlEvents {
public:
    virtual ~XmlEvents() = default;

    // `name` is without its prefix where that is the prefix of the whole file.
    virtual void begin(std::string_view name, XmlAttributes attributes) = 0;
    virtual void end() = 0;
    virtual void text(std::string_view piece) = 0;  // a text may come in many pieces
};

class XmlStream {
public:
    // `root` is the element that makes the file one of the format; `events` outlives the stream.
    // ExchangeFault where the file can't be opened.
    XmlStream(VectorFormat format, std::string path, std::string root, XmlEvents& events);
    ~XmlStream();

    // Reads the next piece of the file; false when all is read. ExchangeFault where the file is of
    // another kind, not well-formed, or cut.
    [[nodiscard]] bool more();

private:
    struct Parser;
    std::unique_ptr<Parser> parser_;
};

}  // namespace kelvo
