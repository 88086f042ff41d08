// Checking an element's attributes against its expected names.
#include "diagnostic/log/xml_attribute_check.hpp"

#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cstddef>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

void checkAttributes(const XML_Char* element, const XML_Char** attributes, std::span<const std::string_view> expected,
                     std::span<const XML_Char*> values) {
    std::fill(values.begin(), values.end(), nullptr);
    for (; *attributes != nullptr; attributes += 2) {
        const std::string_view name = attributes[0];
        std::size_t i = 0;
        while (i < expected.size() &&
               (values[i] != nullptr || (expected[i] != name && !text::equalsIgnoreCaseAscii(expected[i], name))))
            ++i;
        if (i == expected.size())
            except::throwMessage(ids::XmlUnknownAttribute(text::utf8ToUtf16(element), text::utf8ToUtf16(name)));
        values[i] = attributes[1];
    }
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (values[i] == nullptr)
            except::throwMessage(ids::XmlMissingAttribute(text::utf8ToUtf16(element), text::asciiToUtf16(expected[i])));
}

}  // namespace orrery::lang::diagnostic
