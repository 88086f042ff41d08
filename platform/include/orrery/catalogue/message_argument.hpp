// One argument of a catalogue message: a text or a number.
#pragma once

#include <string>
#include <variant>

namespace orrery::catalogue {

/// A text argument (UTF-16) or a numeric argument; filled into the catalogue
/// pattern's placeholders {0}, {1}, ... in order.
using MessageArgument = std::variant<std::u16string, double>;

}  // namespace orrery::catalogue
