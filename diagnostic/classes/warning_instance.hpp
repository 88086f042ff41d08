// One element of a Warning object array: an instance that owns one record.
#pragma once

#include <orrery/lang/warning.hpp>
#include <orrery/ocos/class_info.hpp>

#include <memory>
#include <utility>

namespace orrery::lang::diagnostic {

/// The instance behind one Warning object. Copies (clone) copy the record, so no
/// two instances share one.
class WarningInstance final : public ocos::COSObject {
public:
    WarningInstance() = default;
    explicit WarningInstance(Warning record) : record_(std::move(record)) {}

    std::shared_ptr<ocos::COSObject> clone() const override { return std::make_shared<WarningInstance>(*this); }

    Warning& record() noexcept { return record_; }
    const Warning& record() const noexcept { return record_; }

private:
    Warning record_;
};

}  // namespace orrery::lang::diagnostic
