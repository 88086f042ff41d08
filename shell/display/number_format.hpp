// Text of numbers as the display shows them: one layout chosen per array so
// that the elements of a matrix line up.
#pragma once

#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::shell::render {

/// How the elements of one array are written.
enum class NumberLayout {
    Integer,     ///< whole numbers: "12"
    Fixed,       ///< four decimals: "3.1416"
    Scientific,  ///< four decimals and an exponent: "1.2346e+05"
};

/// The layout that suits every element of a numeric, logical or char array.
NumberLayout chooseLayout(const value::ValueArray& numbers);

/// Element i of a numeric, logical or char array in the layout. NaN and
/// infinities read "NaN", "Inf" and "-Inf" in any layout; integer classes are
/// written exactly.
std::string formatElement(const value::ValueArray& numbers, std::size_t i, NumberLayout layout);

/// Every element of the array, formatted in its chosen layout, column-major.
std::vector<std::string> formatAll(const value::ValueArray& numbers);

}  // namespace orrery::shell::render
