// The class and size of element-wise results.
#include "shell/builtins/element_pairs.hpp"

#include "shell/builtins/builtin_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::builtins {

ClassId resultClass(const ValueArray& x) { return x.isNumeric() ? x.classId() : ClassId::Double; }

ClassId combinedClass(const ValueArray& a, const ValueArray& b) {
    const ClassId x = resultClass(a);
    const ClassId y = resultClass(b);
    if (value::isIntegerClass(x)) return x;
    if (value::isIntegerClass(y)) return y;
    return (x == ClassId::Single || y == ClassId::Single) ? ClassId::Single : ClassId::Double;
}

const value::Dims& pairedSize(const ValueArray& a, const ValueArray& b) {
    if (a.dims() != b.dims() && !a.isScalar() && !b.isScalar())
        except::throwMessage(
            messages::SizeMismatch(text::asciiToUtf16(a.dims().text()), text::asciiToUtf16(b.dims().text())));
    return a.isScalar() ? b.dims() : a.dims();
}

}  // namespace orrery::shell::builtins
