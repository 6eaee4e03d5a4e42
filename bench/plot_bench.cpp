// A plot of 10,000 named points on the raster surface: drawing it into a picture, and painting
// the picture. Asked: under 0.3 s together. Run it with QT_QPA_PLATFORM=offscreen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QThread>
#include <algorithm>
#include <array>
#include <string>

#include "desktop/korean_faces.h"
#include "desktop/picture_painter.h"
#include "desktop/picture_surface.h"
#include "desktop/plot_view.h"
#include "plot/clsplot1.h"
#include "plot/point_plots.h"

namespace {

using namespace kelvo;
using desktop::PictureSurface;

constexpr int kPoints = 10000;
constexpr int kSide = 900;  // pixels

class Silence final : public MessageBoxes, public ProgramStarter, public ScalePanel {
public:
    Answer show(const Message&) override { return Answer::Ok; }
    void start(const std::string&) override {}
    void takeScale(PointPlot, const std::array<std::string, 4>&) override {}
};

// Points over 3 km of a TM grid, spread without a pattern to speak of.
PointTable somePoints() {
    PointTable points;
    points.PointCount = kPoints;
    unsigned state = 20040607;
    const auto next = [&state] { return (state = state * 1664525U + 1013904223U) >> 8; };
    for (int row = 1; row <= kPoints; ++row) {
        PointRec& point = points.row(row);
        point.name = "점-" + std::to_string(row);
        point.TmX = 453000 + static_cast<double>(next() % 300000) / 100;
        point.TmY = 158000 + static_cast<double>(next() % 300000) / 100;
    }
    return points;
}

struct Drawing {
    Silence silence;
    PointTable points = somePoints();
    PlotCfg cfg;
    PlotTexts texts{.dataFile = "data/test.dat", .date = "2004-06-07", .time = "09:30:00"};
    PictureSurface surface{{}};
    clsplot1 object{silence, silence, surface};

    Drawing() {
        cfg.PlotKind = PointPlot::XY;
        cfg.PlotManual = 1;
        cfg.PlotFontSize = 8;
        cfg.XY = {.Xb = 453000, .Yb = 158000, .Span = 3000, .Inter = 500};
    }

    void draw() {
        PlotSource source{.points = points, .cfg = cfg, .panel = silence, .texts = texts};
        plot(object, SurfaceKind::Screen, surface, source);
    }

    void paint(QImage& image) const {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(kSide / 9450.0, kSide / 9450.0);
        paintPicture(painter, surface.picture(), desktop::Medium::Pixels);
    }
};

void drawTenThousandPoints(benchmark::State& state) {
    Drawing drawing;
    for (auto _ : state) drawing.draw();
}

void paintTenThousandPoints(benchmark::State& state) {
    Drawing drawing;
    drawing.draw();
    QImage image(kSide, kSide, QImage::Format_RGB32);
    for (auto _ : state) drawing.paint(image);
}

void drawAndPaintTenThousandPoints(benchmark::State& state) {
    Drawing drawing;
    QImage image(kSide, kSide, QImage::Format_RGB32);
    for (auto _ : state) {
        drawing.draw();
        drawing.paint(image);
    }
}

// What a person waits for at the plot in the window: a frame while the picture moves, and the sharp
// picture when it rests.
struct ShownPlot {
    Drawing drawing;
    desktop::PlotView view;
    clsplot1 object{drawing.silence, drawing.silence, view.surface()};

    ShownPlot() {
        view.resize(1400, 1000);
        PlotSource source{.points = drawing.points,
                          .cfg = drawing.cfg,
                          .panel = drawing.silence,
                          .texts = drawing.texts};
        plot(object, SurfaceKind::Screen, view.surface(), source);
        view.refresh();
        view.grab();
    }
};

void frameWhileThePictureMoves(benchmark::State& state) {
    ShownPlot shown;
    QImage image(shown.view.size(), QImage::Format_RGB32);
    double factor = 1.25;
    for (auto _ : state) {
        shown.view.magnify(factor, {700, 500});
        factor = shown.view.magnification() > 20  ? 0.8
                 : shown.view.magnification() < 2 ? 1.25
                                                  : factor;
        shown.view.render(&image);
    }
}

void sharpPictureAtRest(benchmark::State& state) {
    ShownPlot shown;
    const auto magnified = static_cast<double>(state.range(0));
    shown.view.magnify(magnified, {700, 500});
    QImage image(shown.view.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        shown.view.paintSharp();
        shown.view.render(&image);
    }
}

void takingOverANewPlot(benchmark::State& state) {
    ShownPlot shown;
    for (auto _ : state) benchmark::DoNotOptimize(desktop::framed(shown.view.surface().picture()));
}

// The longest that a movement waits while the sharp picture comes.
void longestTile(benchmark::State& state) {
    ShownPlot shown;
    shown.view.show();
    double longest = 0;
    for (auto _ : state) {
        shown.view.magnify(4 / shown.view.magnification(), {700, 500});
        shown.view.magnify(1.01, {700, 500});
        QElapsedTimer clock;
        for (int turn = 0; turn < 40; ++turn) {
            clock.start();
            QApplication::processEvents(QEventLoop::AllEvents, 1);
            longest = std::max(longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
            if (turn == 0) QThread::msleep(70);
        }
    }
    state.counters["longest_ms"] = longest;
}

BENCHMARK(longestTile)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(frameWhileThePictureMoves)->Unit(benchmark::kMillisecond);
BENCHMARK(sharpPictureAtRest)->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);
BENCHMARK(takingOverANewPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(drawTenThousandPoints)->Unit(benchmark::kMillisecond);
BENCHMARK(paintTenThousandPoints)->Unit(benchmark::kMillisecond);
BENCHMARK(drawAndPaintTenThousandPoints)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    desktop::installFaceSubstitutes();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
