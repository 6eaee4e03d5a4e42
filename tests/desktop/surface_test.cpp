// The drawing surfaces: pixels, paper, faces and files.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <array>
#include <cmath>

#include "desktop/korean_faces.h"
#include "desktop/paper_surface.h"
#include "desktop/picture_files.h"
#include "desktop/picture_painter.h"
#include "desktop/picture_surface.h"
#include "desktop/raster_modes.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"
#include "plot/clsplot1.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::desktop;

namespace {

class NobodyThere final : public MessageBoxes, public ProgramStarter {
public:
    Answer show(const Message&) override { return Answer::Ok; }
    void start(const std::string&) override {}
};

QImage painted(const PictureSurface& surface, Medium medium, const QColor& ground) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.scale(1 / 15.0, 1 / 15.0);
    paintPicture(painter, surface.picture(), medium);
    return image;
}

QRgb filledUnder(int mode, QRgb pen, QRgb ground, Medium medium) {
    PictureSurface surface({});
    surface.setDrawMode(static_cast<kelvo::RasterMode>(mode));
    const auto colour =
        static_cast<std::int32_t>(qRed(pen) | (qGreen(pen) << 8) | (qBlue(pen) << 16));
    surface.Line(0, 0, 600, 600, colour, LineForm::FilledBox);
    return painted(surface, medium, QColor(ground)).pixel(20, 20) & 0xFFFFFF;
}

}  // namespace

class SurfaceTest : public QObject {
    Q_OBJECT

private slots:
    void init() { testing::failOnWarnings(); }

    // The sixteen operations as their bit tables: the mode less one, read as four bits, gives the
    // result for pen and ground both set, pen alone, ground alone and neither.
    void pixelsFollowTheRasterOperation() {
        const QRgb pen = 0x00C3A55A;
        const QRgb ground = 0x000FF03C;
        for (int mode = 1; mode <= 16; ++mode) {
            const unsigned bits = static_cast<unsigned>(mode - 1);
            QRgb expected = 0;
            if (bits & 8) expected |= pen & ground;
            if (bits & 4) expected |= pen & ~ground;
            if (bits & 2) expected |= ~pen & ground;
            if (bits & 1) expected |= ~pen & ~ground;
            QCOMPARE(filledUnder(mode, pen, ground, Medium::Pixels), expected & 0xFFFFFF);
        }
    }

    void paperTakesWhiteAsItsGround() {
        const QRgb pen = 0x00C3A55A;
        for (int mode = 1; mode <= 16; ++mode) {
            if (mode == 11) continue;
            QVERIFY2(filledUnder(mode, pen, 0xFFFFFF, Medium::Paper) ==
                         filledUnder(mode, pen, 0xFFFFFF, Medium::Pixels),
                     qPrintable(QString::number(mode)));
        }
        QVERIFY(!inkOnPaper(RasterMode::Nothing, Qt::red));
    }

    void colourHasRedInItsLowestByte() {
        PictureSurface surface({});
        surface.Line(0, 0, 600, 600, 0x0000FF, LineForm::FilledBox);
        QCOMPARE(painted(surface, Medium::Pixels, Qt::white).pixelColor(20, 20), QColor(Qt::red));
    }

    void aWholeCircleIsFilledOnlyWhenItsStyleIsSolid() {
        PictureSurface surface({});
        surface.setFillColor(0x00FF00);
        surface.Circle(300, 300, 200, 0, 0, 0, 0, CircleForm::Whole);
        QCOMPARE(painted(surface, Medium::Pixels, Qt::white).pixelColor(20, 20), QColor(Qt::white));
        surface.setFillStyle(FillKind::Solid);
        surface.Circle(300, 300, 200, 0, 0, 0, 0, CircleForm::Whole);
        QCOMPARE(painted(surface, Medium::Pixels, Qt::white).pixelColor(20, 20), QColor(Qt::green));
    }

