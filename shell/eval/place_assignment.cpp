// Assigning to a place inside a value, in place: fields and cell elements are
// changed where they lie; a value built on the way (an element picked by
// parentheses, an object property) is stored back once complete.
#include "shell/eval/place_assignment.hpp"

#include "shell/eval/eval_messages.hpp"
#include "shell/values/elements.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/text/text.hpp>

#include <optional>

namespace orrery::shell::eval {
namespace {

using lang::SuffixKind;
using value::ClassId;
using value::Dims;
using value::ValueArray;

void assignField(ValueArray& place, const AssignSteps& steps, std::size_t k, ValueArray rhs) {
    const std::string& name = steps[k].field;
    if (isFreshPlace(place) || (place.is(ClassId::Struct) && place.isEmpty())) {
        // built aside, so that a failure deeper down leaves place as it was
        ValueArray made =
            isFreshPlace(place) ? ValueArray::structArray(Dims{1, 1}) : values::blankLike(place, Dims{1, 1});
        assignField(made, steps, k, std::move(rhs));
        place = std::move(made);
        return;
    }
    requireFieldHolder(place, name);
    if (place.is(ClassId::Object)) {
        ValueArray inner = k + 1 < steps.size() ? ocos::getProperty(place, 0, name) : ValueArray();
        assignPlace(inner, steps, k + 1, std::move(rhs));
        ocos::setProperty(place, 0, name, inner);
        return;
    }
    if (ValueArray* existing = place.mutableField(0, name)) {
        assignPlace(*existing, steps, k + 1, std::move(rhs));
        return;
    }
    ValueArray inner;
    assignPlace(inner, steps, k + 1, std::move(rhs));
    place.setField(0, name, std::move(inner));
}

}  // namespace

bool isFreshPlace(const ValueArray& v) { return v.is(ClassId::Double) && v.isEmpty(); }

void requireFieldHolder(const ValueArray& v, const std::string& field) {
    if (!v.is(ClassId::Struct) && !v.is(ClassId::Object))
        except::throwMessage(NoFields(text::asciiToUtf16(v.className()), text::utf8ToUtf16(field)));
    if (v.numel() != 1) except::throwMessage(StructArrayField(text::asciiToUtf16(v.dims().text())));
}

void requireCellPlace(const ValueArray& v) {
    if (!v.is(ClassId::Cell) && !isFreshPlace(v)) except::throwMessage(NotIndexable(text::asciiToUtf16(v.className())));
}

void assignPlace(ValueArray& place, const AssignSteps& steps, std::size_t k, ValueArray rhs) {
    if (k == steps.size()) {
        place = std::move(rhs);
        return;
    }
    const AssignStep& step = steps[k];
    if (step.kind == SuffixKind::Field) return assignField(place, steps, k, std::move(rhs));
    const bool brace = step.kind == SuffixKind::Brace;
    if (brace) requireCellPlace(place);
    if (k + 1 == steps.size() && !brace) return values::assignIndexed(place, step.args, rhs);

    // A nested place: the one element it lies in, when it exists already.
    const auto selection = values::selectExisting(place.dims(), step.args);
    const bool single = selection && selection->positions.size() == 1;
    if (single && brace) return assignPlace(place.mutableCellAt(selection->positions[0]), steps, k + 1, std::move(rhs));
    ValueArray inner = single ? values::indexValue(place, step.args) : ValueArray();
    assignPlace(inner, steps, k + 1, std::move(rhs));
    if (brace) {
        ValueArray wrapped = ValueArray::cell(Dims{1, 1});
        wrapped.setCellAt(0, std::move(inner));
        inner = std::move(wrapped);
    }
    values::assignIndexed(place, step.args, inner);
}

}  // namespace orrery::shell::eval
