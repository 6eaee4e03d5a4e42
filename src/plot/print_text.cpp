#include "plot/print_text.h"

#include <array>
#include <memory>

#include "common/blanks.h"
#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/letter_case.h"
#include "common/number_text.h"
#include "common/text_file.h"
#include "common/utf8.h"
#include "plot/clsplot1.h"

namespace kelvo {
namespace {

constexpr std::string_view kTemporary = "temp";
constexpr std::string_view kBatchFile = "code.bat";
constexpr std::string_view kFormFeed = "\f";
constexpr std::string_view kDashLine = "---------------------------------------";

// The pages of the fast print: empty lines at the top, and lines in all.
constexpr int kTopLines = 4;
constexpr int kPageLines = 61;

// The sheets of the user print, millimetres.
constexpr int kFirstY = 30;
constexpr int kLastY = 275;
constexpr int kLineStep = 4;

// The last three characters in capitals.
std::string endingOf(const std::string& fileName) {
    const std::size_t count = characterCount(fileName);
    if (count < 3) raise(Fault::InvalidCall, "파일 이름이 너무 짧습니다: " + fileName);
    return upperCased(middleOf(fileName, count - 2, 3));
}

std::unique_ptr<TextReader> openOrTell(const std::string& fileName, PrintServices& services) {
    try {
        return std::make_unique<TextReader>(services.disk, fileName);
    } catch (const RuntimeFault&) {
        services.messages.tell("먼저 실행을 하십시오");
        return nullptr;
    }
}

// The pointer is busy as long as this lasts, also when a fault ends it.
class Busy {
public:
    explicit Busy(BusyPointer& pointer) : pointer_(pointer) { pointer_.setBusy(true); }
    ~Busy() { pointer_.setBusy(false); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    BusyPointer& pointer_;
};

void copyWithMargin(TextReader& from, TextWriter& to, const std::string& margin,
                    std::string& LineBuf) {
    while (!from.atEnd()) {
        from.readLine(LineBuf);
        to.line(margin + LineBuf);
    }
    to.line(kFormFeed);
}

int startPage(TextWriter& to) {
    for (int i = 0; i < kTopLines; ++i) to.line("");
    return kTopLines;
}

void copyWithPages(TextReader& from, TextWriter& to, const std::string& margin,
                   std::string& LineBuf) {
    int c = startPage(to);
    while (!from.atEnd()) {
        from.readLine(LineBuf);
        to.line(margin + LineBuf);
        ++c;
        if (c == kPageLines) {
            to.line(kFormFeed);
            c = startPage(to);
        }
    }
    to.line(kFormFeed);
}

void fastPrint(const std::string& fileName, const std::string& ending, const PrintMode& mode,
               PrintServices& services) {
    // Also where nothing is copied: the printer's own program would tell nobody.
    const auto from = openOrTell(fileName, services);
    if (!from) return;
    std::string toPrinter = fileName;
    std::unique_ptr<Busy> busy;
    const bool paged = ending == "DAT";
    if (paged || mode.LeftMargin > 0) {
        toPrinter = kTemporary;
        busy = std::make_unique<Busy>(services.pointer);
        if (services.disk.sameFile(fileName, toPrinter)) raise(Fault::FileAlreadyOpen, toPrinter);
        TextWriter to(services.disk, toPrinter);
        const std::string margin = genSub::Blanks(mode.LeftMargin);
        if (paged)
            copyWithPages(*from, to, margin, services.LineBuf);
        else
            copyWithMargin(*from, to, margin, services.LineBuf);
        to.close();
    }
    std::string batchFile = services.applicationFolder;
    batchFile += kPathSeparator;
    batchFile += kBatchFile;
    TextWriter batch(services.disk, batchFile);
    batch.line("copy " + toPrinter + " Lpt1");
    batch.close();
    services.rawPrinter.print(toPrinter);
}

// Left edge in millimetres by the size of the text.
int leftEdge(int size) {
    switch (size) {
        case 7:
            return 36;
        case 8:
            return 34;
        case 9:
            return 32;
        case 11:
            return 28;
        case 12:
            return 25;
        default:
            return 30;
    }
}

void setUpPage(clsplot1& object, const PrintMode& mode, Surface& printer) {
    object.pinitialize(0, 0, 1, 1, 1, printer);
    object.pwindow(0, 0, 1, 1, 0, 0, 1, 1, 0);
    object.ChangeFont(mode.font);
    constexpr int kPlain = 0;
    constexpr int kItalic = 1;
    constexpr int kBold = 2;
    constexpr int kBoldItalic = 3;
    if (mode.style == kPlain) object.ChangeFontStyle(0, "t");
    if (mode.style == kBold || mode.style == kBoldItalic) object.ChangeFontStyle(1, "t");
    if (mode.style == kItalic || mode.style == kBoldItalic) object.ChangeFontStyle(2, "t");
    if (mode.strikethru) object.ChangeFontStyle(3, "t");
    if (mode.underline) object.ChangeFontStyle(4, "t");
}

void userPrint(const std::string& fileName, const std::string& ending, const PrintMode& mode,
               PrintServices& services) {
    const auto from = openOrTell(fileName, services);
    if (!from) return;
    const std::int16_t sz = roundedInteger16(leadingNumber(mode.size));
    const int X = leftEdge(sz);
    int Y = kFirstY;
    clsplot1 object(services.messages, services.programs, services.printer);
    object.Clear();
    setUpPage(object, mode, services.printer);
    const auto newSheet = [&] {
        object.SkipPage();
        setUpPage(object, mode, services.printer);
        Y = kFirstY;
    };
    std::string& LineBuf = services.LineBuf;
    while (!from->atEnd()) {
        from->readLine(LineBuf);
        if (trimmed(LineBuf) == kFormFeed) {
            if (from->atEnd()) break;
            constexpr int kLinesBehindFormFeed = 3;
            for (int i = 0; i < kLinesBehindFormFeed; ++i) from->readLine(LineBuf);
        }
        if (trimmed(LineBuf) == kDashLine && ending == "OUT") newSheet();
        if (Y > kLastY) newSheet();
        object.ptext(LineBuf, X, Y, sz);
        Y += kLineStep;
    }
    object.ChangeFontStyle(0, "t");
    object.EndPlot();
}

}  // namespace

void PrintFile(const std::string& fileName, const PrintMode& mode, PrintServices& services) {
    const std::string ending = endingOf(fileName);
    if (mode.fast)
        fastPrint(fileName, ending, mode, services);
    else
        userPrint(fileName, ending, mode, services);
}

}  // namespace kelvo
