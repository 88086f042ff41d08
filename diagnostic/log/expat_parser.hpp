// An owning handle of an Expat parser, released with the parser's own free.
#pragma once

#include <expat.h>

#include <memory>

namespace orrery::lang::diagnostic {

/// Frees an Expat parser.
struct ExpatParserFree {
    void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};

/// A parser owned by its handle.
using ExpatParser = std::unique_ptr<XML_ParserStruct, ExpatParserFree>;

/// A new parser without a fixed encoding (the document's declaration or UTF-8
/// decides); raises std::bad_alloc when Expat cannot make one.
ExpatParser makeExpatParser();

}  // namespace orrery::lang::diagnostic
