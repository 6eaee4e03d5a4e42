// What stands where on a printed sheet, measured in the rasterised page.
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <optional>
#include <vector>

#include "desktop/korean_faces.h"
#include "desktop/paper_surface.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"
#include "gallery_pages.h"
#include "support/recording_messages.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::desktop;
using namespace kelvo::testing;

namespace {

constexpr int kDotsPerInch = 300;
constexpr double kDotsPerMm = kDotsPerInch / 25.4;
constexpr double kMmPerPoint = 25.4 / 72;

class NoPrograms final : public ProgramStarter {
public:
    void start(const std::string&) override {}
};

// A rasterised page; places are millimetres from the sheet's top left corner.
class Page {
public:
    explicit Page(const QString& path)
        : image_(QImage(path).convertToFormat(QImage::Format_Grayscale8)) {
        for (int y = 0; y < image_.height(); ++y) {
            uchar* row = image_.scanLine(y);
            const int width = image_.width();
            for (int x = 0; x < width; ++x) row[x] = row[x] < 160 ? kInk : 0;
        }
    }

    [[nodiscard]] bool inked(int x, int y) const { return image_.constScanLine(y)[x] == kInk; }

    // The first and the last dot of the longest unbroken run in any row (or column) at least
    // `atLeast` long, and the rows (or columns) in which such runs stand.
    struct Lines {
        double from = 1e9;
        double to = -1;
        double first = -1;
        double last = -1;
        [[nodiscard]] double length() const { return to - from; }
    };
    [[nodiscard]] Lines levelLines(double atLeast) const {
        return lines(image_.height(), image_.width(), atLeast,
                     [this](int row, int place) { return inked(place, row); });
    }
    [[nodiscard]] Lines uprightLines(double atLeast) const {
        return lines(image_.width(), image_.height(), atLeast,
                     [this](int column, int place) { return inked(column, place); });
    }

    struct Band {
        double top = 0;
        double bottom = 0;
    };
    // The rows with ink in them, neighbours put together.
    [[nodiscard]] std::vector<Band> bands() const {
        std::vector<Band> found;
        bool inside = false;
        for (int y = 0; y < image_.height(); ++y) {
            const bool ink = leftmost(y).has_value();
            if (ink && !inside) found.push_back({y / kDotsPerMm, 0});
            if (ink) found.back().bottom = (y + 1) / kDotsPerMm;
            inside = ink;
        }
        return found;
    }

    [[nodiscard]] double left(const Band& band) const {
        double edge = 1e9;
        for (int y = dots(band.top); y < dots(band.bottom); ++y) {
            if (const auto x = leftmost(y)) edge = std::min(edge, *x / kDotsPerMm);
        }
        return edge;
    }
    // How far the band's left edge leans over, from its lowest row to its highest.
    [[nodiscard]] double lean(const Band& band) const {
        const int inset = 4;  // the corners of a stem may be rounded
        const auto top = leftmost(dots(band.top) + inset);
        const auto bottom = leftmost(dots(band.bottom) - 1 - inset);
        return top && bottom ? (*top - *bottom) / kDotsPerMm : 0;
    }
    [[nodiscard]] int inkBetween(double from, double to) const {
        const int first = dots(from);
        const int end = dots(to);
        std::ptrdiff_t count = 0;
        for (int y = 0; y < image_.height(); ++y) {
            const uchar* row = image_.constScanLine(y);
            count += std::count(row + first, row + end, kInk);
        }
        return static_cast<int>(count);
    }
    [[nodiscard]] int ink() const { return inkBetween(0, (image_.width() - 1) / kDotsPerMm); }

private:
    [[nodiscard]] static int dots(double mm) {
        return static_cast<int>(std::lround(mm * kDotsPerMm));
    }

    [[nodiscard]] std::optional<int> leftmost(int y) const {
        const uchar* row = image_.constScanLine(y);
        const void* found = std::memchr(row, kInk, static_cast<std::size_t>(image_.width()));
        if (found == nullptr) return std::nullopt;
        return static_cast<int>(static_cast<const uchar*>(found) - row);
    }

    template <class Inked>
    [[nodiscard]] static Lines lines(int rows, int places, double atLeast, const Inked& inked) {
        Lines found;
        for (int row = 0; row < rows; ++row) {
            int start = -1;
            for (int place = 0; place <= places; ++place) {
                const bool ink = place < places && inked(row, place);
                if (ink && start < 0) start = place;
                if (ink || start < 0) continue;
                if (place - start >= atLeast * kDotsPerMm) {
                    found.from = std::min(found.from, start / kDotsPerMm);
                    found.to = std::max(found.to, place / kDotsPerMm);
                    if (found.first < 0) found.first = row / kDotsPerMm;
                    found.last = (row + 1) / kDotsPerMm;
                }
                start = -1;
            }
        }
        return found;
    }