    // A polygon is filled by strokes along its sides, two of which stand upright here.
    void aSquareIsFilledInAllItsPixels() {
        NobodyThere nobody;
        PictureSurface surface({});
        clsplot1 object(nobody, nobody, surface);
        object.pinitialize(0, 0, 1, 1, static_cast<int>(SurfaceKind::Screen), surface);
        const std::array<double, 4> xs{2, 8, 8, 2};
        const std::array<double, 4> ys{2, 2, 8, 8};
        object.pFillPoly(xs, ys, 4, 0x0000FF);
        const QImage image = painted(surface, Medium::Pixels, Qt::white);
        const double pixelsPerMillimetre = 56.7 / 15;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const auto inside = [&](double at, double margin) {
                    return at >= 2 * pixelsPerMillimetre - margin &&
                           at <= 8 * pixelsPerMillimetre + margin;
                };
                const QColor colour = image.pixelColor(x, y);
                const QByteArray where = QStringLiteral("%1 %2").arg(x).arg(y).toUtf8();
                // A pen is round and a pixel wide at the edges.
                if (inside(x, -1) && inside(y, -1)) QVERIFY2(colour == Qt::red, where);
                if (!inside(x, 4) || !inside(y, 4)) QVERIFY2(colour == Qt::white, where);
            }
        }
    }

    void anArcRunsCounterClockwise() {
        PictureSurface surface({});
        surface.setDrawWidth(4);
        surface.Circle(300, 300, 225, 0, 0, 1.5707963, 0, CircleForm::Arc);
        const QImage image = painted(surface, Medium::Pixels, Qt::white);
        QVERIFY(image.pixelColor(31, 9).lightness() < 128);   // upper right: drawn
        QVERIFY(image.pixelColor(31, 31).lightness() > 200);  // lower right: not
    }

    void fixedFacesKeepAHangulLetterAtTwoLatinOnes() {
        for (const char* name : {"굴림체", "궁서체", "돋움체", "바탕체"}) {
            const TextFace face({QString::fromUtf8(name), 160});
            const double latin = face.width(QStringLiteral("Wi.8"));
            const double hangul = face.width(QStringLiteral("지오"));
            QVERIFY2(std::abs(latin - hangul) < 1, name);
            QVERIFY2(std::abs(face.width(QStringLiteral("가─±※")) - 4 * 160.0) < 2, name);
        }
    }

    // The numbers stand on the cell's height in pixels, not on that of the em.
    void turnedTextHasTheCellHeightOfItsRecord() {
        PictureSurface surface({});
        LogicalFont font;
        font.lfHeight = 20;
        font.lfEscapement = 900;
        font.lfFaceName = "바탕";
        surface.CreateFontIndirectA(font);
        surface.SelectObject(SelectedFont::Created);
        surface.TextOutA(10, 30, "37-30", 5);
        const auto& text = std::get<DrawnText>(surface.picture().items.at(0));
        QCOMPARE(text.angle, 90.0);
        QCOMPARE(text.corner, QPointF(150, 450));
        const TextFace face(surface.picture().looks.at(text.look));
        QVERIFY(std::abs(face.height() - 20 * 15.0) < 1);
    }

    void namingAFontKeepsSizeAndBoldness() {
        PictureSurface surface({});
        surface.setFontsize(12);
        surface.setFontBold(true);
        surface.setFont("궁서");
        QCOMPARE(surface.fontsize(), 12.0);
        QCOMPARE(surface.FontWeight(), 700);
        QCOMPARE(surface.FontName(), std::string("궁서"));
    }

    void clearingLeavesAnEmptyPicture() {
        PictureSurface surface({});
        surface.Line(0, 0, 600, 600, 0, LineForm::Line);
        const unsigned before = surface.revision();
        surface.Cls();
        QVERIFY(surface.picture().items.empty());
        QVERIFY(surface.revision() != before);
    }

    void eachEndedDocumentIsASheetAndAnEmptyOneIsNone() {
        PaperSurface paper;
        paper.EndDoc();
        paper.setCurrentX(100);
        paper.print("첫 장");
        paper.EndDoc();
        paper.setOrientation(SheetOrientation::Landscape);
        paper.print("둘째 장");
        paper.print("");
        const std::vector<Sheet> sheets = paper.takeSheets();
        QCOMPARE(sheets.size(), std::size_t{2});
        QVERIFY(!sheets[0].landscape);
        QVERIFY(sheets[1].landscape);
        QVERIFY(!paper.sheetsAreWaiting());
    }

    void sheetsBecomePagesOfOnePdf() {
        const kelvo::testing::TemporaryFolder folder;
        const QString path = QString::fromStdString(folder.file("sheets.pdf"));
        PaperSurface paper;
        for (int sheet = 0; sheet < 3; ++sheet) {
            paper.print("장");
            paper.EndDoc();
        }
        QPrinter printer(QPrinter::HighResolution);
        setUpPrinter(printer);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        QVERIFY(paintSheets(printer, paper.takeSheets()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray pdf = file.readAll();
        QCOMPARE(pdf.count("/Type /Page\n"), 3);
        // A printer that can't be opened is no silence.
        paper.print("장");
        printer.setOutputFileName(QStringLiteral("/nowhere/at/all.pdf"));
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        QVERIFY(!paintSheets(printer, paper.takeSheets()));
    }

    void aBlankSheetIsASheet() {
        PaperSurface paper;
        paper.print("");  // an empty line opens the sheet
        paper.EndDoc();
        paper.NewPage();  // passes over one that holds nothing
        paper.print("글");
        paper.NewPage();
        QCOMPARE(paper.takeSheets().size(), std::size_t{3});
        // Ending a job that has begun no sheet prints none.
        paper.EndDoc();
        QVERIFY(!paper.sheetsAreWaiting());
        QVERIFY(paper.takeSheets().empty());
    }

    void aBackgroundColourErasesAPictureButNoPaper() {
        PaperSurface paper;
        paper.Line(0, 0, 600, 600, 0, LineForm::Line);
        paper.setBackColor(0x00FF00);
        QCOMPARE(paper.takeSheets().at(0).picture.items.size(), std::size_t{1});
        PictureSurface picture({});
        picture.Line(0, 0, 600, 600, 0, LineForm::Line);
        picture.setBackColor(0x00FF00);
        QVERIFY(picture.picture().items.empty());
    }

    void aPictureHoldsThePointsAroundThePageAndCountsTheOthers() {
        PictureSurface surface({});
        surface.Line(0, 0, 8000, 8000, 0, LineForm::Box);
        for (const double x : {-7000.0, 100.0, 15500.0, 40000.0, 1e12}) {
            surface.Circle(x, 4000, 100, 0, 0, 0, 0, CircleForm::Whole);
        }
        const FramedPicture shown = framed(surface.picture());
        QCOMPARE(shown.pointsLeftOut, 2);
        QVERIFY(shown.frame.contains(QRectF(-7100, 0, 22600, 8000)));
        QVERIFY(shown.frame.width() < 30000);
        QCOMPARE(svgOf(shown).count(QStringLiteral("<ellipse ")), 3);
        QVERIFY(leftOutNote(2).contains(QStringLiteral("2")));
        QVERIFY(leftOutNote(0).isEmpty());
    }

    void aLongFooterIsShownWhole() {
        PictureSurface surface({});
        surface.setFont("굴림체");
        surface.setFontsize(10);
        surface.setCurrentX(400);
        surface.setCurrentY(9000);
        surface.print("Data File = " + std::string(300, 'x'));
        const FramedPicture shown = framed(surface.picture());
        QVERIFY(shown.frame.right() > 400 + 312 * 100);
        const kelvo::testing::TemporaryFolder folder;
        const QString path = QString::fromStdString(folder.file("a.png"));
        QVERIFY(savePicture(shown, path));
        const QImage image(path);
        // The last letters stand at the right edge of the file.
        bool ink = false;
        for (int y = 0; y < image.height() && !ink; ++y) {
            for (int x = image.width() * 97 / 100; x < image.width() && !ink; ++x) {
                ink = image.pixelColor(x, y).lightness() < 128;
            }
        }
        QVERIFY(ink);
    }

    // y grows downward in the file, angles grow against the clock: a quarter from the right to the
    // top.
    void aDocumentOfLinesHoldsArcsBoxesAndTurnedLetters() {
        const double quarter = std::acos(0.0);
        PictureSurface surface({});
        surface.Circle(1000, 1000, 400, 0x0000FF, 0, quarter, 0, CircleForm::Arc);
        surface.Circle(1000, 1000, 400, 0, quarter, 4 * quarter - 0.1, 0, CircleForm::Arc);
        surface.Line(0, 0, 600, 300, 0x00FF00, LineForm::FilledBox);
        surface.Line(0, 0, 600, 300, 0, LineForm::Box);
        surface.setFont("굴림체");
        surface.setFontBold(true);
        surface.setFontItalic(true);
        surface.setFontUnderline(true);
        surface.setFontStrikethru(true);
        surface.print("A");
        const QString svg = svgOf(framed(surface.picture()));
        QVERIFY2(svg.contains(QStringLiteral("<path d=\"M 1400.0 1000.0 A 400.0 400.0 0 0 0 1000.0 "
                                             "600.0\" fill=\"none\" stroke=\"#ff0000\"")),
                 qPrintable(svg));
        // More than half of the circle: the large arc.
        QVERIFY2(svg.contains(QStringLiteral("<path d=\"M 1000.0 600.0 A 400.0 400.0 0 1 0 ")),
                 qPrintable(svg));
        QVERIFY(
            svg.contains(QStringLiteral("width=\"600.0\" height=\"300.0\" fill=\"#00ff00\"/>")));
        QVERIFY(svg.contains(
            QStringLiteral("width=\"600.0\" height=\"300.0\" fill=\"none\" stroke=\"#000000\"")));
        QVERIFY(
            svg.contains(QStringLiteral("font-weight=\"bold\" font-style=\"italic\" "
                                        "text-decoration=\"underline line-through\"")));
    }

    void picturesAreSavedByTheEndingOfTheirName() {
        const kelvo::testing::TemporaryFolder folder;
        PictureSurface surface({});
        surface.Line(0, 0, 3000, 3000, 0, LineForm::Line);
        surface.setFont("굴림체");
        surface.print("점 <1> & 2");
        for (const char* name : {"a.png", "a.SVG", "a.pdf"}) {
            const QString path = QString::fromStdString(folder.file(name));
            QVERIFY2(savePicture(framed(surface.picture()), path), name);
            QVERIFY(QFile(path).size() > 300);
        }
        const FramedPicture shown = framed(surface.picture());
        QVERIFY(!savePicture(shown, QString::fromStdString(folder.file("a.bmp"))));
        QVERIFY(!savePicture(shown, QStringLiteral("/nowhere/at/all.png")));
        const QString svg = svgOf(shown);
        QVERIFY(svg.contains(QStringLiteral("점 &lt;1&gt; &amp; 2</text>")));
        QCOMPARE(svg.count(QStringLiteral("<line ")), 1);
    }
};

std::unique_ptr<QObject> kelvo::testing::surfaceTest() {
    return std::make_unique<SurfaceTest>();
}

#include "surface_test.moc"
