#include "shell/configuration_merge.h"

#include <algorithm>
#include <span>

#include "common/letter_case.h"
#include "shell/configuration_text.h"

namespace kelvo {

namespace {

struct Group {
    const char* words;
    std::size_t first;  // among the stored numbers
    std::size_t count;
};

constexpr std::array<Group, 4> kGroups{{
    {"변환 매개변수", 0, 8},
    {"1차 조정량", 8, 3},
    {"TM 투영원점과 타원체", 11, 8},
    {"UTM 투영원점과 타원체", 19, 8},
}};
static_assert(kGroups.back().first + kGroups.back().count == kStoredNumbers.size());

struct Single {
    const char* words;
    Flag TransPara::*field;
};

constexpr std::array<Single, 2> kSingles{{
    {"경도 가산", &TransPara::AddFlag},
    {"기존점 보정", &TransPara::CorrFlag},
}};

std::span<const StoredNumber> numbersOf(const Group& group) {
    return std::span(kStoredNumbers).subspan(group.first, group.count);
}

// What differs is seen by what a file holds of it.
bool isSame(const Group& group, const TransPara& one, const TransPara& other) {
    return std::ranges::all_of(numbersOf(group), [&](const StoredNumber& stored) {
        return storedText(one, stored) == storedText(other, stored);
    });
}

void take(const Group& group, const TransPara& from, TransPara& to) {
    for (const StoredNumber& stored : numbersOf(group))
        std::visit([&](auto field) { to.*field = from.*field; }, stored.field);
}

bool isSame(const Single& single, const TransPara& one, const TransPara& other) {
    return one.*single.field == other.*single.field;
}

void take(const Single& single, const TransPara& from, TransPara& to) {
    to.*single.field = from.*single.field;
}

bool isIn(std::span<const std::string> list, const std::string& name) {
    return std::ranges::any_of(
        list, [&](const std::string& entry) { return sameIgnoringCase(entry, name); });
}

std::array<std::string, 6> mergedList(const std::array<std::string, 6>& mine,
                                      const std::array<std::string, 6>& theirs,
                                      const std::array<std::string, 6>& before) {
    std::vector<std::string> next;
    const auto add = [&next](const std::string& name) {
        if (!name.empty() && !isIn(next, name)) next.push_back(name);
    };
    add(mine[1]);
    for (const std::string& name : theirs)
        if (!isIn(before, name)) add(name);
    for (const std::string& name : mine) add(name);
    for (const std::string& name : theirs) add(name);
    next.resize(kMostRecentFiles);
    std::array<std::string, 6> list;
    std::ranges::move(next, list.begin() + 1);
    return list;
}

}  // namespace

MergedConfiguration mergedConfiguration(const Configuration& mine, const TransPara& untouched,
                                        const Configuration& theirs, const Configuration& before) {
    MergedConfiguration merged{.configuration = mine, .conflicts = {}};
    TransPara& Cfg = merged.configuration.Cfg;
    const auto settle = [&](const auto& part) {
        const bool iChanged = !isSame(part, mine.Cfg, untouched);
        const bool theyChanged = !isSame(part, theirs.Cfg, before.Cfg);
        if (!iChanged)
            take(part, theirs.Cfg, Cfg);
        else if (theyChanged && !isSame(part, mine.Cfg, theirs.Cfg))
            merged.conflicts.emplace_back(part.words);
    };
    for (const Group& group : kGroups) settle(group);
    for (const Single& single : kSingles) settle(single);
    if (mine.Cfg.Editor == untouched.Editor) Cfg.Editor = theirs.Cfg.Editor;
    merged.configuration.RecentFiles =
        mergedList(mine.RecentFiles, theirs.RecentFiles, before.RecentFiles);
    return merged;
}

}  // namespace kelvo
