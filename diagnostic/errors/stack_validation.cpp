// Validation of stack arrays, in the order callers rely on.
#include "diagnostic/errors/stack_validation.hpp"

#include "diagnostic/errors/member_access.hpp"
#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/throw_message.hpp>

namespace orrery::diagnostic {
namespace {

using value::ClassId;
using value::ValueArray;

void validateFrame(const ValueArray& stack, std::size_t i) {
    const auto file = memberOf(stack, i, "file");
    if (!file || !file->is(ClassId::Char)) except::throwMessage(ids::BadStackFileString());
    const auto name = memberOf(stack, i, "name");
    if (!name || !name->is(ClassId::Char)) except::throwMessage(ids::BadStackName());
    const auto line = memberOf(stack, i, "line");
    if (!line || !line->is(ClassId::Double) || !line->isScalar()) except::throwMessage(ids::BadStackLine());
}

}  // namespace

void validateStack(const ValueArray& stack) {
    if (!stack.is(ClassId::Struct) && !stack.is(ClassId::Object)) except::throwMessage(ids::BadStackStruct());
    if (stack.ndims() != 2 || stack.dims().cols() != 1) except::throwMessage(ids::BadStack());
    // Deliberately one identifier for whichever of the three fields is missing.
    for (const char* field : {"file", "name", "line"}) {
        if (!hasMember(stack, field)) except::throwMessage(ids::BadStackFile());
    }
    for (std::size_t i = 0; i < stack.numel(); ++i) validateFrame(stack, i);
}

}  // namespace orrery::diagnostic
