// Assignments: plain, indexed, into fields and cells (nested to any depth),
// and to several outputs at once.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/eval_messages.hpp"
#include "shell/values/elements.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::eval {

using lang::SuffixKind;
using value::ClassId;
using value::Dims;
using value::ValueArray;

void Interpreter::execAssign(const lang::Stmt& stmt) {
    const lang::LValue& target = stmt.targets[0];
    assignTo(target, eval(*stmt.expr));
    if (stmt.printResult) show(target.name, *current_->find(target.name));
}

void Interpreter::execMultiAssign(const lang::Stmt& stmt) {
    const int nargout = static_cast<int>(stmt.targets.size());
    Values results = evalMulti(*stmt.expr, nargout);
    for (std::size_t i = 0; i < stmt.targets.size(); ++i) {
        const lang::LValue& target = stmt.targets[i];
        if (target.ignored) continue;
        if (i >= results.size()) except::throwMessage(NoValue());
        assignTo(target, std::move(results[i]));
    }
    if (!stmt.printResult) return;
    for (const auto& target : stmt.targets)
        if (!target.ignored) show(target.name, *current_->find(target.name));
}

void Interpreter::assignTo(const lang::LValue& target, ValueArray rhs) {
    if (target.suffixes.empty()) {
        current_->set(target.name, std::move(rhs));
        return;
    }
    ValueArray updated = assignChain(current_->find(target.name), target.suffixes, 0, std::move(rhs));
    current_->set(target.name, std::move(updated));
}

// The value `base` becomes when chain[k..] of it is assigned rhs. A null base
// is a place that does not exist yet.
ValueArray Interpreter::assignChain(const ValueArray* base, const std::vector<lang::Suffix>& chain, std::size_t k,
                                    ValueArray rhs) {
    if (k == chain.size()) return rhs;
    const lang::Suffix& suffix = chain[k];
    if (suffix.kind == SuffixKind::Field) return assignField(base, suffix.field, chain, k, std::move(rhs));
    if (suffix.kind == SuffixKind::DynamicField)
        return assignField(base, dynamicFieldName(suffix), chain, k, std::move(rhs));

    const bool brace = suffix.kind == SuffixKind::Brace;
    ValueArray container = base != nullptr ? *base : ValueArray();
    if (brace && container.is(ClassId::Double) && container.isEmpty()) container = ValueArray::cell(container.dims());
    if (brace && !container.is(ClassId::Cell))
        except::throwMessage(NotIndexable(text::asciiToUtf16(container.className())));
    const auto args = evalIndexArgs(suffix, container);
    if (k + 1 == chain.size() && !brace) return values::assignIndexed(std::move(container), args, rhs);

    // A nested place: the one element it lies in, when it exists already.
    std::optional<ValueArray> element;
    const auto selection = values::selectExisting(container.dims(), args);
    if (selection && selection->positions.size() == 1) {
        element = brace ? container.cellAt(selection->positions[0]) : values::indexValue(container, args);
    }
    ValueArray inner = assignChain(element ? &*element : nullptr, chain, k + 1, std::move(rhs));
    if (brace) {
        ValueArray wrapped = ValueArray::cell(Dims{1, 1});
        wrapped.setCellAt(0, std::move(inner));
        inner = std::move(wrapped);
    }
    return values::assignIndexed(std::move(container), args, inner);
}

ValueArray Interpreter::assignField(const ValueArray* base, const std::string& field,
                                    const std::vector<lang::Suffix>& chain, std::size_t k, ValueArray rhs) {
    const bool fresh = base == nullptr || (base->is(ClassId::Double) && base->isEmpty());
    ValueArray container = fresh ? ValueArray::structArray(Dims{1, 1}) : *base;
    if (container.is(ClassId::Struct) && container.isEmpty()) container = values::blankLike(container, Dims{1, 1});
    if (!container.is(ClassId::Struct) && !container.is(ClassId::Object)) {
        except::throwMessage(NoFields(text::asciiToUtf16(container.className()), text::utf8ToUtf16(field)));
    }
    if (container.numel() != 1) except::throwMessage(StructArrayField(text::asciiToUtf16(container.dims().text())));
    if (container.is(ClassId::Object)) {
        std::optional<ValueArray> current;
        if (k + 1 < chain.size()) current = ocos::getProperty(container, 0, field);
        ValueArray inner = assignChain(current ? &*current : nullptr, chain, k + 1, std::move(rhs));
        ocos::setProperty(container, 0, field, inner);
        return container;
    }
    const ValueArray* existing = container.field(0, field);
    std::optional<ValueArray> current;
    if (existing != nullptr) current = *existing;
    ValueArray inner = assignChain(current ? &*current : nullptr, chain, k + 1, std::move(rhs));
    container.setField(0, field, std::move(inner));
    return container;
}

}  // namespace orrery::shell::eval
