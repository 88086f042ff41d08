// Making an owned Expat parser.
#include "diagnostic/log/expat_parser.hpp"

#include <new>

namespace orrery::lang::diagnostic {

ExpatParser makeExpatParser() {
    ExpatParser parser(XML_ParserCreate(nullptr));
    if (!parser) throw std::bad_alloc();
    return parser;
}

}  // namespace orrery::lang::diagnostic