    static constexpr uchar kInk = 1;
    QImage image_;
};

std::string linesOf(const std::string& line, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += line + "\r\n";
    return text;
}

bool near(double one, double other, double tolerance) {
    return std::abs(one - other) <= tolerance;
}

}  // namespace

class PrintedSheetTest : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }

    void initTestCase() {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty()) {
            QSKIP("pdftoppm is missing (apt-get install poppler-utils)");
        }
    }

    void aPageOf137MillimetresIs178Wide15FromTheLeftAnd40FromTheTop() {
        PaperSurface paper;
        RecordingMessages messages;
        NoPrograms programs;
        clsplot1 object(messages, programs, paper);
        object.pinitialize(15, 40, 1.3, 1.3, 1, paper);
        object.pbox(0, 0, 137, 137, 3);
        const std::vector<Page> pages = printed(paper);
        QCOMPARE(pages.size(), std::size_t{1});
        const Page::Lines level = pages[0].levelLines(100);
        QVERIFY2(near(level.from, 15, 0.25), qPrintable(QString::number(level.from)));
        QVERIFY2(near(level.to, 15 + 178.1, 0.25), qPrintable(QString::number(level.to)));
        QVERIFY2(near(level.first, 40, 0.25), qPrintable(QString::number(level.first)));
        QVERIFY2(near(level.last, 40 + 178.1, 0.25), qPrintable(QString::number(level.last)));
        const Page::Lines upright = pages[0].uprightLines(100);
        QVERIFY(near(upright.length(), 178.1, 0.4));
        QVERIFY(near(upright.last - upright.first, 178.1, 0.4));
    }

    // Grid lines end 2 hundredths of the span inside the square of 1.1 spans.
    void theGridOfAPlotLiesInThatSquare() {
        for (const PointPlot kind : {PointPlot::WGS, PointPlot::UGS, PointPlot::XY}) {
            PaperSurface paper;
            drawSamplePlot(SurfaceKind::Printer, paper, kind, false);
            const std::vector<Page> pages = printed(paper);
            QCOMPARE(pages.size(), std::size_t{1});
            const double margin = 178.1 * 0.02 / 1.1;
            const Page::Lines level = pages[0].levelLines(100);
            QVERIFY2(near(level.from, 15 + margin, 0.3), qPrintable(QString::number(level.from)));
            QVERIFY(near(level.to, 15 + 178.1 - margin, 0.3));
            const Page::Lines upright = pages[0].uprightLines(100);
            QVERIFY2(near(upright.from, 40 + margin, 0.3),
                     qPrintable(QString::number(upright.from)));
            QVERIFY(near(upright.to, 40 + 178.1 - margin, 0.3));
            // The first and the last line of an automatic scale stand one span apart at most.
            QVERIFY(level.last - level.first <= 178.1 / 1.1 + 0.3);
        }
    }

    void aSheetHolds62LinesFourMillimetresApart() {
        PaperSurface paper;
        printSampleText(paper, "kelvo.tmp", linesOf("HHHH", 70), {});
        const std::vector<Page> pages = printed(paper);
        QCOMPARE(pages.size(), std::size_t{2});
        const std::vector<Page::Band> first = pages[0].bands();
        QCOMPARE(first.size(), std::size_t{62});
        QCOMPARE(pages[1].bands().size(), std::size_t{8});
        // 0.8 of the cell lies above the line's Y.
        const double cell = TextFace({QStringLiteral("굴림체"), 10}).height() * kMmPerPoint;
        for (std::size_t line = 0; line < first.size(); ++line) {
            const double Y = 30 + 4 * static_cast<double>(line);
            QVERIFY(first[line].top > Y - 0.8 * cell);
            QVERIFY(first[line].bottom < Y + 0.2 * cell);
            QVERIFY(near(first[line].bottom - first[0].bottom, Y - 30, 0.15));
        }
        QVERIFY(near(pages[1].bands()[0].bottom, first[0].bottom, 0.1));
    }

    void theLeftEdgeGoesByTheSize() {
        const std::map<std::string, double> edges{{"7", 36},  {"8", 34},  {"9", 32},
                                                  {"10", 30}, {"11", 28}, {"12", 25}};
        PaperSurface paper;
        for (const auto& [size, edge] : edges) {
            printSampleText(paper, "kelvo.tmp", linesOf("HHHH", 1), {.size = size});
        }
        const std::vector<Page> pages = printed(paper);
        QCOMPARE(pages.size(), edges.size());
        std::size_t page = 0;
        for (const auto& [size, edge] : edges) {
            const double left = pages[page].left(pages[page].bands().at(0));
            // A letter H has some room on its left.
            QVERIFY2(left >= edge && left < edge + 0.5, size.c_str());
            ++page;
        }
    }

    void eachStyleShowsInEachFace() {
        for (const char* font : {"굴림", "굴림체", "돋움체", "바탕", "바탕체", "궁서체"}) {
            PaperSurface paper;
            for (int style = 0; style < 4; ++style) {
                printSampleText(paper, "kelvo.tmp", linesOf("HHHHHHHH", 1),
                                {.font = font, .style = style, .size = "12"});
            }
            const std::vector<Page> pages = printed(paper);
            QCOMPARE(pages.size(), std::size_t{4});
            std::vector<double> leans;
            std::vector<int> inks;
            for (const Page& page : pages) {
                leans.push_back(page.lean(page.bands().at(0)));
                inks.push_back(page.ink());
            }
            QVERIFY2(near(leans[0], 0, 0.1) && near(leans[2], 0, 0.1), font);
            QVERIFY2(leans[1] > 0.2 && leans[3] > 0.2, font);
            QVERIFY2(inks[2] > 1.1 * inks[0] && inks[3] > 1.1 * inks[1], font);
        }
    }

    void linesUnderAndThroughRunOnOverBlanks() {
        PaperSurface paper;
        for (const bool through : {false, true}) {
            for (const bool under : {false, true}) {
                printSampleText(paper, "kelvo.tmp", linesOf("H        H", 1),
                                {.strikethru = through, .underline = under});
            }
        }
        const std::vector<Page> pages = printed(paper);
        QCOMPARE(pages.size(), std::size_t{4});
        // Ten columns of half an em of 10 points: the middle of the blanks.
        const double from = 30 + 3 * 5 * kMmPerPoint;
        const double to = 30 + 7 * 5 * kMmPerPoint;
        QCOMPARE(pages[0].inkBetween(from, to), 0);
        QVERIFY(pages[1].inkBetween(from, to) > 0);
        QVERIFY(pages[2].inkBetween(from, to) > 0);
        const int both = pages[3].inkBetween(from, to);
        QVERIFY(both > pages[1].inkBetween(from, to) && both > pages[2].inkBetween(from, to));
        // The one lies under the letters, the other inside them.
        QVERIFY(pages[1].bands().back().bottom > pages[0].bands().back().bottom);
        QVERIFY(near(pages[2].bands().back().bottom, pages[0].bands().back().bottom, 0.1));
    }

    void textOfASheetIsFoundInEachFace() {
        const std::string line = "Data File = C:\\측량 자료\\현장1.dat  il 37-35-33.2567 가나 다";
        for (const char* font :
             {"굴림", "굴림체", "궁서", "궁서체", "돋움", "돋움체", "바탕", "바탕체"}) {
            PaperSurface paper;
            printSampleText(paper, "kelvo.tmp", linesOf(line, 1),
                            {.font = font, .underline = true});
            const QString found = textOn(paper).simplified();
            QVERIFY2(found == QString::fromStdString(line).simplified(),
                     qPrintable(QString(font) + ": " + found));
        }
    }

    void turnedTextIsFound() {
        PaperSurface paper;
        RecordingMessages messages;
        NoPrograms programs;
        clsplot1 object(messages, programs, paper);
        object.pinitialize(15, 40, 1.3, 1.3, 1, paper);
        object.ptextR("127-30-15 북 쪽", 50, 50, 90, 12, "바탕체");
        object.ptextR("127-30-15 동 쪽", 60, 50, 90, 12);
        const QString found = textOn(paper).simplified();
        QVERIFY2(found.contains("127-30-15 북 쪽"), qPrintable(found));
        QVERIFY2(found.contains("127-30-15 동 쪽"), qPrintable(found));
    }

