#include "common/fields.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "common/number_text.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

void requireField(int n) {
    if (n < 0 || n > FieldStore::kMostFields) raise(Fault::Subscript);
}

bool isSeparator(char c) {
    return c == ' ' || c == ',' || c == '\t' || c == '\0';
}

std::string_view withoutSeparatorsInFront(std::string_view text) {
    while (!text.empty() && isSeparator(text.front())) text.remove_prefix(1);
    return text;
}

}  // namespace

const std::string& FieldStore::FieldStr(int n) const {
    requireField(n);
    return strings[static_cast<std::size_t>(n)];
}

double FieldStore::FieldNum(int n) const {
    requireField(n);
    return doubles[static_cast<std::size_t>(n)];
}

float FieldStore::FieldSng(int n) const {
    requireField(n);
    return singles[static_cast<std::size_t>(n)];
}

namespace genSub {

std::string_view takeField(std::string_view& rest) {
    rest = withoutSeparatorsInFront(rest);
    const auto end = std::find_if(rest.begin(), rest.end(), isSeparator);
    const std::string_view field = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    rest.remove_prefix(field.size());
    return field;
}

void ParseFields(FieldStore& store, int maxFields) {
    if (maxFields > FieldStore::kMostFields) raise(Fault::Subscript);
    for (int n = 1; n <= store.filled; ++n) {
        const auto i = static_cast<std::size_t>(n);
        store.strings[i].clear();
        store.doubles[i] = 0;
        store.singles[i] = 0;
    }
    store.filled = 0;

    std::string_view rest = store.LineBuf;
    for (int n = 1; n <= maxFields; ++n) {
        const std::string_view field = takeField(rest);
        if (field.empty()) return;
        const auto i = static_cast<std::size_t>(n);
        store.strings[i].assign(field);
        store.doubles[i] = leadingNumber(store.strings[i]);
        const auto single = static_cast<float>(store.doubles[i]);
        store.singles[i] = std::isfinite(single) ? single : 0.0F;
        store.filled = n;
    }
}

std::string JoinFields(FieldStore& store, int first, int last) {
    ParseFields(store, last);
    std::string joined;
    for (int n = first; n <= last; ++n) {
        const std::string& field = store.FieldStr(n);
        if (field.empty()) break;
        joined += field;
        joined += ' ';
    }
    return joined;
}

}  // namespace genSub
}  // namespace kelvo
