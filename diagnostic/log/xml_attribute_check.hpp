// The one attribute rule of the warning log's elements: exactly the expected
// names, matched without regard to ASCII letter case.
#pragma once

#include <expat.h>

#include <span>
#include <string_view>

namespace orrery::lang::diagnostic {

/// Matches the attributes of element (Expat's name, value, name, value, ...,
/// null list) against expected, whose names must be in case-insensitive
/// alphabetical order, and stores each value in values at its name's position.
/// Raises "ORRERY:warning:XMLParser:UnknownAttribute" (element, attribute) for an
/// attribute that is not expected or whose name was already matched, and
/// "ORRERY:warning:XMLParser:MissingAttribute" (element, the first missing name of
/// expected) when one is absent. values must be as long as expected.
void checkAttributes(const XML_Char* element, const XML_Char** attributes, std::span<const std::string_view> expected,
                     std::span<const XML_Char*> values);

}  // namespace orrery::lang::diagnostic
