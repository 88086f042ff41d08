// Assignments: plain, indexed, into fields and cells (nested to any depth),
// and to several outputs at once. An indexed assignment first evaluates its
// index arguments and field names, then changes the variable where it lies.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/eval_messages.hpp"
#include "shell/eval/place_assignment.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/object_access.hpp>

#include <forward_list>

namespace orrery::shell::eval {

using lang::SuffixKind;
using value::ClassId;
using value::ValueArray;

void Interpreter::execAssign(const lang::Stmt& stmt) {
    const lang::LValue& target = stmt.targets[0];
    assignTo(target, eval(*stmt.expr));
    if (stmt.printResult) show(target.name, *findVariable(target.name, target.slot));
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
        if (!target.ignored) show(target.name, *findVariable(target.name, target.slot));
}

void Interpreter::assignTo(const lang::LValue& target, ValueArray rhs) {
    const std::uint32_t slot = current_->slot(target.name, target.slot);
    if (target.suffixes.empty()) {
        current_->setAt(slot, std::move(rhs));
        return;
    }
    // x(i) = v, the commonest indexed assignment, needs its index arguments only.
    const bool indexOnly = target.suffixes.size() == 1 && target.suffixes[0].kind == SuffixKind::Paren;
    values::IndexArgs args;
    AssignSteps steps;
    {
        // A share of the variable while its index arguments run (they may
        // change the workspace); released before the change, which then finds
        // the data unshared unless something else holds it.
        const ValueArray* existing = current_->at(slot);
        const ValueArray root = existing != nullptr ? *existing : ValueArray();
        if (indexOnly)
            evalIndexArgs(target.suffixes[0], root, args);
        else
            planAssignment(root, target.suffixes, steps);
    }
    const auto assign = [&](ValueArray& place) {
        if (indexOnly)
            values::assignIndexed(place, args, rhs);
        else
            assignPlace(place, steps, 0, std::move(rhs));
    };
    if (ValueArray* place = current_->mutableAt(slot)) return assign(*place);
    ValueArray made;
    assign(made);
    current_->setAt(slot, std::move(made));
}

void Interpreter::planAssignment(const ValueArray& root, const std::vector<lang::Suffix>& chain, AssignSteps& steps) {
    const ValueArray fresh;
    std::forward_list<ValueArray> made;  // elements picked by parentheses and properties on the way down
    const ValueArray* node = &root;
    for (std::size_t k = 0; k < chain.size(); ++k) {
        const lang::Suffix& suffix = chain[k];
        const bool last = k + 1 == chain.size();
        if (suffix.kind == SuffixKind::Field || suffix.kind == SuffixKind::DynamicField) {
            std::string name = suffix.kind == SuffixKind::Field ? suffix.field : dynamicFieldName(suffix);
            if (isFreshPlace(*node) || (node->is(ClassId::Struct) && node->isEmpty())) {
                node = &fresh;
            } else {
                requireFieldHolder(*node, name);
                if (node->is(ClassId::Object)) {
                    if (!last) node = &made.emplace_front(ocos::getProperty(*node, 0, name));
                } else {
                    const ValueArray* field = node->field(0, name);
                    node = field != nullptr ? field : &fresh;
                }
            }
            steps.push_back({SuffixKind::Field, std::move(name), {}});
            continue;
        }
        const bool brace = suffix.kind == SuffixKind::Brace;
        if (brace) requireCellPlace(*node);
        AssignStep& step = steps.emplace_back();
        step.kind = suffix.kind;
        evalIndexArgs(suffix, *node, step.args);
        const values::IndexArgs& args = step.args;
        if (!last) {
            const auto selection = values::selectExisting(node->dims(), args);
            if (!selection || selection->positions.size() != 1)
                node = &fresh;
            else if (brace)
                node = &node->cellAt(selection->positions[0]);
            else
                node = &made.emplace_front(values::indexValue(*node, args));
        }
    }
}

}  // namespace orrery::shell::eval
