// The stack of warning-output filters that each virtual machine keeps.
#pragma once

#include <orrery/warning/warning_operation.hpp>

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace orrery::warning {

/// Registered filters, oldest first. Safe to change from a filter while it runs.
class WarningFilterStack {
public:
    /// Adds a filter on top; answers its registration number.
    std::size_t push(WarningFilterFunction filter);
    /// Removes the registration with that number, wherever it is.
    void remove(std::size_t id);
    /// Runs the filters over text, most recently pushed first; false when one of
    /// them suppresses the warning (the remaining ones are then not run).
    bool run(std::u16string& text) const;

private:
    struct Registration {
        std::size_t id;
        std::shared_ptr<const WarningFilterFunction> filter;
    };

    mutable std::mutex mutex_;
    std::vector<Registration> registrations_;
    std::size_t nextId_ = 1;
};

/// Runs the current virtual machine's filters (none without a machine).
bool runWarningFilters(std::u16string& text);

}  // namespace orrery::warning
