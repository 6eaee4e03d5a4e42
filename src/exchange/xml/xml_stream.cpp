#include "exchange/xml/xml_stream.h"

#include <exception>
#include <fstream>
#include <new>
#include <optional>
#include <vector>

#include <expat.h>

#include "exchange/point_file_faults.h"
#include "exchange/xml/named_letters.h"

namespace kelvo {

namespace {

constexpr int kPiece = 65536;

struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

}  // namespace

struct XmlStream::Parser {
    Parser(VectorFormat givenFormat, std::string givenPath, std::string givenRoot,
           XmlEvents& givenEvents)
        : format(givenFormat),
          path(std::move(givenPath)),
          root(std::move(givenRoot)),
          events(givenEvents),
          file(path, std::ios::binary),
          parser(XML_ParserCreate(nullptr)) {
        if (!file) failBySystem("파일을 열 수 없습니다", path);
        if (!parser) throw std::bad_alloc();
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), onBegin, onEnd);
        XML_SetCharacterDataHandler(parser.get(), onCharacters);
        XML_SetUnknownEncodingHandler(parser.get(), onLetters, this);
    }

    [[nodiscard]] bool more() {
        if (ended) return false;
        void* const piece = XML_GetBuffer(parser.get(), kPiece);
        if (piece == nullptr) throw std::bad_alloc();
        file.read(static_cast<char*>(piece), kPiece);
        if (file.bad()) failBySystem("파일을 읽을 수 없습니다", path);
        ended = file.eof();
        const int length = static_cast<int>(file.gcount());
        if (XML_ParseBuffer(parser.get(), length, ended ? 1 : 0) == XML_STATUS_OK) return true;
        if (thrown) std::rethrow_exception(thrown);
        if (!prefix) failOtherKind(format, found(), path);
        failDamaged(found(), path);
    }

    [[nodiscard]] std::string found() const {
        return std::string(XML_ErrorString(XML_GetErrorCode(parser.get()))) + " at line " +
               std::to_string(XML_GetCurrentLineNumber(parser.get())) + ", column " +
               std::to_string(XML_GetCurrentColumnNumber(parser.get()));
    }

    void begin(std::string_view name, const char* const* attributes) {
        if (!prefix) {
            const std::size_t colon = name.find(':');
            prefix = colon == std::string_view::npos ? "" : name.substr(0, colon + 1);
            if (name.substr(prefix->size()) != root) failOtherKind(format, {}, path);
        }
        if (name.starts_with(*prefix)) name.remove_prefix(prefix->size());
        pairs.clear();
        for (; *attributes != nullptr; attributes += 2)
            pairs.emplace_back(attributes[0], attributes[1]);
        events.begin(name, pairs);
    }

    // Nothing may be thrown through the parser, which is written in C.
    template <typename Work>
    void guard(const Work& work) {
        if (thrown) return;
        try {
            work();
        } catch (...) {
            thrown = std::current_exception();
            XML_StopParser(parser.get(), XML_FALSE);
        }
    }

    static Parser& of(void* data) { return *static_cast<Parser*>(data); }
    static void onBegin(void* data, const char* name, const char** attributes) {
        of(data).guard([&] { of(data).begin(name, attributes); });
    }
    static void onEnd(void* data, const char* /*name*/) {
        of(data).guard([&] { of(data).events.end(); });
    }
    static void onCharacters(void* data, const char* piece, int length) {
        of(data).guard([&] { of(data).events.text({piece, static_cast<std::size_t>(length)}); });
    }
    static int onLetters(void* data, const char* name, XML_Encoding* encoding) {
        std::optional<NamedLetters>& letters = of(data).letters;
        letters = NamedLetters::find(name);
        if (!letters) return XML_STATUS_ERROR;
        for (int byte = 0; byte < 256; ++byte)
            encoding->map[byte] = letters->ofByte(static_cast<char>(byte));
        encoding->data = &*letters;
        encoding->convert = [](void* of, const char* pair) {
            return static_cast<NamedLetters*>(of)->ofPair({pair, 2});
        };
        encoding->release = nullptr;
        return XML_STATUS_OK;
    }

    VectorFormat format;
    std::string path;
    std::string root;
    XmlEvents& events;
    std::ifstream file;
    std::unique_ptr<XML_ParserStruct, FreeParser> parser;
    std::optional<NamedLetters> letters;
    std::optional<std::string> prefix;  // of the root, with its colon; set when the root was seen
    std::vector<XmlAttributes::value_type> pairs;
    std::exception_ptr thrown;
    bool ended = false;
};

XmlStream::XmlStream(VectorFormat format, std::string path, std::string root, XmlEvents& events)
    : parser_(std::make_unique<Parser>(format, std::move(path), std::move(root), events)) {}
XmlStream::~XmlStream() = default;

bool XmlStream::more() {
    return parser_->more();
}

}  // namespace kelvo
