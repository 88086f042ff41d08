// The reference texts of the diagnostic functions, one entry per language name,
// kept beside the table that binds the module's built-ins, and the help
// built-in that shows them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::shell::startup {

/// One function's reference. forms holds one call form per line, the call and
/// what it does separated by a tab; outputs and example may span lines. group
/// names the heading help lists it under; seeAlso and aliases are names separated
/// by ", " (aliases: other names the same entry describes).
struct HelpEntry {
    std::string_view name;
    std::string_view summary;
    std::string_view forms;
    std::string_view outputs;
    std::string_view example;
    std::string_view group;
    std::string_view seeAlso;
    std::string_view aliases;
};

/// The names of a list of names separated by ", ".
std::vector<std::string_view> namesIn(std::string_view list);

/// Every entry, in the order help lists them (help_entries.cpp).
std::span<const HelpEntry> helpEntries();

/// The entry of a language name or alias (exact spelling), or null.
const HelpEntry* findHelp(std::string_view name);

/// What help alone prints: under each group's heading, each name with its
/// one-line summary.
std::string helpListing();

/// What help NAME prints: summary, forms, outputs, example and a "See also"
/// line; for a name without an entry, the line "No help for NAME.".
std::string helpText(std::string_view name);

/// Registers the help built-in in the function table: help lists the
/// functions, help(NAME) describes one; with one output the text is returned
/// as a char row instead of printed.
void registerHelp();

}  // namespace orrery::shell::startup
