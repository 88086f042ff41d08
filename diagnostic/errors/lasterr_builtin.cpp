// The lasterr built-in: reads, then optionally replaces, the last-error record.
#include "diagnostic/errors/error_builtins.hpp"

#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/hot_links.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

namespace {

using orrery::value::ClassId;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;
namespace except = orrery::except;
namespace text = orrery::text;

ValueArray messageOutput(const std::u16string& message, bool stripHotLinks) {
    if (stripHotLinks && message.find(u"</") != std::u16string::npos) {
        return ValueArray::charsFromUtf8(text::ioStripHotLinks(text::utf16ToUtf8(message)));
    }
    return ValueArray::chars(message);
}

// Input 2 of any class but char and string is ignored on purpose.
std::string newIdentifier(std::int32_t count, const ValueArray* const* inputs) {
    if (count < 2 || !(inputs[1]->is(ClassId::Char) || inputs[1]->is(ClassId::String))) return {};
    std::string identifier = text::utf16ToAscii(inputs[1]->text());
    if (!identifier.empty() && !orrery::warning::utIsValidMessageIdentifier(identifier)) {
        except::throwMessage(orrery::diagnostic::ids::LasterrBadMessageIdentifier(text::asciiToUtf16(identifier)));
    }
    return identifier;
}

}  // namespace

void bnLastErrMsg(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    except::checkArgumentCounts(nlhs, 2, nrhs, 0, 2);
    // Tolerant: the language's '' is the 0-by-0 char array, and lasterr('') clears.
    if (nrhs >= 1 && !prhs[0]->isTextScalarTolerant()) {
        except::throwMessage(orrery::diagnostic::ids::MustBeStringScalarOrCharacterVector());
    }
    bool stripHotLinks = true;
    if (nrhs >= 1 && prhs[0]->text() == u"-hotlinks") {
        stripHotLinks = false;
        ++prhs;
        --nrhs;
    }
    const auto record = except::QException::LastError::Get();
    // The outputs describe the record as it was before any change below.
    if (nlhs > 0 || nrhs == 0) {
        plhs[0] = orrery::value::makeValue(messageOutput(record.message, stripHotLinks));
        if (nlhs > 1) plhs[1] = orrery::value::makeValue(ValueArray::charsFromUtf8(record.identifier));
    }
    if (nrhs == 0) return;
    std::u16string message = prhs[0]->text();
    std::string identifier = newIdentifier(nrhs, prhs);
    except::QException::LastError::Set(std::move(identifier), std::move(message), std::nullopt);
}