private:
    static bool print(PaperSurface& paper, const QString& pdf) {
        QPrinter printer(QPrinter::HighResolution);
        setUpPrinter(printer);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        return paintSheets(printer, paper.takeSheets());
    }

    static QString textOn(PaperSurface& paper) {
        const TemporaryFolder folder;
        const QString pdf = QString::fromStdString(folder.file("sheets.pdf"));
        if (!print(paper, pdf)) return {};
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

    static std::vector<Page> printed(PaperSurface& paper) {
        const TemporaryFolder folder;
        const QString pdf = QString::fromStdString(folder.file("sheets.pdf"));
        if (!print(paper, pdf)) return {};
        QProcess::execute(
            QStringLiteral("pdftoppm"),
            {QStringLiteral("-gray"), QStringLiteral("-r"), QString::number(kDotsPerInch), pdf,
             QString::fromStdString(folder.file("page"))});
        const QDir made(QString::fromStdString(folder.path()));
        std::vector<Page> pages;
        for (const QString& name :
             made.entryList({QStringLiteral("page-*.pgm")}, QDir::Files, QDir::Name)) {
            pages.emplace_back(made.filePath(name));
        }
        return pages;
    }
};

std::unique_ptr<QObject> kelvo::testing::printedSheetTest() {
    return std::make_unique<PrintedSheetTest>();
}

#include "printed_sheet_test.moc"
