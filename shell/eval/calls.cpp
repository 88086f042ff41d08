// Calls by name: script functions (each in its own workspace and call-stack
// frame), the function table (host and module built-ins, class methods through
// the class system's dispatch) and namespace functions of the class system,
// all with the built-in signature.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/eval_messages.hpp"
#include "shell/eval/user_error.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <functional>

namespace orrery::shell::eval {

using value::ValueArray;

namespace {

using Invoker = std::function<void(std::int32_t, value::ValueArrayPtr*, std::int32_t, const ValueArray* const*)>;

boost::container::small_vector<const ValueArray*, 4> pointersTo(const Values& args) {
    boost::container::small_vector<const ValueArray*, 4> pointers;
    for (const auto& arg : args) pointers.push_back(&arg);
    return pointers;
}

// Runs a built-in with the signature: nargout outputs requested (slot 1 is
// offered even for none), failures reported as errors of `name`.
Values invoke(const std::string& name, const Values& args, int nargout, const Invoker& function) {
    boost::container::small_vector<value::ValueArrayPtr, 1> slots(static_cast<std::size_t>(std::max(nargout, 1)));
    const auto inputs = pointersTo(args);
    try {
        function(nargout, slots.data(), static_cast<std::int32_t>(inputs.size()), inputs.data());
    } catch (...) {
        rethrowAsUserError(name);  // the built-in boundary
    }
    Values results;
    for (std::size_t i = 0; i < slots.size() && slots[i]; ++i) results.push_back(std::move(*slots[i]));
    if (static_cast<int>(results.size()) < nargout) {
        if (results.empty()) except::throwMessage(NoOutput(text::utf8ToUtf16(name)));
        except::throwMessage(
            OutputNotSet(text::utf8ToUtf16(std::to_string(results.size() + 1)), text::utf8ToUtf16(name)));
    }
    return results;
}

// Sets a variable for as long as the object lives, then puts back its value.
template <class T>
class Restore {
public:
    Restore(T& variable, T value) : variable_(variable), saved_(variable) { variable_ = value; }
    ~Restore() { variable_ = saved_; }
    Restore(const Restore&) = delete;
    Restore& operator=(const Restore&) = delete;

private:
    T& variable_;
    T saved_;
};

[[noreturn]] void raiseArgumentError(const std::string& function, void (*raise)()) {
    try {
        raise();
    } catch (...) {
        rethrowAsUserError(function);
    }
    except::internalError("shell", "an argument error was not raised");
}

}  // namespace

Interpreter::UserFunction::UserFunction(std::shared_ptr<const lang::FunctionDef> definition, std::u16string fileName)
    : def(std::move(definition)),
      file(std::move(fileName)),
      frame{file, text::utf8ToUtf16(def->name), def->pos.line},
      layout(std::make_unique<SlotLayout>()) {
    for (const auto& input : def->inputs) inputSlots.push_back(layout->slotOf(input));
    narginSlot = layout->slotOf("nargin");
    nargoutSlot = layout->slotOf("nargout");
    for (const auto& output : def->outputs) outputSlots.push_back(layout->slotOf(output));
}

lang::CallMemo Interpreter::findName(const std::string& name) const {
    using Found = lang::CallMemo::Found;
    if (isSessionCommand(name)) return {functionsVersion_, Found::SessionCommand, nullptr};
    if (const auto found = functions_.find(name); found != functions_.end())
        return {functionsVersion_, Found::Script, found->second.get()};
    return {functionsVersion_, Found::Neither, nullptr};
}

// A class's method depends on the arguments' classes and a registered function
// may come and go, so both are looked for on every call.
Interpreter::Callee Interpreter::findCallee(const std::string& name, const Values& args, lang::CallMemo& memo) const {
    using Found = lang::CallMemo::Found;
    if (memo.functions != functionsVersion_) memo = findName(name);
    if (memo.found == Found::SessionCommand) return {Callee::Kind::SessionCommand, nullptr};
    const auto inputs = pointersTo(args);
    if (ocos::findMethodFor(name, static_cast<std::int32_t>(inputs.size()), inputs.data()))
        return {Callee::Kind::Method, nullptr};
    if (memo.found == Found::Script) return {Callee::Kind::Script, static_cast<const UserFunction*>(memo.script)};
    if (interp::isFunction(name)) return {Callee::Kind::Registered, nullptr};
    return {};
}

Interpreter::Values Interpreter::call(const Callee& callee, const std::string& name, const Values& args, int nargout) {
    switch (callee.kind) {
        case Callee::Kind::SessionCommand: return callSessionCommand(name, args, nargout);
        case Callee::Kind::Script: return callUser(*callee.script, args, nargout);
        case Callee::Kind::Method:
        case Callee::Kind::Registered: return callBuiltin(name, args, nargout);
        case Callee::Kind::None: break;
    }
    except::throwMessage(except::host::UndefinedFunction(text::utf8ToUtf16(name)));
}

Interpreter::Values Interpreter::callFunction(const std::string& name, const Values& args, int nargout) {
    lang::CallMemo once;
    return call(findCallee(name, args, once), name, args, nargout);
}

Interpreter::Values Interpreter::callBuiltin(const std::string& name, const Values& args, int nargout) {
    return invoke(name, args, nargout,
                  [&name](std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                          const ValueArray* const* prhs) { interp::callFunction(name, nlhs, plhs, nrhs, prhs); });
}

Interpreter::Values Interpreter::callNamespaceFunction(const std::string& path, const Values& args, int nargout) {
    return invoke(
        path, args, nargout,
        [&path](std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
            ocos::callNamespaceFunction(path, nlhs, plhs, nrhs, prhs);
        });
}

Interpreter::Values Interpreter::callUser(const UserFunction& function, const Values& args, int nargout) {
    const lang::FunctionDef& def = *function.def;
    if (args.size() > def.inputs.size()) raiseArgumentError(def.name, except::throwTooManyInputs);
    if (static_cast<std::size_t>(nargout) > def.outputs.size())
        raiseArgumentError(def.name, except::throwTooManyOutputs);
    if (callDepth_ >= kMaxCallDepth) except::throwMessage(RecursionLimit(kMaxCallDepth));

    Workspace local(*function.layout);
    for (std::size_t i = 0; i < args.size(); ++i)
        if (def.inputs[i] != "~") local.setAt(function.inputSlots[i], args[i]);
    local.setAt(function.narginSlot, ValueArray::scalar(static_cast<double>(args.size())));
    local.setAt(function.nargoutSlot, ValueArray::scalar(nargout));

    {
        const Restore<Workspace*> workspace(current_, &local);
        const Restore<std::size_t> depth(callDepth_, callDepth_ + 1);
        const interp::FrameGuard frame(function.frame);
        execBlock(def.body);
    }

    Values results;
    const std::size_t wanted = std::min(static_cast<std::size_t>(std::max(nargout, 1)), def.outputs.size());
    for (std::size_t i = 0; i < wanted; ++i) {
        const std::uint32_t slot = function.outputSlots[i];
        ValueArray* output = local.mutableAt(slot);
        if (output != nullptr) {
            // the workspace ends here: a value no later output names is moved out
            const auto later = function.outputSlots.begin() + static_cast<std::ptrdiff_t>(i) + 1;
            const bool lastUse = std::find(later, function.outputSlots.end(), slot) == function.outputSlots.end();
            results.push_back(lastUse ? std::move(*output) : *output);
        } else if (static_cast<int>(i) < nargout) {
            except::throwMessage(OutputNotSet(text::utf8ToUtf16(def.outputs[i]), text::utf8ToUtf16(def.name)));
        } else {
            break;
        }
    }
    return results;
}

}  // namespace orrery::shell::eval
