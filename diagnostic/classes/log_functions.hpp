// The functions of namespace orrery.internal.diagnostic.log: open, close, load
// and summary.
#pragma once

#include "diagnostic/classes/warning_methods.hpp"

namespace orrery::lang::diagnostic {

/// open(fileName): starts writing issued warnings to the log file, through the
/// warning manager's current log (made first when there is none).
class OpenLogMI final : public WarningBaseMI {
public:
    OpenLogMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// close(fileName): stops writing to the log file, through the current log
/// (made first when there is none); the log decides what closing a file that is
/// not open means.
class CloseLogMI final : public WarningBaseMI {
public:
    CloseLogMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// w = load(fileName): the warnings of a log file as a 1-by-N Warning array in
/// file order. The reader's failures pass on unchanged; nothing is returned in part.
class LoadLogMI final : public WarningBaseMI {
public:
    LoadLogMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// s = summary(fileName): the log's warnings counted per identifier without
/// loading them, an N-by-1 struct array in the order of each identifier's first
/// warning, with the fields identifier, count, disabled, first, last (serial day
/// numbers) and timeline (a 1-by-kSummaryParts row: how many of the
/// identifier's warnings fell into each equal part of the log's time span).
class SummaryLogMI final : public WarningBaseMI {
public:
    SummaryLogMI();
    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override;
};

/// The parts of a summary's timeline.
inline constexpr std::size_t kSummaryParts = 16;

}  // namespace orrery::lang::diagnostic
