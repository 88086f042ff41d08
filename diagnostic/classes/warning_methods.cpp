// The Warning class's method descriptions and the comparison methods.
#include "diagnostic/classes/warning_methods.hpp"

#include "diagnostic/classes/class_ids.hpp"
#include "diagnostic/classes/warning_info.hpp"
#include "diagnostic/classes/warning_objects.hpp"
#include "diagnostic/classes/warning_table.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/warning/warning_manager.hpp>

namespace orrery::lang::diagnostic {

using value::ValueArray;

WarningBaseMI::WarningBaseMI(std::string name) : COSMethodInfo(std::move(name)) {}

WarningInstanceMI::WarningInstanceMI(std::string name) : WarningBaseMI(std::move(name)) {
    addInput(ocos::intern(kWarningClassPath));
}

WarningCompareMI::WarningCompareMI(std::string name) : WarningInstanceMI(std::move(name)) {
    addInput(ocos::intern(kWarningClassPath));
    addOutput(ocos::intern("logical"));
}

ValueArray WarningCompareMI::equalElements(const ValueArray& a, const ValueArray& b) {
    if (a.dims() == b.dims()) {
        ValueArray answer = ValueArray::zeros(value::ClassId::Logical, a.dims());
        for (std::size_t i = 0; i < a.numel(); ++i)
            answer.setLogicalAt(i, warningRecordAt(a, i) == warningRecordAt(b, i));
        return answer;
    }
    const bool aIsScalar = a.isScalar();
    if (!aIsScalar && !b.isScalar()) except::throwMessage(orrery::diagnostic::ids::CompareDimagree());
    // The array operand first, the scalar second.
    const ValueArray& array = aIsScalar ? b : a;
    const Warning& scalar = warningRecordAt(aIsScalar ? a : b, 0);
    ValueArray answer = ValueArray::zeros(value::ClassId::Logical, array.dims());
    for (std::size_t i = 0; i < array.numel(); ++i) answer.setLogicalAt(i, warningRecordAt(array, i) == scalar);
    return answer;
}

EqMI::EqMI() : WarningCompareMI("eq") {}

void EqMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                  const ValueArray* const* prhs) const {
    plhs[0] = value::makeValue(equalElements(*prhs[0], *prhs[1]));
}

NeMI::NeMI() : WarningCompareMI("ne") {}

void NeMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                  const ValueArray* const* prhs) const {
    ValueArray answer = equalElements(*prhs[0], *prhs[1]);
    for (std::size_t i = 0; i < answer.numel(); ++i) answer.setLogicalAt(i, !answer.logicalAt(i));
    plhs[0] = value::makeValue(std::move(answer));
}

IsEqualMI::IsEqualMI() : WarningInstanceMI("isequal") {
    addInput(ocos::intern(kWarningClassPath));
    addOutput(ocos::intern("logical scalar"));
}

void IsEqualMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                       const ValueArray* const* prhs) const {
    const ValueArray& a = *prhs[0];
    const ValueArray& b = *prhs[1];
    bool equal = a.dims() == b.dims();
    for (std::size_t i = 0; equal && i < a.numel(); ++i) equal = !(warningRecordAt(a, i) != warningRecordAt(b, i));
    plhs[0] = value::makeValue(ValueArray::logicalScalar(equal));
}

DispMI::DispMI() : WarningInstanceMI("disp") {}

void DispMI::invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* /*plhs*/, std::int32_t /*nrhs*/,
                    const ValueArray* const* prhs) const {
    console::consoleWrite(console::ConsoleStream::Output, warningTable(*prhs[0]));
}

}  // namespace orrery::lang::diagnostic
