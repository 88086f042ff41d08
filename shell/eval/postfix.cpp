// Names, index chains and fields: variables, calls by name, dotted namespace
// functions, parentheses, braces and fields, with comma-separated lists.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::eval {

using lang::ExprKind;
using lang::SuffixKind;
using value::ClassId;
using value::ValueArray;

/// Makes 'end' mean the size of a target (or refuses it in call arguments)
/// while index arguments are evaluated.
class Interpreter::EndScope {
public:
    EndScope(Interpreter& interpreter, EndContext context) : interpreter_(interpreter) {
        interpreter_.endStack_.push_back(context);
    }
    ~EndScope() { interpreter_.endStack_.pop_back(); }
    EndScope(const EndScope&) = delete;
    EndScope& operator=(const EndScope&) = delete;

private:
    Interpreter& interpreter_;
};

Interpreter::Values Interpreter::evalPostfix(const lang::Expr& expr, int nargout) {
    const lang::Expr& base = *expr.operands[0];
    if (base.kind == ExprKind::Name) return evalName(base, &expr, nargout);
    return applySuffixes({eval(base)}, expr.suffixes, 0, nargout);
}

Interpreter::Values Interpreter::evalName(const lang::Expr& nameExpr, const lang::Expr* postfix, int nargout) {
    static const std::vector<lang::Suffix> none;
    const auto& suffixes = postfix != nullptr ? postfix->suffixes : none;
    if (const ValueArray* variable = findVariable(nameExpr.name, nameExpr.slot)) {
        if (suffixes.empty()) return Values(1, *variable);
        return applySuffixes({*variable}, suffixes, 0, nargout);
    }
    const std::string& name = nameExpr.name;

    // name.inner.function(args): the longest dotted path that names a namespace function
    std::string found;
    std::size_t k = 0;
    if (!suffixes.empty() && suffixes[0].kind == SuffixKind::Field) {
        std::string path = name;
        for (std::size_t step = 0; step < suffixes.size() && suffixes[step].kind == SuffixKind::Field; ++step) {
            path += "." + suffixes[step].field;
            if (ocos::findFunction(path)) {
                found = path;
                k = step + 1;
            }
        }
    }
    Values args;
    if (k < suffixes.size() && suffixes[k].kind == SuffixKind::Paren)
        evalArguments(suffixes[k++].args, found.empty() ? name : found, args);
    const int wanted = k < suffixes.size() ? 1 : nargout;
    // Made where it is returned or passed on, never moved between lists.
    const auto results = [&] {
        return found.empty() ? call(findCallee(name, args, nameExpr.callee), name, args, wanted)
                             : callNamespaceFunction(found, args, wanted);
    };
    if (k == suffixes.size()) return results();
    return applySuffixes(results(), suffixes, k, nargout);
}

Interpreter::Values Interpreter::applySuffixes(Values current, const std::vector<lang::Suffix>& suffixes, std::size_t k,
                                               int nargout) {
    for (; k < suffixes.size(); ++k) {
        if (current.size() != 1) {
            if (current.empty()) except::throwMessage(NoValue());
            except::throwMessage(ManyValues(current.size()));
        }
        const ValueArray v = std::move(current.front());
        const lang::Suffix& suffix = suffixes[k];
        if (suffix.kind == SuffixKind::Paren) {
            current.clear();
            current.push_back(values::indexValue(v, evalIndexArgs(suffix, v)));
            continue;
        }
        if (suffix.kind == SuffixKind::Brace) {
            if (!v.is(ClassId::Cell)) except::throwMessage(NotIndexable(text::asciiToUtf16(v.className())));
            current.clear();
            for (std::size_t p : values::selectElements(v.dims(), evalIndexArgs(suffix, v)).positions)
                current.push_back(v.cellAt(p));
            continue;
        }
        const std::string field = suffix.kind == SuffixKind::Field ? suffix.field : dynamicFieldName(suffix);
        const bool method = v.is(ClassId::Object) && v.classInfo() && !v.classInfo()->findProperty(field) &&
                            v.classInfo()->findMethod(field);
        if (!method) {
            current = fieldValues(v, field);
            continue;
        }
        // obj.method(args) calls the class's method with the object first
        Values args{v};
        if (k + 1 < suffixes.size() && suffixes[k + 1].kind == SuffixKind::Paren) {
            evalArguments(suffixes[++k].args, field, args);
        }
        current = callFunction(field, args, k + 1 < suffixes.size() ? 1 : nargout);
    }
    return current;
}

Interpreter::Values Interpreter::fieldValues(const ValueArray& v, const std::string& field) {
    Values result;
    if (v.is(ClassId::Struct)) {
        if (!v.hasField(field)) except::throwMessage(except::host::NoSuchField(text::utf8ToUtf16(field)));
        for (std::size_t i = 0; i < v.numel(); ++i) {
            const ValueArray* element = v.field(i, field);
            result.push_back(element != nullptr ? *element : ValueArray());
        }
        return result;
    }
    if (v.is(ClassId::Object)) {
        for (std::size_t i = 0; i < v.numel(); ++i) result.push_back(ocos::getProperty(v, i, field));
        return result;
    }
    except::throwMessage(NoFields(text::asciiToUtf16(v.className()), text::utf8ToUtf16(field)));
}

values::IndexArgs Interpreter::evalIndexArgs(const lang::Suffix& suffix, const ValueArray& target) {
    values::IndexArgs args;
    evalIndexArgs(suffix, target, args);
    return args;
}

void Interpreter::evalIndexArgs(const lang::Suffix& suffix, const ValueArray& target, values::IndexArgs& args) {
    const std::size_t count = suffix.args.size();
    for (std::size_t k = 0; k < count; ++k) {
        const lang::Expr& arg = *suffix.args[k];
        if (arg.kind == ExprKind::Colon) {
            args.emplace_back().colon = true;
            continue;
        }
        EndScope scope(*this, {&target.dims(), k, count, nullptr});
        args.emplace_back().value = eval(arg);
    }
}

void Interpreter::evalArguments(const std::vector<lang::ExprPtr>& args, const std::string& callee, Values& values) {
    EndScope scope(*this, {nullptr, 0, 0, &callee});
    for (const auto& arg : args) {
        if (arg->kind != ExprKind::Name && arg->kind != ExprKind::Postfix) {
            values.push_back(eval(*arg));  // one value, without a list
            continue;
        }
        for (auto& v : evalMulti(*arg, 1)) values.push_back(std::move(v));
    }
}

std::string Interpreter::dynamicFieldName(const lang::Suffix& suffix) {
    const ValueArray name = eval(*suffix.args[0]);
    if (!name.isTextScalarTolerant()) except::throwMessage(BadFieldName());
    return name.textUtf8();
}

}  // namespace orrery::shell::eval
