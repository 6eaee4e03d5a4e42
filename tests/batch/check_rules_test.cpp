// Every rule of the check both ways: a file that breaks it, the same file put right, and the line
// of docs/data-file.md that explains it.
#include <gtest/gtest.h>

#include <set>

#include "batch/check_bench.h"
#include "common/code_page.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using Kind = FindingKind;
using testing::check;
using testing::kKnownPoints;
using testing::shown;

struct Rule {
    Kind kind;
    std::string excerpt;  // of what is said, as the page on the data file gives it
    long line;            // where it is said
    std::string slip;
    std::string sound;
    std::string knownOfSlip = kKnownPoints;
    std::string knownOfSound = kKnownPoints;
};

// One point by itself, and what most rules need around it.
const std::string kPoint = "WGS A 37.3533 126.3229 0\n";
const std::string kEnd = "end\n\n";
const std::string kCorrected = "CORRECTION\n";

std::string utf8AsRead(const std::string& text) {
    return decodeCodePage(text);
}

std::string knownWith(const std::string& line) {
    return line + "\n" + kKnownPoints;
}

std::string manyPoints(int count) {
    std::string text = "WGS P0 37.3533 126.3229 0\n";
    for (int i = 1; i < count; ++i) text += "    P" + std::to_string(i) + " 37.3533 126.3229 0\n";
    return text + kEnd;
}

std::vector<Rule> wordRules() {
    return {
        {Kind::WrongEncoding, "UTF-8로 저장된 파일이라", 1,
         utf8AsRead("* 가나다 라마바\n" + kPoint + kEnd), "* 가나다 라마바\n" + kPoint + kEnd},
        {Kind::NoCommand, "어느 명령도 아니어서 건너뜁니다", 1,
         "A 37.3533 126.3229\n" + kPoint + kEnd, "* A 37.3533 126.3229\n" + kPoint + kEnd},
        {Kind::OutsideBlock, "이 줄은 건너뜁니다", 3,
         kPoint + "* 비고\n    B 37.3534 126.3230 0\n" + kEnd,
         kPoint + "    B 37.3534 126.3230 0\n" + kEnd},
        {Kind::OnlyResembles, "명령은 첫 두 글자로만 가립니다", 2, kPoint + "DIGITS 4\n" + kEnd,
         kPoint + "   B 37.3534 126.3230 0\nDISTANCE A B\n" + kEnd},
        {Kind::LastLineLost, "파일의 마지막 줄이어서 실행되지 않습니다", 2,
         kPoint + "UGS B 37.3534 126.3230 0\n", kPoint + "UGS B 37.3534 126.3230 0\n\n"},
        {Kind::AfterEnd, "end 뒤여서 여기부터는 읽지 않습니다", 4,
         kPoint + "end\n* 비고\nWGS B 37.3534 126.3230 0\n", kPoint + "end\n* 비고\n"},
        {Kind::CutShort, "파일이 이 명령의 값들에서 끝나 실행이 멈춥니다", 2,
         kPoint + "tm para\n6377397.155 299.1528128\n38 127\n",
         kPoint + "tm para\n6377397.155 299.1528128\n38 127\n500000 200000\n1\n" + kEnd},
        {Kind::NoPoints, "변환할 점이 하나도 없습니다", 2, "zone 2\nend\n\n", kPoint + kEnd},
        {Kind::NoPointAfter, "이 줄 뒤에 점이 없어", 2, kPoint + "zone 3\n" + kEnd,
         "zone 2\n" + kPoint + kEnd},
    };
}

