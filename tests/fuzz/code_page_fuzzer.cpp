// Bytes of a file to text and back, and text of a box to bytes.
#include "common/code_page.h"
#include "common/fixed_width.h"
#include "common/text_file.h"
#include "common/utf8.h"
#include "fuzz/fuzz_target.h"
#include "support/memory_disk.h"

namespace kelvo::fuzz {

std::span<const std::string_view> knownLines() {
    return {};
}

namespace {

void checkCells(const std::string& text) {
    for (const int width : {0, 1, 2, 7, 10}) {
        const std::string cell = genSub::FormatText(text, width, genSub::Align::Left);
        require(genSub::DisplayLen(cell) == width, "a cell has its width");
        const std::string right = genSub::FormatText(text, width, genSub::Align::Right);
        require(genSub::DisplayLen(right) == width, "a cell has its width");
    }
}

// The file is read as a whole and line by line; both see the same text.
void checkReaders(const std::string& bytes) {
    testing::MemoryDisk disk;
    disk.putBytes("/f", bytes);
    const std::string whole = readWholeText(disk, "/f");
    std::string joined;
    TextReader reader(disk, "/f");
    std::string line;
    while (!reader.atEnd()) {
        reader.readLine(line);
        joined += line + "\r\n";
    }
    const bool cut = !whole.empty() && !whole.ends_with("\r\n");
    require(whole + (cut ? "\r\n" : "") == joined, "a file reads the same in two ways");
}

}  // namespace
}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo;
    using namespace kelvo::fuzz;
    const std::string bytes(textOf(data, size));
    const std::string text = decodeCodePage(bytes);
    require(encodeCodePage(text) == bytes, "every byte of a file comes back");
    require(genSub::DisplayLen(text) == static_cast<int>(bytes.size()), "columns are bytes");
    checkCells(text);
    checkReaders(bytes);
    // The same bytes as text of a box, which needn't be well-formed UTF-8.
    const std::string settled = decodeCodePage(encodeCodePage(bytes));
    require(decodeCodePage(encodeCodePage(settled)) == settled, "a text settles at once");
    require(genSub::DisplayLen(bytes) == static_cast<int>(encodeCodePage(bytes).size()),
            "columns are bytes of any text");
    checkCells(bytes);
    return 0;
}
