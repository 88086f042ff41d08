// Built-ins of structs and class properties: struct, fieldnames, isfield, properties.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/identifiers.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace orrery::shell::builtins {
namespace {

// ---- struct ------------------------------------------------------------------

std::vector<std::string> fieldNamesOf(Arguments arguments) {
    std::vector<std::string> names;
    for (std::size_t k = 0; k < arguments.size(); k += 2) {
        std::string name = textArgumentUtf8(*arguments[k], "struct", k + 1);
        if (!text::isIdentifier(name, text::IdentifierKind::Name))
            except::throwMessage(messages::StructBadFieldName(text::utf8ToUtf16(name)));
        if (std::find(names.begin(), names.end(), name) != names.end())
            except::throwMessage(messages::StructDuplicateField(text::utf8ToUtf16(name)));
        names.push_back(std::move(name));
    }
    return names;
}

// The size of the result: that of the cell values that are not 1-by-1 (all the same), else 1-by-1.
value::Dims structSize(Arguments arguments) {
    std::optional<value::Dims> dims;
    for (std::size_t k = 1; k < arguments.size(); k += 2) {
        const ValueArray& v = *arguments[k];
        if (!v.is(ClassId::Cell) || v.isScalar()) continue;
        if (dims && *dims != v.dims()) except::throwMessage(messages::StructCellSizeMismatch());
        dims = v.dims();
    }
    return dims.value_or(value::Dims{1, 1});
}

// The value a field takes in element i: cells are spread (a 1-by-1 cell wraps one value).
const ValueArray& fieldValue(const ValueArray& v, std::size_t i) {
    if (!v.is(ClassId::Cell)) return v;
    return v.cellAt(v.isScalar() ? 0 : i);
}

ValueArray makeStruct(Arguments arguments) {
    if (arguments.size() % 2 != 0) except::throwMessage(messages::StructOddArguments());
    std::vector<std::string> names = fieldNamesOf(arguments);
    ValueArray result = ValueArray::structArray(structSize(arguments), names);
    for (std::size_t i = 0; i < result.numel(); ++i)
        for (std::size_t k = 0; k < names.size(); ++k)
            result.setField(i, names[k], fieldValue(*arguments[2 * k + 1], i));
    return result;
}

void bnStruct(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    if (nrhs == 1) {
        // struct([]) is the empty 0-by-0 structure without fields.
        if (prhs[0]->is(ClassId::Double) && prhs[0]->isEmpty()) {
            plhs[0] = makeValue(ValueArray::structArray(value::Dims{0, 0}));
            return;
        }
        if (!prhs[0]->is(ClassId::Struct)) except::throwMessage(messages::StructNotStruct());
        plhs[0] = makeValue(*prhs[0]);
        return;
    }
    plhs[0] = makeValue(makeStruct(argumentsOf(nrhs, prhs)));
}

// ---- field and property names ------------------------------------------------

ValueArray columnCell(const std::vector<std::string>& names) {
    ValueArray result = ValueArray::cell(value::Dims{names.size(), 1});
    for (std::size_t i = 0; i < names.size(); ++i) result.setCellAt(i, ValueArray::charsFromUtf8(names[i]));
    return result;
}

void bnFieldnames(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const ValueArray& v = *prhs[0];
    if (v.is(ClassId::Struct))
        plhs[0] = makeValue(columnCell(v.fieldNames()));
    else if (v.is(ClassId::Object) && v.classInfo())
        plhs[0] = makeValue(columnCell(v.classInfo()->getPropertyNames()));
    else
        except::throwMessage(messages::NotStructOrObject(u"fieldnames", text::utf8ToUtf16(v.className())));
}

void bnIsfield(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 2, 2);
    const ValueArray& s = *prhs[0];
    const ValueArray& names = *prhs[1];
    const auto has = [&](const ValueArray& name) {
        return s.is(ClassId::Struct) && name.isTextScalar() && s.hasField(name.textUtf8());
    };
    if (!names.is(ClassId::Cell)) {
        plhs[0] = makeValue(ValueArray::logicalScalar(has(names)));
        return;
    }
    ValueArray result = ValueArray::zeros(ClassId::Logical, names.dims());
    for (std::size_t i = 0; i < names.numel(); ++i) result.setLogicalAt(i, has(names.cellAt(i)));
    plhs[0] = makeValue(std::move(result));
}

// The class that properties describes: an object's class, or the class named by text.
std::shared_ptr<const ocos::COSClassInfo> describedClass(const ValueArray& v) {
    if (v.is(ClassId::Object) && v.classInfo()) return v.classInfo();
    if (v.isTextScalar()) return ocos::getClass(v.textUtf8());
    except::throwMessage(messages::NotObject(u"properties", text::utf8ToUtf16(v.className())));
}

void bnProperties(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const auto info = describedClass(*prhs[0]);
    const std::vector<std::string> names = info->getPropertyNames();
    if (nlhs > 0) {
        plhs[0] = makeValue(columnCell(names));
        return;
    }
    std::string listing = "Properties for class " + info->getName() + ":\n\n";
    for (const auto& name : names) listing += "    " + name + "\n";
    writeOutput(listing + "\n");
}

constexpr BuiltinEntry table[] = {
    {"struct", bnStruct},
    {"fieldnames", bnFieldnames},
    {"isfield", bnIsfield},
    {"properties", bnProperties},
};

}  // namespace

std::span<const BuiltinEntry> structBuiltins() { return table; }

}  // namespace orrery::shell::builtins