std::vector<Rule> parameterRules() {
    const std::string shift = "7 para\n115.8 -474.99 -674.11\n1.16 -2.31 -1.63\n-6.43\n";
    const std::string grid =
        "tm para\n6377397.155 299.1528128\n38 127.0028902777778\n500000 200000\n1\n";
    return {
        {Kind::AdjustmentMoved, "세 값은 1st 바로 뒤에 쓰십시오", 1,
         "1st corr 0.12 -0.23 0.76\n" + kPoint + kEnd, "1st 0.12 -0.23 0.76\n" + kPoint + kEnd},
        {Kind::AdjustmentTooLarge, "1차 조정량이", 1, "1 37.3533 126.3229 10\n" + kPoint + kEnd,
         "1 0.3533 0.3229 10\n" + kPoint + kEnd},
        {Kind::BadValue, "수가 아니어서 0으로 읽힙니다", 2,
         "7 para\n115.8 -474.99 dz\n1.16 -2.31 -1.63\n-6.43\n" + kPoint + kEnd,
         shift + kPoint + kEnd},
        {Kind::ShiftFromElsewhere, "일곱 값의 부호를 모두 바꾸십시오", 1,
         "7 para\n-115.8 474.99 674.11\n-1.16 2.31 1.63\n6.43\n" + kPoint + kEnd,
         shift + kPoint + kEnd},
        {Kind::ShiftFromElsewhere, "일곱 값의 부호를 모두 바꾸십시오", 1,
         "7 para\n-146.44 507.89 681.46\n0 0 0\n0\n" + kPoint + kEnd, shift + kPoint + kEnd},
        {Kind::ShiftFromElsewhere, "일곱 값의 부호를 모두 바꾸십시오", 1,
         "7 para\n-144.778 503.702 684.67\n0 0 0\n0\n" + kPoint + kEnd, shift + kPoint + kEnd},
        {Kind::NoSuchGrid, "은(는) 맞지 않습니다", 1,
         "tm para\n6377397.155 299.1528128\n127 38\n500000 200000\n1\n" + kPoint + kEnd,
         grid + kPoint + kEnd},
        {Kind::ShiftedTwice, "10.405초가 들어 있는데 다시 더해집니다", 1, grid + kPoint + kEnd,
         grid + "add 0\n" + kPoint + kEnd},
        {Kind::BadZone, "zone 뒤에는", 1, "zone 중부\n" + kPoint + kEnd,
         "zone 2\n" + kPoint + kEnd},
        {Kind::BadAdd, "더하는 것은 10.405초입니다", 1, "add 12\n" + kPoint + kEnd,
         "add 10.405\n" + kPoint + kEnd},
        {Kind::BadAngleForm, "INPUT의 형태는", 1, "INPUT degree\nWGS A 37.3533 126.3229 0\n" + kEnd,
         "INPUT deg\nWGS A 37.5925 126.5414 0\n" + kEnd},
        {Kind::NoSuchUtmOrigin, "UTM 원점은 123과 129뿐", 1, "UTM 127\n" + kPoint + kEnd,
         "UTM 129\nUTM A 4098671.9 233069.9 0\n" + kEnd},
        {Kind::PointTakenForParameters, "이름이 PARA로 시작하지 않아야", 1,
         "TM PARAN 377504.2 125963.9 0\n1 2\n3 4\n5 6\n7\n" + kPoint + kEnd,
         "TM P-ARAN 377504.2 125963.9 0\n" + kPoint + kEnd},
        {Kind::OriginOverridden, "원점은 점마다 경도로 정해집니다", 1, "zone 3\n" + kPoint + kEnd,
         "zone 3\nWGS A 37.3533 128.3229 0\n" + kEnd},
    };
}

std::vector<Rule> pointRules() {
    return {
        {Kind::BadPoint, "만 읽힙니다", 1, "WGS A 37-35-33 126.3229 0\n" + kEnd, kPoint + kEnd},
        {Kind::BadAngle, "ddd.mmssss가 아닙니다", 1, "WGS A 37.6533 126.3229 0\n" + kEnd,
         "INPUT deg\nWGS A 37.6533 126.3229 0\n" + kEnd},
        {Kind::OutsideCountry, "쓸 수 있는 곳", 1, "WGS A 126.3229 37.3533 0\n" + kEnd,
         kPoint + kEnd},
        {Kind::ImpossibleHeight, " m입니다", 1, "WGS A 37.3533 126.3229 30175.6\n" + kEnd,
         "WGS A 37.3533 126.3229 3017.56\n" + kEnd},
        {Kind::RunStops, "실행이 멈춥니다", 3,
         kCorrected + "INPUT deg\nWGS A 37.5912810556 126.5429296667 67\n" + kEnd,
         kCorrected + "INPUT deg\nWGS A 37.59128106 126.54292967 67\n" + kEnd},
        {Kind::TooManyPoints, "개가 넘는 점이어서", 10001, manyPoints(10001), manyPoints(10000)},
        {Kind::WrongJeju, "zone 5가 아니어서", 1, "WGS A 33.2142 126.3145 0\n" + kEnd,
         "zone 5\nWGS A 33.2142 126.3145 0\n" + kEnd},
        {Kind::UncorrectedHeight, "수십 m 높게 나옵니다", 1,
         "WGS A 37.3533 126.3229 30.17\n" + kEnd,
         kCorrected + "WGS A 37.3533 126.3229 30.17\n" + kEnd},
    };
}

