// A row of Warning objects made one record at a time, for the module's own
// callers that build records in place (a log being loaded).
#pragma once

#include <orrery/lang/warning.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/value/value_array.hpp>

#include <memory>
#include <vector>

namespace orrery::lang::diagnostic {

/// Each record is made inside its object, so no list of records is kept beside
/// the objects and none is copied or moved; finish makes the 1-by-N Warning
/// array of them.
class WarningRowBuilder {
public:
    /// Appends an object holding an empty record and answers that record, to be
    /// filled in place; it stays where it is while the builder lives.
    Warning& add();

    /// The objects added, in order, as a 1-by-N Warning array (1-by-0 for none);
    /// the builder is left empty. Raises "ORRERY:ocos:noSuchClass" before the
    /// module has registered the class.
    value::ValueArrayPtr finish();

private:
    std::vector<std::shared_ptr<ocos::COSObject>> objects_;
};

}  // namespace orrery::lang::diagnostic
