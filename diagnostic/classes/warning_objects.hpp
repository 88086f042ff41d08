// Warning objects: the class found by its path, the record of an element, and
// arrays of new instances holding copies of records.
#pragma once

#include <orrery/lang/warning.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <memory>

namespace orrery::lang::diagnostic {

/// The registered class at "orrery.internal.diagnostic.Warning"; raises
/// "ORRERY:ocos:noSuchClass" before the module has registered it.
std::shared_ptr<const ocos::COSClassInfo> warningClass();

/// The record of element index (zero-based) of a Warning array. An element that
/// is not a valid Warning object raises "ORRERY:warning:Invalid" with the
/// array's class name.
const Warning& warningRecordAt(const value::ValueArray& objects, std::size_t index);

/// A Warning object array of the size; every element starts invalid.
value::ValueArray newWarningArray(value::Dims dims);

/// Stores a new instance holding the record (a copy, or the caller's moved in)
/// as element index.
void setWarningAt(value::ValueArray& objects, std::size_t index, Warning record);

}  // namespace orrery::lang::diagnostic
