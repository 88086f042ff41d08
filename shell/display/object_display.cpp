// Objects shown through the class system's description of their class.
#include "shell/display/object_display.hpp"

#include "shell/display/summary.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/object_access.hpp>

#include <algorithm>

namespace orrery::shell::render {
namespace {

std::string propertyLines(const value::ValueArray& objects, const std::vector<std::string>& names) {
    std::size_t width = 0;
    for (const auto& name : names) width = std::max(width, name.size());
    std::string out;
    for (const auto& name : names) {
        const value::ValueArray property = ocos::getProperty(objects, 0, name);
        out += "    " + std::string(width - name.size(), ' ') + name + ": " + fieldSummary(&property) + "\n";
    }
    return out;
}

std::string nameLines(const std::vector<std::string>& names) {
    std::string out;
    for (const auto& name : names) out += "    " + name + "\n";
    return out;
}

}  // namespace

std::string objectBody(const value::ValueArray& objects) {
    const std::string name = objects.className();
    const auto& info = objects.classInfo();
    const std::vector<std::string> names = info ? info->getPropertyNames() : std::vector<std::string>{};
    if (objects.isScalar() && objects.isValidElement(0)) {
        if (names.empty()) return "  " + name + " with no properties.\n";
        return "  " + name + " with properties:\n" + propertyLines(objects, names);
    }
    const std::string heading = "  " + objects.dims().text() + " " + name + " array";
    if (names.empty()) return heading + " with no properties.\n";
    return heading + " with properties:\n" + nameLines(names);
}

}  // namespace orrery::shell::render
