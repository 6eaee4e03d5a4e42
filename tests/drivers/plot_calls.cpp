#include "drivers/plot_calls.h"

#include <map>
#include <tuple>
#include <vector>

#include "common/checked_arithmetic.h"

namespace kelvo::testing {
namespace {

using Operation = void (*)(PlotBench&, Arguments&, AnswerLine&);

// Calls a member whose arguments are all numbers and that gives nothing.
template <typename... Numbers>
struct NumbersCall {
    template <void (clsplot1::*member)(Numbers...)>
    static void call(PlotBench& bench, Arguments& args, AnswerLine&) {
        // Braces take the arguments from left to right.
        const std::tuple<Numbers...> values{static_cast<Numbers>(args.number())...};
        args.requireEnd();
        std::apply([&](Numbers... value) { (bench.object.*member)(value...); }, values);
    }
};

template <typename Member>
struct NumbersOf;
template <typename... Numbers>
struct NumbersOf<void (clsplot1::*)(Numbers...)> {
    using type = NumbersCall<Numbers...>;
};

template <auto member>
void numbers(PlotBench& bench, Arguments& args, AnswerLine& answer) {
    NumbersOf<decltype(member)>::type::template call<member>(bench, args, answer);
}

// A member that takes and gives one number.
template <double (clsplot1::*member)(double) const>
void function(PlotBench& bench, Arguments& args, AnswerLine& answer) {
    const double x = args.number();
    args.requireEnd();
    answer.number((bench.object.*member)(x));
}

template <auto member>
void value(PlotBench& bench, Arguments& args, AnswerLine& answer) {
    args.requireEnd();
    answer.number((bench.object.*member)());
}

template <void (clsplot1::*member)(bool)>
void flag(PlotBench& bench, Arguments& args, AnswerLine&) {
    const bool on = args.boolean();
    args.requireEnd();
    (bench.object.*member)(on);
}

template <void (clsplot1::*member)(std::string_view)>
void text(PlotBench& bench, Arguments& args, AnswerLine&) {
    const std::string given = args.text();
    args.requireEnd();
    (bench.object.*member)(given);
}

std::int32_t colour(Arguments& args) {
    return roundedInteger32(args.number());
}

// A box or a shape of numbers, with its colour after them.
template <void (clsplot1::*member)(double, double, double, double, std::int32_t)>
void colouredBox(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double x1 = args.number();
    const double y1 = args.number();
    const double x2 = args.number();
    const double y2 = args.number();
    const std::int32_t with = colour(args);
    args.requireEnd();
    (bench.object.*member)(x1, y1, x2, y2, with);
}

void pinitialize(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double x0 = args.number();
    const double y0 = args.number();
    const double sx = args.number();
    const double sy = args.number();
    const double kind = args.number();
    args.requireEnd();
    bench.object.pinitialize(x0, y0, sx, sy, kind, kind == 2 ? bench.screen : bench.printer);
}

void pline(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double x1 = args.number();
    const double y1 = args.number();
    const double x2 = args.number();
    const double y2 = args.number();
    const double lw = args.number();
    const bool alt = !args.atEnd() && args.boolean();
    args.requireEnd();
    bench.object.pline(x1, y1, x2, y2, lw, alt);
}

void ChangeColor(PlotBench& bench, Arguments& args, AnswerLine&) {
    const std::int32_t to = colour(args);
    const double which = args.number();
    args.requireEnd();
    bench.object.ChangeColor(to, which);
}

void pFillCircle(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double x = args.number();
    const double y = args.number();
    const double r = args.number();
    const std::int32_t with = colour(args);
    args.requireEnd();
    bench.object.pFillCircle(x, y, r, with);
}

void pFillEllipse(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double x = args.number();
    const double y = args.number();
    const double a = args.number();
    const double turn = args.number();
    const double ratio = args.number();
    const std::int32_t with = colour(args);
    args.requireEnd();
    bench.object.pFillEllipse(x, y, a, turn, ratio, with);
}

void pFillPoly(PlotBench& bench, Arguments& args, AnswerLine&) {
    const int n = args.integer();
    const std::int32_t with = colour(args);
    std::vector<double> xs;
    std::vector<double> ys;
    while (!args.atEnd()) {
        xs.push_back(args.number());
        ys.push_back(args.number());
    }
    bench.object.pFillPoly(xs, ys, n, with);
}

void pgrid(PlotBench& bench, Arguments& args, AnswerLine&) {
    double v[13];
    for (double& number : v) number = args.number();
    const std::int32_t major = colour(args);
    const std::int32_t minor = colour(args);
    args.requireEnd();
    bench.object.pgrid(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11],
                       v[12], major, minor);
}

void ptext(PlotBench& bench, Arguments& args, AnswerLine&) {
    const std::string given = args.text();
    const double x = args.number();
    const double y = args.number();
    const double size = args.number();
    args.requireEnd();
    bench.object.ptext(given, x, y, size);
}

void ptextC(PlotBench& bench, Arguments& args, AnswerLine&) {
    const std::string given = args.text();
    const double x1 = args.number();
    const double x2 = args.number();
    const double y = args.number();
    const double size = args.number();
    args.requireEnd();
    bench.object.ptextC(given, x1, x2, y, size);
}

void ptextR(PlotBench& bench, Arguments& args, AnswerLine&) {
    const std::string given = args.text();
    const double x = args.number();
    const double y = args.number();
    const double angle = args.number();
    const double size = args.number();
    const std::string font = args.atEnd() ? std::string() : args.text();
    args.requireEnd();
    bench.object.ptextR(given, x, y, angle, size, font);
}

void pvtext(PlotBench& bench, Arguments& args, AnswerLine&) {
    const std::string given = args.text();
    const double x = args.number();
    const double y = args.number();
    const double pitch = args.number();
    const double unused = args.number();
    const double sz = args.number();
    args.requireEnd();
    bench.object.pvtext(given, x, y, pitch, unused, sz);
}

void pvalue(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double number = args.number();
    const double x = args.number();
    const double y = args.number();
    const int width = args.integer();
    const int decimals = args.integer();
    const double size = args.number();
    args.requireEnd();
    bench.object.pvalue(number, x, y, width, decimals, size);
}

void pformvalue(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double number = args.number();
    const double x = args.number();
    const double y = args.number();
    const std::string format = args.text();
    const double size = args.number();
    args.requireEnd();
    bench.object.pformvalue(number, x, y, format, size);
}

void ChangeFontStyle(PlotBench& bench, Arguments& args, AnswerLine&) {
    const double which = args.number();
    const std::string on = args.text();
    args.requireEnd();
    bench.object.ChangeFontStyle(which, on);
}

void ticmark(PlotBench& bench, Arguments& args, AnswerLine& answer) {
    const double x = args.number();
    const double y = args.number();
    const double size = args.number();
    const double kind = args.number();
    double lw = args.number();
    args.requireEnd();
    bench.object.ticmark(x, y, size, kind, lw);
    answer.number(lw);
}

void TriStroke(PlotBench&, Arguments& args, AnswerLine& answer) {
    double v[8];
    for (double& number : v) number = args.number();
    args.requireEnd();
    const auto stroke = clsplot1::TriStroke(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
    answer.number(stroke.ax).number(stroke.ay).number(stroke.bx).number(stroke.by);
}

const std::map<std::string, Operation>& operations() {
    static const std::map<std::string, Operation> all{
        {"Curxs", value<&clsplot1::Curxs>},
        {"Curys", value<&clsplot1::Curys>},
        {"LastX", value<&clsplot1::LastX>},
        {"LastY", value<&clsplot1::LastY>},
        {"pKind", value<&clsplot1::pKind>},
        {"cx", function<&clsplot1::cx>},
        {"cy", function<&clsplot1::cy>},
        {"cxInv", function<&clsplot1::cxInv>},
        {"cyInv", function<&clsplot1::cyInv>},
        {"pinitialize", pinitialize},
        {"pwindow", numbers<&clsplot1::pwindow>},
        {"pmoveto", numbers<&clsplot1::pmoveto>},
        {"pmoverelto", numbers<&clsplot1::pmoverelto>},
        {"pmovemmto", numbers<&clsplot1::pmovemmto>},
        {"plwidth", numbers<&clsplot1::plwidth>},
        {"Clear", numbers<&clsplot1::Clear>},
        {"SkipPage", numbers<&clsplot1::SkipPage>},
        {"SkipPage1", numbers<&clsplot1::SkipPage1>},
        {"EndPlot", numbers<&clsplot1::EndPlot>},
        {"ChangeOrint", numbers<&clsplot1::ChangeOrint>},
        {"SetOrint", numbers<&clsplot1::SetOrint>},
        {"ChangeColor", ChangeColor},
        {"setBlackWhite", flag<&clsplot1::setBlackWhite>},
        {"setPrinterType", text<&clsplot1::setPrinterType>},
        {"GetPrinterMode", flag<&clsplot1::GetPrinterMode>},
        {"pline", pline},
        {"plineto", numbers<&clsplot1::plineto>},
        {"plinerelto", numbers<&clsplot1::plinerelto>},
        {"plinemmto", numbers<&clsplot1::plinemmto>},
        {"plinedot", numbers<&clsplot1::plinedot>},
        {"pbox", numbers<&clsplot1::pbox>},
        {"pcircle", numbers<&clsplot1::pcircle>},
        {"pcircledot", numbers<&clsplot1::pcircledot>},
        {"parrow", numbers<&clsplot1::parrow>},
        {"pfillMode", numbers<&clsplot1::pfillMode>},
        {"pfill", colouredBox<&clsplot1::pfill>},
        {"pFillBox", colouredBox<&clsplot1::pFillBox>},
        {"pFillCircle", pFillCircle},
        {"pFillEllipse", pFillEllipse},
        {"pFillPoly", pFillPoly},
        {"pFillTri", numbers<&clsplot1::pFillTri>},
        {"TriStroke", TriStroke},
        {"ptheight", numbers<&clsplot1::ptheight>},
        {"ptext", ptext},
        {"ptextC", ptextC},
        {"ptextR", ptextR},
        {"pvtext", pvtext},
        {"pvalue", pvalue},
        {"pformvalue", pformvalue},
        {"pclear", numbers<&clsplot1::pclear>},
        {"ChangeFont", text<&clsplot1::ChangeFont>},
        {"ChangeFontStyle", ChangeFontStyle},
        {"pgrid", pgrid},
        {"ticmark", ticmark},
        {"Class_Initialize", numbers<&clsplot1::Class_Initialize>},
    };
    return all;
}

}  // namespace

std::optional<AnswerLine> callPlot(PlotBench& bench, Call& call) {
    const auto found = operations().find(call.name);
    if (found == operations().end()) return std::nullopt;
    AnswerLine answer(call.name);
    found->second(bench, call.arguments, answer);
    return answer;
}

}  // namespace kelvo::testing
