// What a form script can ask for: properties of controls, and the program's own state.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/frm_kelvo.h"

namespace kelvo::testing {

// "mnuFileItem(7)" as name and index; no index without brackets. Nothing if the brackets hold no
// plain number.
struct IndexedName {
    std::string name;
    std::optional<int> index;
};
[[nodiscard]] std::optional<IndexedName> indexedName(std::string_view text);

// A number that fits into 32 bits, with a minus in front or without.
[[nodiscard]] std::optional<int> wholeNumber(std::string_view text);

// The value of "NAME.PROPERTY", "Cfg.FIELD" and so on, not escaped; nothing for an unknown one.
[[nodiscard]] std::optional<std::string> valueOf(frmKelvo& window, std::string_view what);

}  // namespace kelvo::testing
