// Commands that act on the session rather than on values: exit, quit, clear, who,
// whos and run.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/exit_request.hpp"
#include "shell/eval/script_source.hpp"
#include "shell/eval/user_error.hpp"
#include "shell/lang/parser.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <span>
#include <string>

namespace orrery::shell::eval {
namespace {

constexpr std::array<std::string_view, 6> kSessionCommands = {"exit", "quit", "clear", "who", "whos", "run"};
constexpr double kMostStatus = 255;

[[noreturn]] void raise(const std::string& function, void (*raiser)()) {
    try {
        raiser();
    } catch (...) {
        rethrowAsUserError(function);
    }
    throw ExitRequest{};  // not reached: the raiser always throws
}

int exitStatus(const std::string& name, std::span<const value::ValueArray> args) {
    if (args.empty()) return 0;
    if (args.size() > 1) raise(name, except::throwTooManyInputs);
    const value::ValueArray& status = args[0];
    const bool number = status.isNumeric() && status.isScalar();
    const double n = number ? status.realAt(0) : -1;
    if (!(n >= 0 && n <= kMostStatus && std::floor(n) == n)) raise(name, except::throwInvalidInput);
    return static_cast<int>(n);
}

// The memory the elements take: their own size for numbers, logicals and
// text, and what the values inside take for cells and structs.
std::size_t valueBytes(const value::ValueArray& v) {
    using value::ClassId;
    switch (v.classId()) {
        case ClassId::Double:
        case ClassId::Int64:
        case ClassId::UInt64: return 8 * v.numel();
        case ClassId::Single:
        case ClassId::Int32:
        case ClassId::UInt32: return 4 * v.numel();
        case ClassId::Int16:
        case ClassId::UInt16:
        case ClassId::Char: return 2 * v.numel();
        case ClassId::Int8:
        case ClassId::UInt8:
        case ClassId::Logical: return v.numel();
        case ClassId::String: {
            std::size_t bytes = 0;
            for (std::size_t i = 0; i < v.numel(); ++i) bytes += 2 * v.stringAt(i).value_or(u"").size();
            return bytes;
        }
        case ClassId::Cell: {
            std::size_t bytes = 0;
            for (std::size_t i = 0; i < v.numel(); ++i) bytes += valueBytes(v.cellAt(i));
            return bytes;
        }
        case ClassId::Struct: {
            std::size_t bytes = 0;
            for (std::size_t i = 0; i < v.numel(); ++i)
                for (const auto& field : v.fieldNames())
                    if (const value::ValueArray* inner = v.field(i, field)) bytes += valueBytes(*inner);
            return bytes;
        }
        default: return 0;
    }
}

// whos: one row per variable with its size, bytes and class, in columns.
void listVariables(const Workspace& workspace) {
    std::vector<std::array<std::string, 4>> rows{{"Name", "Size", "Bytes", "Class"}};
    for (const auto& name : workspace.names()) {
        const value::ValueArray& v = *workspace.find(name);
        rows.push_back({name, v.dims().text(), std::to_string(valueBytes(v)), v.className()});
    }
    if (rows.size() == 1) return;
    std::array<std::size_t, 4> widths{};
    for (const auto& row : rows)
        for (std::size_t c = 0; c < row.size(); ++c) widths[c] = std::max(widths[c], row[c].size());
    std::string listing;
    for (const auto& row : rows) {
        listing += "  " + row[0] + std::string(widths[0] - row[0].size() + 2, ' ');
        listing += row[1] + std::string(widths[1] - row[1].size() + 2, ' ');
        listing += std::string(widths[2] - row[2].size(), ' ') + row[2] + "  " + row[3] + "\n";
    }
    console::consoleWrite(console::ConsoleStream::Output, listing);
}

// The script a name gives to run: as it is, or with ".orr" when it has no
// extension and that file exists.
std::string scriptFileOf(const std::string& name) {
    const std::filesystem::path path(name);
    std::error_code ignored;
    if (path.has_extension() || !std::filesystem::exists(name + ".orr", ignored)) return name;
    return name + ".orr";
}

}  // namespace

std::vector<std::string> Interpreter::namesInScope() const {
    std::vector<std::string> names = current_->names();
    for (const auto& [name, function] : functions_) names.push_back(name);
    names.insert(names.end(), kSessionCommands.begin(), kSessionCommands.end());
    return names;
}

bool Interpreter::isSessionCommand(std::string_view name) {
    return std::find(kSessionCommands.begin(), kSessionCommands.end(), name) != kSessionCommands.end();
}

Interpreter::Values Interpreter::callSessionCommand(const std::string& name, const Values& args, int nargout) {
    if (name == "exit" || name == "quit") throw ExitRequest{exitStatus(name, {args.data(), args.size()})};
    if (name == "clear") {
        if (nargout > 0) raise(name, except::throwTooManyOutputs);
        if (args.empty()) {
            for (const auto& variable : current_->names()) current_->erase(variable);
        }
        for (const auto& arg : args) {
            if (!arg.isTextScalarTolerant()) raise(name, except::throwInvalidInput);
            current_->erase(text::utf16ToUtf8(arg.text()));
        }
        return {};
    }
    if (name == "whos") {
        if (nargout > 0 || !args.empty())
            raise(name, nargout > 0 ? except::throwTooManyOutputs : except::throwTooManyInputs);
        listVariables(*current_);
        return {};
    }
    if (name == "run") {
        if (nargout > 0) raise(name, except::throwTooManyOutputs);
        if (args.size() != 1) raise(name, args.empty() ? except::throwNotEnoughInputs : except::throwTooManyInputs);
        if (!args[0].isTextScalar()) raise(name, except::throwInvalidInput);
        // The script runs in the workspace of whoever ran it, in a frame of its own.
        const std::string file = scriptFileOf(args[0].textUtf8());
        const lang::Program program = lang::parse(readScript(file), text::utf8ToUtf16(file));
        run(program, text::utf8ToUtf16(file), text::utf8ToUtf16(std::filesystem::path(file).stem().string()));
        return {};
    }
    const std::vector<std::string> names = current_->names();  // who
    if (nargout > 0) {
        value::ValueArray cell = value::ValueArray::cell(value::Dims{names.size(), 1});
        for (std::size_t i = 0; i < names.size(); ++i) cell.setCellAt(i, value::ValueArray::charsFromUtf8(names[i]));
        return {cell};
    }
    if (names.empty()) return {};
    std::string listing = "Variables:\n ";
    for (const auto& variable : names) listing += " " + variable;
    console::consoleWrite(console::ConsoleStream::Output, listing + "\n");
    return {};
}

}  // namespace orrery::shell::eval
