// The variables of one workspace: the base workspace of a script or the
// prompt, or the private workspace of one function call.
#pragma once

#include <orrery/value/value_array.hpp>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::shell::eval {

/// Named values. Assignment stores a shared copy (the language's value semantics).
class Workspace {
public:
    /// The variable's value, or null when there is no such variable.
    const value::ValueArray* find(std::string_view name) const;
    /// The variable's value for changing where it lies, or null.
    value::ValueArray* findMutable(std::string_view name);
    bool contains(std::string_view name) const { return find(name) != nullptr; }
    void set(std::string_view name, value::ValueArray value);
    /// Removes the variable if present.
    void erase(std::string_view name);
    /// Variable names in alphabetical order.
    std::vector<std::string> names() const;

private:
    std::map<std::string, value::ValueArray, std::less<>> variables_;
};

}  // namespace orrery::shell::eval
