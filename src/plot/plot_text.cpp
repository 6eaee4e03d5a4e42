// The plot object: upright text and numbers.
#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/utf8.h"
#include "plot/clsplot1.h"
#include "plot/format_picture.h"
#include "plot/plot_constants.h"

namespace kelvo {

void clsplot1::ptheight(double h) {
    double p = finite(ScaleMean_ * h);
    if (onScreen() && p < 3) p = 3;
    if (p < 1) p = 1;
    surface().setFontsize(p);
}

void clsplot1::sizeStep(double size) {
    if (size != 0) TextSize_ = size;
    ptheight(TextSize_);
}

clsplot1::Box clsplot1::textBox(double x, double y, std::string_view text) const {
    const double th = surface().TextHeight(text);
    const double tw = surface().TextWidth(text);
    return {.left = x,
            .top = cyInv(cy(y) - 0.7 * th),
            .right = cxInv(cx(x) + tw),
            .bottom = cyInv(cy(y) + 0.1 * th)};
}

void clsplot1::erase(const Box& box) {
    pfillMode(kFillCopying);
    const std::int32_t colour = onScreen() ? surface().BackColor() : kWhite;
    pfill(box.left, box.top, box.right, box.bottom, colour);
}

void clsplot1::printAt(double X, double y, std::string_view text, std::string_view heightOf) {
    Surface& on = surface();
    on.setCurrentX(finite(X));
    on.setCurrentY(finite(cy(y) - 0.8 * on.TextHeight(heightOf)));
    on.print(text);
}

void clsplot1::ptext(std::string_view text, double x, double y, double size) {
    sizeStep(size);
    if (BoxErase_ == 1) erase(textBox(x, y, text));
    printAt(cx(x), y, text, text);
    if (BoxErase_ == 1) pfillMode(kFillBlack);
}

void clsplot1::ptextC(std::string_view text, double x1, double x2, double y, double size) {
    sizeStep(size);
    if (size == 0) ptheight(TextSize_);
    if (BoxErase_ == 1) {
        const double half = (x2 - x1) / 2.0;  // without x1 (required)
        const double tw = surface().TextWidth(text);
        Box box = textBox(half, y, text);
        box.left = cxInv(cx(half) - tw / 2.0);
        box.right = cxInv(cx(half) - tw / 2.0 + tw);
        erase(box);
    }
    printAt(cx(x1 + (x2 - x1) / 2.0) - surface().TextWidth(text) / 2.0, y, text, text);
    if (BoxErase_ == 1) pfillMode(kFillBlack);
}

void clsplot1::pvtext(std::string_view text, double x, double y, double pitch, double /*unused*/,
                      double sz) {
    const std::int16_t s = roundedInteger16(sz - 1);
    for (int i = 1; !text.empty(); ++i) {
        const std::string_view character = text.substr(0, firstCharacter(text).length);
        text.remove_prefix(character.size());
        pmovemmto(x, 0, y, pitch * (i - 1));
        ptext(character, LastX_, LastY_, s);
    }
}

void clsplot1::pvalue(double value, double x, double y, int width, int decimals, double size) {
    ptext(genSub::FormatNum(value, width, decimals), x, y, size);
}

void clsplot1::pformvalue(double value, double x, double y, std::string_view format, double size) {
    if (size != 0 && size != TextSize_) {
        ptheight(size);
        TextSize_ = size;
    }
    const std::string text = formatByPicture(value, format);
    if (BoxErase_ == 1) {
        const Box box = textBox(x, y, text);
        pfill(box.left, box.top, box.right, box.bottom, kWhite);
    }
    // By the height of one letter, so that the numbers of a column sit on one line.
    printAt(cx(x), y, text, "A");
}

void clsplot1::pclear(double v) {
    if (v == 1) BoxErase_ = 1;
    if (v == 0) BoxErase_ = 0;
}

}  // namespace kelvo
