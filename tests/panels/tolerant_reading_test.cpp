// Each arrow reads its boxes as far as they are a number. So a word after the number changes
// nothing, a word alone counts as 0, and a number too large is reported once for its box.
#include <map>
#include <vector>

#include "common/number_text.h"
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::PanelBench;
using Boxes = std::vector<const char*>;

const Boxes kDatum{"txtdX",    "txtdY", "txtdZ",   "txtOmega", "txtPhi",
                   "txtKappa", "txtdS", "txtdPhi", "txtdLam",  "txtdH"};
const Boxes kEllipsoid{"txta", "txtf"};
const Boxes kOrigin{"txtPhi0", "txtLam0", "txtX0", "txtY0", "txtS0"};
const Boxes kUtm{"txtUa", "txtUf", "txtUPhi0", "txtULam0", "txtUX0", "txtUY0", "txtUS0"};
Boxes together(std::initializer_list<Boxes> lists) {
    Boxes all;
    for (const Boxes& list : lists) all.insert(all.end(), list.begin(), list.end());
    return all;
}

struct Arrow {
    const char* name;
    Boxes reads;   // by the tolerant rule
    Boxes strict;  // heights that are taken as numbers
    Boxes writes;  // results to compare
};

const std::vector<Arrow>& arrows() {
    static const std::vector<Arrow> all{
        {"cmdW2B",
         together({kDatum, kEllipsoid, {"txtWdegPhi", "txtWdegLam"}}),
         {"txtWdegTH"},
         {"txtBdegPhi", "txtBdegLam", "txtBdegH", "txtBdmsPhi", "txtBdmsLam", "txtBdmsH",
          "txtBGeoid", "txtBTH", "txtwGeoid", "txtwH", "txtWdmsPhi", "txtWdmsLam"}},
        {"cmdB2W",
         together({kDatum, kEllipsoid, {"txtBdegPhi", "txtBdegLam"}}),
         {"txtBdegH"},
         {"txtWdegPhi", "txtWdegLam", "txtWdegTH", "txtWdmsPhi", "txtWdmsLam", "txtWdmsTH",
          "txtwGeoid", "txtwH", "txtBdmsPhi", "txtBdmsLam"}},
        {"cmdGP2TM",
         together({kEllipsoid, kOrigin, {"txtBdegPhi", "txtBdegLam"}}),
         {"txtBdegH"},
         {"txtX", "txtY", "txtH", "txtGeoid", "txtTH", "txtBGeoid", "txtBTH", "txtBdmsPhi",
          "txtBdmsLam"}},
        {"cmdTM2GP",
         together({kEllipsoid, kOrigin, {"txtX", "txtY"}}),
         {"txtH"},
         {"txtBdegPhi", "txtBdegLam", "txtBdegH", "txtBdmsPhi", "txtBdmsLam", "txtBdmsH",
          "txtBGeoid", "txtBTH", "txtGeoid", "txtTH"}},
        {"cmdTM2UTM",
         together({kEllipsoid, kOrigin, kUtm, {"txtX", "txtY", "txtH"}}),
         {},
         {"txtUX", "txtUY", "txtUH"}},
        {"cmdUTM2TM",
         together({kEllipsoid, kOrigin, kUtm, {"txtUX", "txtUY", "txtUH"}}),
         {},
         {"txtX", "txtY", "txtH"}},
    };
    return all;
}

// A panel with numbers in every box that an arrow reads, none of them 0 and no two alike.
class Tolerant : public PanelBench {
protected:
    void fill() {
        click("optUser");
        click("optUUser");
        click("optWdeg");
        click("optBdeg");
        const std::pair<const char*, const char*> values[] = {
            {"txtdX", "115.8"},     {"txtdY", "-474.99"},     {"txtdZ", "-674.11"},
            {"txtOmega", "1.16"},   {"txtPhi", "-2.31"},      {"txtKappa", "-1.63"},
            {"txtdS", "-6.43"},     {"txtdPhi", "0.5"},       {"txtdLam", "-0.25"},
            {"txtdH", "1.5"},       {"txta", "6377397.155"},  {"txtf", "299.1528128"},
            {"txtPhi0", "38"},      {"txtLam0", "127"},       {"txtX0", "500000"},
            {"txtY0", "200000"},    {"txtS0", "0.9999"},      {"txtUa", "6378137"},
            {"txtUf", "298.25"},    {"txtUPhi0", "1"},        {"txtULam0", "129"},
            {"txtUX0", "1000"},     {"txtUY0", "500000"},     {"txtUS0", "0.9996"},
            {"txtWdegPhi", "37.5"}, {"txtWdegLam", "127.25"}, {"txtWdegTH", "100.5"},
            {"txtBdegPhi", "37.4"}, {"txtBdegLam", "127.2"},  {"txtBdegH", "50.5"},
            {"txtX", "430000"},     {"txtY", "215000"},       {"txtH", "12.5"},
            {"txtUX", "4000000"},   {"txtUY", "350000"},      {"txtUH", "13.5"}};
        for (const auto& [box, value] : values) type(box, value);
        state.conversion.ParaDirty = false;  // the strict way to the stored set isn't taken
        messages.shown.clear();
    }
    [[nodiscard]] std::map<std::string, std::string> results(const Boxes& boxes) {
        std::map<std::string, std::string> texts;
        for (const char* box : boxes) texts[box] = text(box);
        return texts;
    }
};

