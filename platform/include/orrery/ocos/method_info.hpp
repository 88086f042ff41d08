// Method descriptions of the class system.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <string>

namespace orrery::ocos {

/// Describes one method or namespace function: its name and how to invoke it.
class ORRERY_API COSMethodInfo {
public:
    explicit COSMethodInfo(std::string name);
    virtual ~COSMethodInfo();
    COSMethodInfo(const COSMethodInfo&) = delete;
    COSMethodInfo& operator=(const COSMethodInfo&) = delete;

    const std::string& getName() const noexcept { return name_; }

    /// Runs the method with the built-in signature: fills plhs[0 .. produced-1].
    virtual void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                        const value::ValueArray* const* prhs) const = 0;

private:
    std::string name_;
};

}  // namespace orrery::ocos