std::vector<Rule> nameRules() {
    const std::string two = kPoint + "    B 37.3534 126.3230 0\n";
    return {
        {Kind::DoubleName, "DIST는 먼저 나온 점을 씁니다", 2,
         kPoint + "    a 37.3534 126.3230 0\n" + kEnd, two + kEnd},
        {Kind::UnknownName, "없어 거리를 구하지 못합니다", 3, two + "DIST A C\n" + kEnd,
         two + "DIST A b\n" + kEnd},
        {Kind::OtherOrigin, "두 점의 TM 원점이 달라", 3,
         kPoint + "    B 37.3534 128.3230 0\nDIST A B\n" + kEnd, two + "DIST A B\n" + kEnd},
        {Kind::SamePoint, "두 이름이 같은 점이어서", 3, two + "DIST A a\n" + kEnd,
         two + "DIST A B\n" + kEnd},
        {Kind::InNoTable, "어느 표에도 나오지 않습니다", 4,
         two + "DIST A B\nUGS C 37.3534 126.3230 0\n" + kEnd,
         two + "UGS C 37.3534 126.3230 0\nDIST A B\n" + kEnd},
    };
}

std::vector<Rule> knownPointRules() {
    const std::string far = "WGS 부산 35.1001 129.0459 93.7\n";
    const std::string good =
        "부산61 35.10017832 129.04593498 93.773 35.09507604 129.05075251 64.521 2";
    return {
        {Kind::NoKnownPoints, "보정점이 하나도 없습니다", 1, kCorrected + kPoint + kEnd,
         kCorrected + kPoint + kEnd, "* 빈 파일\n\n"},
        {Kind::UnreadKnownPoint, "파일의 마지막 줄이어서 읽지 않습니다", 5,
         kCorrected + kPoint + kEnd, kCorrected + kPoint + kEnd,
         kKnownPoints.substr(0, kKnownPoints.size() - 1) + good + "\n", knownWith(good)},
        {Kind::ImpossibleKnownPoint, "WGS 타원체고에서 표고를 뺀 값이", 1,
         kCorrected + kPoint + kEnd, kCorrected + kPoint + kEnd,
         knownWith("부산61 35.10017832 129.04593498 64.521 35.09507604 129.05075251 93.773 2"),
         knownWith(good)},
        {Kind::FarFromKnownPoints, "가장 가까운 보정점이", 2, kCorrected + far + kEnd,
         kCorrected + far + kEnd, kKnownPoints, knownWith(good)},
    };
}

std::vector<Rule> allRules() {
    std::vector<Rule> all;
    for (const auto& rules :
         {wordRules(), parameterRules(), pointRules(), nameRules(), knownPointRules()})
        all.insert(all.end(), rules.begin(), rules.end());
    return all;
}

bool holds(const std::vector<Finding>& findings, const Rule& rule) {
    return std::any_of(findings.begin(), findings.end(), [&](const Finding& finding) {
        return finding.kind == rule.kind && finding.line == rule.line &&
               finding.text.find(rule.excerpt) != std::string::npos;
    });
}

TEST(CheckRules, EachFindsItsSlipWhereItStands) {
    for (const Rule& rule : allRules()) {
        const auto findings = check(rule.slip, rule.knownOfSlip);
        EXPECT_TRUE(holds(findings, rule)) << rule.excerpt << "\n" << shown(findings);
    }
}

TEST(CheckRules, EachFindsNothingInTheFilePutRight) {
    for (const Rule& rule : allRules()) {
        const auto findings = check(rule.sound, rule.knownOfSound);
        EXPECT_TRUE(testing::linesOf(rule.kind, findings).empty()) << rule.excerpt << "\n"
                                                                   << shown(findings);
    }
}

TEST(CheckRules, ThePageOnTheDataFileExplainsEach) {
    const std::string page =
        testing::TemporaryFolder::readBytes(KELVO_SOURCE_DIR "/docs/data-file.md");
    for (const Rule& rule : allRules())
        EXPECT_NE(page.find(rule.excerpt), std::string::npos) << rule.excerpt;
}

// The program's own rule on files has its test beside the program.
TEST(CheckRules, NoneIsWithoutATest) {
    std::set<Kind> tested{Kind::FileConflict};
    for (const Rule& rule : allRules()) tested.insert(rule.kind);
    EXPECT_EQ(tested.size(), static_cast<std::size_t>(Kind::FarFromKnownPoints) + 1);
}

}  // namespace
}  // namespace kelvo