TEST_F(Tolerant, AWordAfterTheNumberChangesNothingAtAnyArrow) {
    for (const Arrow& arrow : arrows()) {
        fill();
        click(arrow.name);
        const auto plain = results(arrow.writes);
        ASSERT_TRUE(messages.shown.empty()) << arrow.name;
        for (const char* box : arrow.reads) {
            fill();
            type(box, " " + text(box) + " m,abc");
            state.conversion.ParaDirty = false;
            EXPECT_EQ(faultOf([&] { click(arrow.name); }), 0) << arrow.name << ' ' << box;
            EXPECT_EQ(results(arrow.writes), plain) << arrow.name << ' ' << box;
            EXPECT_TRUE(messages.shown.empty()) << arrow.name << ' ' << box;
        }
    }
}

TEST_F(Tolerant, AWordAloneAndAnEmptyBoxCountAsZeroAtEveryArrow) {
    for (const Arrow& arrow : arrows()) {
        for (const char* box : arrow.reads) {
            const auto with = [&](const char* words) {
                fill();
                type(box, words);
                state.conversion.ParaDirty = false;
                const int fault = faultOf([&] { click(arrow.name); });
                return std::pair(fault, results(arrow.writes));
            };
            const auto zero = with("0");
            EXPECT_EQ(with("abc"), zero) << arrow.name << ' ' << box;
            EXPECT_EQ(with(""), zero) << arrow.name << ' ' << box;
        }
    }
}

TEST_F(Tolerant, EveryBoxThatAnArrowReadsCountsThere) {
    for (const Arrow& arrow : arrows()) {
        fill();
        click(arrow.name);
        const auto plain = results(arrow.writes);
        for (const char* box : arrow.reads) {
            fill();
            const double value = leadingNumber(text(box));
            type(box, generalText(value * 1.01));
            state.conversion.ParaDirty = false;
            click(arrow.name);
            EXPECT_NE(results(arrow.writes), plain) << arrow.name << ' ' << box;
        }
    }
}

TEST_F(Tolerant, ANumberTooLargeIsToldOnceAndCountsAsZeroAtEveryArrow) {
    for (const Arrow& arrow : arrows()) {
        for (const char* box : arrow.reads) {
            if (std::string_view(box) == "txtH" || std::string_view(box) == "txtUH")
                continue;  // handed on as a text
            fill();
            type(box, "1e999");
            state.conversion.ParaDirty = false;
            (void)faultOf([&] { click(arrow.name); });
            int told = 0;
            for (const std::string& text : messages.texts())
                told += text == "입력항 1e999 에 오류가 있습니다. 수정후 다시 하십시오";
            EXPECT_EQ(told, 1) << arrow.name << ' ' << box;
        }
    }
}

TEST_F(Tolerant, HeightsThatAreTakenAsNumbersAreTheOnlyStrictBoxes) {
    for (const Arrow& arrow : arrows()) {
        for (const char* box : arrow.strict) {
            for (const char* words : {"12abc", "abc", "", "1,5"}) {
                fill();
                type(box, words);
                state.conversion.ParaDirty = false;
                EXPECT_EQ(faultOf([&] { click(arrow.name); }), 13) << arrow.name << ' ' << words;
            }
            fill();
            type(box, "1e999");
            state.conversion.ParaDirty = false;
            EXPECT_EQ(faultOf([&] { click(arrow.name); }), 6) << arrow.name;
        }
    }
}

TEST_F(Tolerant, TheOtherAngleFormIsReadTheSameWay) {
    const struct {
        const char* arrow;
        const char* option;
        const char* box;
        const char* filled;
    } cases[] = {{"cmdW2B", "optWdms", "txtWdmsPhi", "txtWdegPhi"},
                 {"cmdB2W", "optBdms", "txtBdmsPhi", "txtBdegPhi"},
                 {"cmdGP2TM", "optBdms", "txtBdmsPhi", "txtBdegPhi"}};
    for (const auto& c : cases) {
        fill();
        click(c.option);
        type(c.box, "  36.30 N");
        state.conversion.ParaDirty = false;
        click(c.arrow);
        EXPECT_EQ(text(c.filled), "36.5") << c.arrow;
        EXPECT_TRUE(messages.shown.empty()) << c.arrow;
    }
}

}  // namespace
}  // namespace kelvo
