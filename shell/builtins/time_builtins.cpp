// Built-ins of dates and timing: now, datenum, datevec, tic, toc. Dates go
// through the platform's pair of serial-day conversions.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/dates.hpp>
#include <orrery/text/text.hpp>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>

namespace orrery::shell::builtins {
namespace {

// ---- dates -------------------------------------------------------------------

// Dates are numbers: text is not read as a date.
void requireNumbers(const ValueArray& v, std::string_view function) {
    if (v.isNumeric() || v.is(ClassId::Logical)) return;
    except::throwMessage(messages::NotNumber(text::asciiToUtf16(function), text::utf8ToUtf16(v.className())));
}

void bnNow(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const*) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 0);
    plhs[0] = makeValue(ValueArray::scalar(interp::nowSerial()));
}

// datenum(v) of an N-by-3 or N-by-6 matrix of date vectors: an N-by-1 column.
// A single column (or an empty array) holds serial numbers already.
ValueArray datenumOfRows(const ValueArray& v) {
    const std::size_t rows = v.dims().rows();
    const std::size_t columns = v.dims().cols();
    if ((columns == 1 && v.ndims() == 2) || v.isEmpty()) {
        ValueArray serials = ValueArray::zeros(ClassId::Double, v.dims());
        for (std::size_t i = 0; i < v.numel(); ++i) serials.setRealAt(i, v.realAt(i));
        return serials;
    }
    if (v.ndims() != 2 || (columns != 3 && columns != 6)) except::throwMessage(messages::BadDateVector());
    std::vector<double> serials(rows);
    for (std::size_t r = 0; r < rows; ++r) {
        std::array<double, 6> parts{};
        for (std::size_t c = 0; c < columns; ++c) parts[c] = v.realAt(c * rows + r);
        serials[r] = interp::datenumFromDatevec(parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]);
    }
    return ValueArray::doubles(value::Dims{rows, 1}, std::move(serials));
}

// datenum(y, m, d) or datenum(y, m, d, h, mi, s): parts of one size, or scalars.
ValueArray datenumOfParts(Arguments parts) {
    const ValueArray* shape = parts[0];
    for (const ValueArray* p : parts) {
        if (!p->isScalar()) shape = p;
    }
    for (const ValueArray* p : parts)
        if (!p->isScalar() && p->dims() != shape->dims())
            except::throwMessage(
                messages::SizeMismatch(text::asciiToUtf16(p->dims().text()), text::asciiToUtf16(shape->dims().text())));
    std::vector<double> serials(shape->numel());
    for (std::size_t i = 0; i < serials.size(); ++i) {
        std::array<double, 6> v{};
        for (std::size_t k = 0; k < parts.size(); ++k) v[k] = parts[k]->realAt(parts[k]->isScalar() ? 0 : i);
        serials[i] = interp::datenumFromDatevec(v[0], v[1], v[2], v[3], v[4], v[5]);
    }
    return ValueArray::doubles(shape->dims(), std::move(serials));
}

void bnDatenum(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 6);
    for (const ValueArray* p : argumentsOf(nrhs, prhs)) requireNumbers(*p, "datenum");
    if (nrhs == 1)
        plhs[0] = makeValue(datenumOfRows(*prhs[0]));
    else if (nrhs == 3 || nrhs == 6)
        plhs[0] = makeValue(datenumOfParts(argumentsOf(nrhs, prhs)));
    else
        except::throwMessage(messages::BadDateVector());
}

// datevec(n): an N-by-6 matrix, one row per element; [y, m, d, h, mi, s] = datevec(n)
// gives each part in the size of n.
void bnDatevec(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 6, nrhs, 1, 1);
    const ValueArray& serials = *prhs[0];
    requireNumbers(serials, "datevec");
    const std::size_t n = serials.numel();
    std::vector<double> parts(6 * n);
    for (std::size_t i = 0; i < n; ++i) {
        const interp::DateVector d = interp::calcDatevec(serials.realAt(i));
        const std::array<double, 6> row{d.year, d.month, d.day, d.hour, d.minute, d.seconds};
        for (std::size_t c = 0; c < 6; ++c) parts[c * n + i] = row[c];
    }
    if (nlhs <= 1) {
        plhs[0] = makeValue(ValueArray::doubles(value::Dims{n, 6}, std::move(parts)));
        return;
    }
    const auto column = static_cast<std::ptrdiff_t>(n);
    for (std::ptrdiff_t c = 0; c < nlhs; ++c) {
        const auto first = parts.begin() + c * column;
        plhs[c] = makeValue(ValueArray::doubles(serials.dims(), {first, first + column}));
    }
}

// ---- timing ------------------------------------------------------------------

using Clock = std::chrono::steady_clock;

// The time of the last tic, as microseconds of the steady clock.
std::optional<std::uint64_t>& lastTic() {
    static std::optional<std::uint64_t> started;
    return started;
}

std::uint64_t microsecondsNow() {
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now().time_since_epoch()).count());
}

void bnTic(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const*) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 0);
    const std::uint64_t now = microsecondsNow();
    lastTic() = now;
    if (nlhs > 0) {
        ValueArray id = ValueArray::zeros(ClassId::UInt64, value::Dims{1, 1});
        id.mutableData<std::uint64_t>()[0] = now;
        plhs[0] = makeValue(std::move(id));
    }
}

// toc or toc(id): seconds since the last tic (or the tic that returned id);
// without an output it prints them.
void bnToc(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 1);
    std::optional<std::uint64_t> start = lastTic();
    if (nrhs == 1) {
        if (!prhs[0]->is(ClassId::UInt64) || !prhs[0]->isScalar()) except::throwInvalidInput();
        start = prhs[0]->data<std::uint64_t>()[0];
    }
    if (!start) except::throwMessage(messages::TocWithoutTic());
    const double seconds = static_cast<double>(microsecondsNow() - *start) / 1e6;
    if (nlhs > 0) {
        plhs[0] = makeValue(ValueArray::scalar(seconds));
        return;
    }
    char line[64];
    std::snprintf(line, sizeof line, "Elapsed time is %.6f seconds.\n", seconds);
    writeOutput(line);
}

constexpr BuiltinEntry table[] = {
    {"now", bnNow}, {"datenum", bnDatenum}, {"datevec", bnDatevec}, {"tic", bnTic}, {"toc", bnToc},
};

}  // namespace

std::span<const BuiltinEntry> timeBuiltins() { return table; }

}  // namespace orrery::shell::builtins
