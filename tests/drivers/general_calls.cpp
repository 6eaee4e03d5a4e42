// The routines of genSub, by name.
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/paths.h"
#include "common/plane_geometry.h"
#include "drivers/routine_bench.h"

namespace kelvo::testing {

namespace {

// A box as `v` reads it: a number too large is reported and counts as 0.
double valueOfBox(RoutineBench& bench, const std::string& text) {
    const NumberRead read = readNumber(text);
    if (read.tooLarge)
        bench.messages.tell("입력항 " + text + " 에 오류가 있습니다. 수정후 다시 하십시오");
    return read.value;
}

void parseFields(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const int limit = in.integer();
    bench.fields.LineBuf = in.text();
    genSub::ParseFields(bench.fields, limit);
    for (int n = 1; n <= bench.fields.filled; ++n)
        out.text(bench.fields.FieldStr(n))
            .number(bench.fields.FieldNum(n))
            .number(static_cast<double>(bench.fields.FieldSng(n)));
}

void formatNum(RoutineBench&, Arguments& in, AnswerLine& out) {
    const Argument value = in.numberOrText();
    const int width = in.integer();
    const int decimals = in.integer();
    if (const auto* number = std::get_if<double>(&value))
        out.text(genSub::FormatNum(*number, width, decimals));
    else
        out.text(
            genSub::FormatNum(std::string_view(std::get<std::string>(value)), width, decimals));
}

const Routines kRoutines = {
    {"DisplayLen", [](RoutineBench&, Arguments& in,
                      AnswerLine& out) { out.integer(genSub::DisplayLen(in.text())); }},
    {"Blanks",
     [](RoutineBench&, Arguments& in, AnswerLine& out) { out.text(genSub::Blanks(in.integer())); }},
    {"FormatNum", formatNum},
    {"FormatText",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const std::string text = in.text();
         const int width = in.integer();
         out.text(genSub::FormatText(text, width, genSub::Align{in.integer()}));
     }},
    {"FileExtensionOf", [](RoutineBench&, Arguments& in,
                           AnswerLine& out) { out.text(genSub::FileExtensionOf(in.text())); }},
    {"StripExtension", [](RoutineBench&, Arguments& in,
                          AnswerLine& out) { out.text(genSub::StripExtension(in.text())); }},
    {"FolderOf", [](RoutineBench& bench, Arguments& in,
                    AnswerLine& out) { out.text(genSub::FolderOf(bench.disk, in.text())); }},
    {"FileTitleOf", [](RoutineBench&, Arguments& in,
                       AnswerLine& out) { out.text(genSub::FileTitleOf(in.text())); }},
    {"FileExists",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         if (const auto found = genSub::FileExists(bench.disk, in.text()))
             out.integer(*found);
         else
             out.noValue();
     }},
    {"RunProgram",
     [](RoutineBench& bench, Arguments& in, AnswerLine&) {
         genSub::RunProgram(bench.programs, bench.messages, in.text());
     }},
    {"CopyFileGuard",
     [](RoutineBench& bench, Arguments& in, AnswerLine&) {
         const std::string source = in.text();
         genSub::CopyFileGuard(bench.disk, bench.messages, source, in.text());
     }},
    {"Log10Guard", [](RoutineBench&, Arguments& in,
                      AnswerLine& out) { out.number(genSub::Log10Guard(in.number())); }},
    {"SqrGuard",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         out.number(genSub::SqrGuard(in.number(), bench.messages));
     }},
    {"MinOf",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double a = in.number();
         out.number(genSub::MinOf(a, in.number()));
     }},
    {"DistanceToLine",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         double c[6];
         for (double& value : c) value = in.number();
         const auto result = genSub::DistanceToLine(c[0], c[1], c[2], c[3], c[4], c[5]);
         out.number(result.distance).number(result.direction);
     }},
    {"PolarPoint",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         double c[4];
         for (double& value : c) value = in.number();
         const auto point = genSub::PolarPoint(c[0], c[1], c[2], c[3]);
         out.number(point.x).number(point.y);
     }},
    {"LineIntersection",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         double c[8];
         for (double& value : c) value = in.number();
         const auto point =
             genSub::LineIntersection(c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7]);
         out.number(point.x).number(point.y);
     }},
    {"DistanceAndDirection",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         double c[4];
         for (double& value : c) value = in.number();
         const auto result = genSub::DistanceAndDirection(c[0], c[1], c[2], c[3]);
         out.number(result.direction).number(result.distance);
     }},
    {"ParseFields", parseFields},
    {"JoinFields",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const int first = in.integer();
         const int last = in.integer();
         bench.fields.LineBuf = in.text();
         out.text(genSub::JoinFields(bench.fields, first, last));
     }},
    {"v", [](RoutineBench& bench, Arguments& in,
             AnswerLine& out) { out.number(valueOfBox(bench, in.text())); }},
};

}  // namespace

const Routines& generalRoutines() {
    return kRoutines;
}

}  // namespace kelvo::testing
