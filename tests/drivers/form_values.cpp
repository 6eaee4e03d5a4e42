#include "drivers/form_values.h"

#include <array>
#include <charconv>
#include <map>
#include <type_traits>
#include <utility>
#include <variant>

#include "common/number_text.h"

namespace kelvo::testing {

namespace {

using Value = std::optional<std::string>;

std::string text(double value) {
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::general, 17);
    return {buffer.data(), end};
}
std::string text(float value) {
    return text(double{value});
}
std::string text(std::int16_t value) {
    return std::to_string(value);
}
std::string text(const std::string& value) {
    return value;
}
template <class Named>
requires std::is_enum_v<Named> std::string text(Named value) {
    return std::to_string(static_cast<std::int16_t>(value));
}

template <class Record, class... Types>
using Fields = std::map<std::string, std::variant<Types Record::*...>, std::less<>>;

template <class Record, class... Types>
Value fieldOf(const Record& record, const Fields<Record, Types...>& fields, std::string_view name) {
    const auto found = fields.find(name);
    if (found == fields.end()) return std::nullopt;
    return std::visit([&](auto member) { return text(record.*member); }, found->second);
}

Value cfgValue(const TransPara& cfg, std::string_view name) {
    using P = TransPara;
    static const Fields<P, std::string, double, ShiftKind, TmZone, UtmZone, Flag> fields{
        {"Editor", &P::Editor},
        {"dX", &P::dX},
        {"dY", &P::dY},
        {"dZ", &P::dZ},
        {"Omega", &P::Omega},
        {"Phi", &P::Phi},
        {"Kappa", &P::Kappa},
        {"dS", &P::dS},
        {"Kind", &P::Kind},
        {"dPhi", &P::dPhi},
        {"dLam", &P::dLam},
        {"dH", &P::dH},
        {"a", &P::a},
        {"f", &P::f},
        {"Zone", &P::Zone},
        {"Phi0", &P::Phi0},
        {"Lam0", &P::Lam0},
        {"X0", &P::X0},
        {"Y0", &P::Y0},
        {"S0", &P::S0},
        {"Ua", &P::Ua},
        {"Uf", &P::Uf},
        {"UZone", &P::UZone},
        {"UPhi0", &P::UPhi0},
        {"ULam0", &P::ULam0},
        {"UX0", &P::UX0},
        {"UY0", &P::UY0},
        {"US0", &P::US0},
        {"AddFlag", &P::AddFlag},
        {"CorrFlag", &P::CorrFlag}};
    return fieldOf(cfg, fields, name);
}

Value scaleValue(const PlotScale& scale, std::string_view name) {
    using P = PlotScale;
    static const Fields<P, float> fields{
        {"Xb", &P::Xb}, {"Yb", &P::Yb}, {"Span", &P::Span}, {"Inter", &P::Inter}};
    return fieldOf(scale, fields, name);
}

Value plotValue(const PlotCfg& cfg, std::string_view name) {
    using P = PlotCfg;
    static const Fields<P, std::int16_t, float> fields{{"PlotManual", &P::PlotManual},
                                                       {"PlotFontSize", &P::PlotFontSize}};
    if (name == "PlotKind") return text(static_cast<std::int16_t>(cfg.PlotKind));
    const std::size_t point = name.find('.');
    if (point == std::string_view::npos) return fieldOf(cfg, fields, name);
    const std::string_view group = name.substr(0, point);
    const std::string_view field = name.substr(point + 1);
    if (group == "WGS") return scaleValue(cfg.WGS, field);
    if (group == "UGS") return scaleValue(cfg.UGS, field);
    if (group == "XY") return scaleValue(cfg.XY, field);
    return std::nullopt;
}

Value rowValue(const PointRec& row, std::string_view name) {
    using P = PointRec;
    static const Fields<P, std::string, double> fields{
        {"name", &P::name},       {"WgsPhi", &P::WgsPhi},   {"WgsLam", &P::WgsLam},
        {"WgsH", &P::WgsH},       {"UserPhi", &P::UserPhi}, {"UserLam", &P::UserLam},
        {"UserH", &P::UserH},     {"TmX", &P::TmX},         {"TmY", &P::TmY},
        {"TmH", &P::TmH},         {"UtmX", &P::UtmX},       {"UtmY", &P::UtmY},
        {"UtmH", &P::UtmH},       {"WgsUtmX", &P::WgsUtmX}, {"WgsUtmY", &P::WgsUtmY},
        {"WgsUtmH", &P::WgsUtmH}, {"CorrPhi", &P::CorrPhi}, {"CorrLam", &P::CorrLam},
        {"CorrH", &P::CorrH}};
    return fieldOf(row, fields, name);
}

Value stateValue(ProgramState& state, std::string_view what) {
    if (what == "ParaDirty") return state.conversion.ParaDirty ? "1" : "0";
    if (what == "PointCount") return text(state.conversion.points.PointCount);
    if (what == "CorrCount") return text(state.conversion.known.CorrCount);
    if (what.starts_with("Cfg.")) return cfgValue(state.Cfg, what.substr(4));
    if (what.starts_with("PlotCfg.")) return plotValue(state.plotCfg, what.substr(8));
    if (what.starts_with("RecentFiles(")) {
        const auto entry = indexedName(what);
        if (!entry || !entry->index) return std::nullopt;
        const int index = *entry->index;
        if (index < 0 || index >= static_cast<int>(state.RecentFiles.size())) return std::nullopt;
        return state.RecentFiles[static_cast<std::size_t>(index)];
    }
    if (what.starts_with("PointTable(")) {
        const std::size_t point = what.find('.');
        const auto row = indexedName(what.substr(0, point));
        if (!row || !row->index || point == std::string_view::npos) return std::nullopt;
        if (*row->index < 0 || *row->index > kMostPoints) return std::nullopt;
        return rowValue(std::as_const(state.conversion.points).row(*row->index),
                        what.substr(point + 1));
    }
    return std::nullopt;
}

bool hasCaption(ControlKind kind) {
    return kind != ControlKind::TextBox && kind != ControlKind::ComboBox &&
           kind != ControlKind::MenuArray && kind != ControlKind::Picture;
}

Value controlValue(const Control& control, std::string_view property) {
    const auto flag = [](bool on) { return std::string(on ? "1" : "0"); };
    const ControlKind kind = control.kind();
    const bool isText = kind == ControlKind::TextBox;
    const bool isCombo = kind == ControlKind::ComboBox;
    if (property == "enabled") return flag(control.enabled());
    if (property == "visible") return flag(control.visible());
    if (property == "left") return generalText(control.left());
    if (property == "top") return generalText(control.top());
    if (property == "text" && isText) return control.text();
    if (property == "text" && isCombo) return control.selectedItem();
    if (property == "caption" && hasCaption(kind)) return control.caption();
    if (property == "value" && (kind == ControlKind::OptionButton || kind == ControlKind::CheckBox))
        return flag(control.value());
    if (property == "index" && isCombo) return std::to_string(control.index());
    if (property == "count" && isCombo) return std::to_string(control.items().size());
    if (property == "count" && kind == ControlKind::MenuArray)
        return std::to_string(control.highestIndex());
    if (property == "selstart" && isText) return std::to_string(control.selStart());
    if (property == "sellength" && isText) return std::to_string(control.selLength());
    return std::nullopt;
}

Value entryValue(const Control& array, int index, std::string_view property) {
    if (array.kind() != ControlKind::MenuArray || index < 0 || index > array.highestIndex())
        return std::nullopt;
    const MenuEntry& entry = array.entries()[static_cast<std::size_t>(index)];
    if (property == "caption") return entry.caption;
    if (property == "enabled") return entry.enabled ? "1" : "0";
    if (property == "visible") return "1";
    return std::nullopt;
}

}  // namespace

std::optional<int> wholeNumber(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<IndexedName> indexedName(std::string_view text) {
    const std::size_t bracket = text.find('(');
    if (bracket == std::string_view::npos)
        return IndexedName{.name = std::string(text), .index = std::nullopt};
    if (text.back() != ')') return std::nullopt;
    const std::optional<int> index =
        wholeNumber(text.substr(bracket + 1, text.size() - bracket - 2));
    if (!index) return std::nullopt;
    return IndexedName{.name = std::string(text.substr(0, bracket)), .index = index};
}

std::optional<std::string> valueOf(frmKelvo& window, std::string_view what) {
    if (Value value = stateValue(window.state(), what)) return value;
    const std::size_t point = what.rfind('.');
    if (point == std::string_view::npos) return std::nullopt;
    const auto target = indexedName(what.substr(0, point));
    if (!target) return std::nullopt;
    const Control* control = window.form().find(target->name);
    if (control == nullptr) return std::nullopt;
    const std::string_view property = what.substr(point + 1);
    if (target->index) return entryValue(*control, *target->index, property);
    return controlValue(*control, property);
}

}  // namespace kelvo::testing
