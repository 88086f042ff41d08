// A row of Warning objects built record by record.
#include "diagnostic/record/warning_row_builder.hpp"

#include "diagnostic/classes/warning_instance.hpp"
#include "diagnostic/classes/warning_objects.hpp"

#include <utility>

namespace orrery::lang::diagnostic {

Warning& WarningRowBuilder::add() {
    auto instance = std::make_shared<WarningInstance>();
    Warning& record = instance->record();
    objects_.push_back(std::move(instance));
    return record;
}

value::ValueArrayPtr WarningRowBuilder::finish() {
    std::vector<std::shared_ptr<ocos::COSObject>> objects = std::move(objects_);
    objects_.clear();
    auto row = value::makeValue(newWarningArray(value::Dims{1, objects.size()}));
    for (std::size_t i = 0; i < objects.size(); ++i) row->setObjectAt(i, std::move(objects[i]));
    return row;
}

}  // namespace orrery::lang::diagnostic
