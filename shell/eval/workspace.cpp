// Workspace variables.
#include "shell/eval/workspace.hpp"

namespace orrery::shell::eval {

const value::ValueArray* Workspace::find(std::string_view name) const {
    const auto found = variables_.find(name);
    return found == variables_.end() ? nullptr : &found->second;
}

value::ValueArray* Workspace::findMutable(std::string_view name) {
    const auto found = variables_.find(name);
    return found == variables_.end() ? nullptr : &found->second;
}

void Workspace::set(std::string_view name, value::ValueArray value) {
    variables_.insert_or_assign(std::string(name), std::move(value));
}

void Workspace::erase(std::string_view name) {
    const auto found = variables_.find(name);
    if (found != variables_.end()) variables_.erase(found);
}

std::vector<std::string> Workspace::names() const {
    std::vector<std::string> result;
    for (const auto& [name, value] : variables_) result.push_back(name);
    return result;
}

}  // namespace orrery::shell::eval
