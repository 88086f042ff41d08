// Method descriptions of the class system: a name, a signature and how to run.
#pragma once

#include <orrery/export.hpp>
#include <orrery/ocos/cos_name.hpp>
#include <orrery/ocos/cos_type.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::ocos {

/// The declared input and output types of a method or namespace function, in
/// order. Every input is required; at most outputs().size() outputs may be asked for.
class ORRERY_API COSMethodSignature {
public:
    COSMethodSignature() = default;
    /// Type texts as COSType accepts them; a bad text raises an internal error (except::InternalError).
    COSMethodSignature(std::initializer_list<std::string_view> inputs, std::initializer_list<std::string_view> outputs);

    void addInput(COSName type) { inputs_.emplace_back(type.view()); }
    void addOutput(COSName type) { outputs_.emplace_back(type.view()); }
    const std::vector<COSType>& inputs() const noexcept { return inputs_; }
    const std::vector<COSType>& outputs() const noexcept { return outputs_; }

private:
    std::vector<COSType> inputs_;
    std::vector<COSType> outputs_;
};

/// Describes one method or namespace function: its name, its signature and how to
/// invoke it. Callers run it through call, which checks the arguments against the
/// signature first; derived classes implement invoke.
class ORRERY_API COSMethodInfo {
public:
    /// A method with an empty signature (no inputs, no outputs) until types are added.
    explicit COSMethodInfo(std::string name);
    COSMethodInfo(std::string name, COSMethodSignature signature);
    virtual ~COSMethodInfo();
    COSMethodInfo(const COSMethodInfo&) = delete;
    COSMethodInfo& operator=(const COSMethodInfo&) = delete;

    const std::string& getName() const noexcept { return name_; }
    const COSMethodSignature& getSignature() const noexcept { return signature_; }

    /// Declares one more input or output type (while the method is described).
    void addInput(COSName type) { signature_.addInput(type); }
    void addOutput(COSName type) { signature_.addOutput(type); }

    /// Checks the call against the signature, then invokes. More outputs than
    /// declared raise "ORRERY:tooManyOutputs"; more or fewer inputs
    /// "ORRERY:tooManyInputs" or "ORRERY:notEnoughInputs"; an input of another
    /// type "ORRERY:ocos:argumentType".
    void call(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
              const value::ValueArray* const* prhs) const;

    /// Runs the method with the built-in signature: fills plhs[0 .. produced-1].
    /// The inputs have been checked when it is reached through call.
    virtual void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                        const value::ValueArray* const* prhs) const = 0;

private:
    std::string name_;
    COSMethodSignature signature_;
};

}  // namespace orrery::ocos
