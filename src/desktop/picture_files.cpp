#include "desktop/picture_files.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextStream>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/picture_painter.h"
#include "desktop/raster_modes.h"
#include "desktop/twips.h"

namespace kelvo::desktop {

namespace {

constexpr double kSavedPixelsPerInch = 300;
constexpr double kMostPixels = 40e6;  // a wide picture gets fewer pixels to the inch

bool savePng(const FramedPicture& shown, const QString& path) {
    const QRectF& frame = shown.frame;
    const double scale = std::min(kSavedPixelsPerInch / kTwipsPerInch,
                                  std::sqrt(kMostPixels / (frame.width() * frame.height())));
    QImage image((frame.size() * scale).toSize(), QImage::Format_RGB32);
    const int dotsPerMetre = static_cast<int>(std::lround(scale * kTwipsPerInch / 0.0254));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(shown.picture.paper);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-frame.topLeft());
    paintPicture(painter, shown.picture, Medium::Pixels);
    painter.end();
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit();
}

bool savePdf(const FramedPicture& shown, const QString& path) {
    const QRectF& frame = shown.frame;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    {
        QPdfWriter writer(&file);
        writer.setCreator(QStringLiteral("Kelvo"));
        writer.setPageSize(
            QPageSize(frame.size() / 20, QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        QPainter painter(&writer);
        painter.scale(writer.resolution() / kTwipsPerInch, writer.resolution() / kTwipsPerInch);
        painter.translate(-frame.topLeft());
        paintPicture(painter, shown.picture, Medium::Paper);
        if (!painter.end()) return false;
    }
    return file.commit();
}

QString number(double value) {
    return QString::number(value, 'f', 1);
}

QString stroke(const Pen& pen, const QColor& ink) {
    return QStringLiteral("fill=\"none\" stroke=\"%1\" stroke-width=\"%2\"")
        .arg(ink.name(), number(pen.width));
}

class SvgWriter {
public:
    SvgWriter(const PlotPicture& picture, QTextStream& out)
        : looks_(picture.looks), faces_(picture.looks.begin(), picture.looks.end()), out_(out) {}

    void operator()(const DrawnLine& line) {
        const auto ink = inkOnPaper(line.pen.mode, line.pen.colour);
        if (!ink) return;
        out_ << "<line x1=\"" << number(line.from.x()) << "\" y1=\"" << number(line.from.y())
             << "\" x2=\"" << number(line.to.x()) << "\" y2=\"" << number(line.to.y()) << "\" "
             << stroke(line.pen, *ink) << "/>\n";
    }

    void operator()(const DrawnBox& box) {
        const auto ink = inkOnPaper(box.pen.mode, box.pen.colour);
        if (!ink) return;
        out_ << "<rect x=\"" << number(box.box.x()) << "\" y=\"" << number(box.box.y())
             << "\" width=\"" << number(box.box.width()) << "\" height=\""
             << number(box.box.height()) << "\" ";
        if (box.filled) {
            out_ << "fill=\"" << ink->name() << "\"/>\n";
        } else {
            out_ << stroke(box.pen, *ink) << "/>\n";
        }
    }

    void operator()(const DrawnCircle& circle) {
        const auto ink = inkOnPaper(circle.pen.mode, circle.pen.colour);
        if (!ink) return;
        const bool whole = !(circle.start < circle.end) && !(circle.end < circle.start);
        if (whole) {
            const auto fill = inkOnPaper(circle.pen.mode, circle.fill);
            out_ << "<ellipse cx=\"" << number(circle.centre.x()) << "\" cy=\""
                 << number(circle.centre.y()) << "\" rx=\"" << number(circle.radiusX) << "\" ry=\""
                 << number(circle.radiusY) << "\" "
                 << stroke(circle.pen, *ink)
                        .replace(QStringLiteral("none"),
                                 circle.filled && fill ? fill->name() : QStringLiteral("none"))
                 << "/>\n";
            return;
        }
        const auto at = [&circle](double angle) {
            return number(circle.centre.x() + circle.radiusX * std::cos(angle)) + ' ' +
                   number(circle.centre.y() - circle.radiusY * std::sin(angle));
        };
        double span = circle.end - circle.start;
        if (span < 0) span += 2 * std::numbers::pi;
        out_ << "<path d=\"M " << at(circle.start) << " A " << number(circle.radiusX) << ' '
             << number(circle.radiusY) << " 0 " << (span > std::numbers::pi ? 1 : 0) << " 0 "
             << at(circle.end) << "\" " << stroke(circle.pen, *ink) << "/>\n";
    }

    void operator()(const DrawnText& text) {
        const TextLook& look = looks_[text.look];
        const TextFace& face = faces_[text.look];
        out_ << "<text transform=\"translate(" << number(text.corner.x()) << ' '
             << number(text.corner.y()) << ')';
        if (std::abs(text.angle) >= 0.05) out_ << " rotate(" << number(-text.angle) << ')';
        out_ << "\" y=\"" << number(face.ascent()) << "\" textLength=\""
             << number(face.width(text.text)) << "\" fill=\"" << text.colour.name()
             << "\" font-family=\"" << look.face.toHtmlEscaped() << ", "
             << face.installedName().toHtmlEscaped() << "\" font-size=\"" << number(look.em) << '"';
        if (look.bold) out_ << " font-weight=\"bold\"";
        if (look.italic) out_ << " font-style=\"italic\"";
        if (look.underline || look.strikethru) {
            out_ << " text-decoration=\"" << (look.underline ? "underline " : "")
                 << (look.strikethru ? "line-through" : "") << '"';
        }
        out_ << " xml:space=\"preserve\">" << text.text.toHtmlEscaped() << "</text>\n";
    }

private:
    const std::vector<TextLook>& looks_;
    std::vector<TextFace> faces_;
    QTextStream& out_;
};

bool saveSvg(const FramedPicture& shown, const QString& path) {
    QSaveFile file(path);
    const QByteArray bytes = svgOf(shown).toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

}  // namespace

QString svgOf(const FramedPicture& shown) {
    QString document;
    QTextStream out(&document);
    const PlotPicture& picture = shown.picture;
    const QRectF& frame = shown.frame;
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << number(frame.width() / 20)
        << "pt\" height=\"" << number(frame.height() / 20) << "pt\" viewBox=\"" << number(frame.x())
        << ' ' << number(frame.y()) << ' ' << number(frame.width()) << ' ' << number(frame.height())
        << "\" stroke-linecap=\"round\">\n"
        << "<rect x=\"" << number(frame.x()) << "\" y=\"" << number(frame.y()) << "\" width=\""
        << number(frame.width()) << "\" height=\"" << number(frame.height()) << "\" fill=\""
        << picture.paper.name() << "\"/>\n";
    SvgWriter writer(picture, out);
    for (const DrawnItem& item : picture.items) {
        std::visit([&writer](const auto& drawn) { writer(drawn); }, item);
    }
    out << "</svg>\n";
    return document;
}

bool savePicture(const FramedPicture& shown, const QString& path) {
    const QString name = path.toLower();
    if (name.endsWith(QLatin1String(".png"))) return savePng(shown, path);
    if (name.endsWith(QLatin1String(".svg"))) return saveSvg(shown, path);
    if (name.endsWith(QLatin1String(".pdf"))) return savePdf(shown, path);
    return false;
}

}  // namespace kelvo::desktop
