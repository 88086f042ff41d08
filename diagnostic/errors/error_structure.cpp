// Reading error structures in the order of their checks.
#include "diagnostic/errors/error_structure.hpp"

#include "diagnostic/errors/member_access.hpp"
#include "diagnostic/errors/stack_validation.hpp"
#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

namespace orrery::diagnostic {
namespace {

using value::ValueArray;

// Text fields use the tolerant test: an empty text written '' is the 0-by-0 char
// array, which is also what lasterror returns for an empty identifier or message.
std::string readIdentifier(const std::optional<ValueArray>& field) {
    if (!field) return {};
    if (!field->isTextScalarTolerant()) except::throwMessage(ids::BadIdentifier());
    std::string identifier;
    try {
        identifier = text::utf16ToAscii(field->text());
    } catch (const except::IMsgIDException& failure) {
        if (!failure.is(except::host::InvalidCharacter::identifierText)) throw;
        except::throwMessage(ids::BadIdentifier());
    }
    if (!identifier.empty() && !warning::utIsValidMessageIdentifier(identifier)) {
        except::throwMessage(ids::BadIdentifier());
    }
    return identifier;
}

std::u16string readMessage(const std::optional<ValueArray>& field) {
    if (!field) return {};
    if (!field->isTextScalarTolerant()) except::throwMessage(ids::BadMessage());
    return field->text();
}

}  // namespace

ErrorStructure readErrorStructure(const ValueArray& structure) {
    if (!structure.isScalar()) except::throwMessage(ids::NonScalarStructure());
    ErrorStructure result;
    result.identifier = readIdentifier(memberOf(structure, 0, "identifier"));
    result.message = readMessage(memberOf(structure, 0, "message"));
    result.stack = memberOf(structure, 0, "stack");
    if (result.stack) validateStack(*result.stack);
    return result;
}

}  // namespace orrery::diagnostic
