// The warning record's arguments and stack as interpreter values, and back.
#include <orrery/lang/warning.hpp>

#include "lang/warning_messages.hpp"

#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>

#include <cmath>
#include <limits>
#include <type_traits>

namespace orrery::lang::diagnostic {
namespace {

using value::ClassId;
using value::Dims;
using value::ValueArray;

// ---- arguments -------------------------------------------------------------------

template <class Number>
ValueArray numberValue(Number number) {
    ValueArray scalar = ValueArray::zeros(value::classIdOf<Number>(), Dims{1, 1});
    scalar.mutableData<Number>()[0] = number;
    return scalar;
}

ValueArray argumentValue(const PrintfArgument& argument) {
    return std::visit(
        [](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::u16string>) {
                return ValueArray::chars(held);
            } else {
                return numberValue(held);
            }
        },
        argument.value());
}

// The argument an element holds; position counts from 1 for the message.
PrintfArgument argumentOf(const ValueArray& element, std::size_t position) {
    if (element.isTextScalarTolerant()) return PrintfArgument(element.text());
    if (element.isScalar()) {
        switch (element.classId()) {
            case ClassId::Int32: return PrintfArgument(element.data<std::int32_t>()[0]);
            case ClassId::UInt32: return PrintfArgument(element.data<std::uint32_t>()[0]);
            case ClassId::Int64: return PrintfArgument(element.data<std::int64_t>()[0]);
            case ClassId::UInt64: return PrintfArgument(element.data<std::uint64_t>()[0]);
            case ClassId::Double: return PrintfArgument(element.data<double>()[0]);
            default: break;
        }
    }
    except::throwMessage(messages::BadArgument(position));
}

// ---- stack -----------------------------------------------------------------------

constexpr const char* kFieldNames[] = {"file", "name", "line"};

bool isVectorOrEmpty(const ValueArray& array) {
    return array.ndims() == 2 && (array.isEmpty() || array.dims().rows() == 1 || array.dims().cols() == 1);
}

// The frame at index i; position counts from 1 for the message.
StackFrame frameOf(const ValueArray& stack, std::size_t i) {
    const ValueArray* file = stack.field(i, "file");
    const ValueArray* name = stack.field(i, "name");
    const ValueArray* line = stack.field(i, "line");
    const bool textsFit = file && file->isTextScalarTolerant() && name && name->isTextScalarTolerant();
    const bool lineFits = line && line->isNumeric() && line->isScalar();
    const double number = lineFits ? line->realAt(0) : -1;
    if (!textsFit || !(number >= 0 && number <= std::numeric_limits<std::uint32_t>::max()) ||
        number != std::floor(number)) {
        except::throwMessage(messages::BadStackFrame(i + 1));
    }
    return StackFrame{file->text(), name->text(), static_cast<std::uint32_t>(number)};
}

}  // namespace

value::ValueArrayPtr Warning::getArgumentsAsValueArray() const {
    auto cell = ValueArray::cell(Dims{1, arguments_.size()});
    for (std::size_t i = 0; i < arguments_.size(); ++i) cell.setCellAt(i, argumentValue(arguments_[i]));
    return value::makeValue(std::move(cell));
}

void Warning::setArguments(const value::ValueArray* arguments) {
    if (arguments == nullptr) except::internalError("warning record", "no value for the arguments");
    if (!arguments->is(ClassId::Cell) || !isVectorOrEmpty(*arguments)) {
        except::throwMessage(messages::BadArguments());
    }
    std::vector<PrintfArgument> converted;
    converted.reserve(arguments->numel());
    for (std::size_t i = 0; i < arguments->numel(); ++i) converted.push_back(argumentOf(arguments->cellAt(i), i + 1));
    arguments_ = std::move(converted);
}

value::ValueArrayPtr Warning::getStackAsValueArray() const {
    auto stack = ValueArray::stackStructure(stack_.size());
    for (std::size_t i = 0; i < stack_.size(); ++i) {
        stack.setField(i, "file", ValueArray::chars(stack_[i].file));
        stack.setField(i, "name", ValueArray::chars(stack_[i].name));
        stack.setField(i, "line", ValueArray::scalar(stack_[i].line));
    }
    return value::makeValue(std::move(stack));
}

void Warning::setStack(const value::ValueArray* stack) {
    if (stack == nullptr) except::internalError("warning record", "no value for the stack");
    if (!stack->is(ClassId::Struct) || !isVectorOrEmpty(*stack)) except::throwMessage(messages::BadStack());
    if (stack->isEmpty()) {
        stack_.clear();
        return;
    }
    for (const char* field : kFieldNames) {
        if (!stack->hasField(field)) except::throwMessage(messages::BadStack());
    }
    std::vector<StackFrame> converted;
    converted.reserve(stack->numel());
    for (std::size_t i = 0; i < stack->numel(); ++i) converted.push_back(frameOf(*stack, i));
    stack_ = std::move(converted);
}

}  // namespace orrery::lang::diagnostic
