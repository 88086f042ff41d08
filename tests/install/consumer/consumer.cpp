// A host built against an installed package: it opens the installed module,
// initialises it as the orrery command does, binds the warning built-in, listens
// to the issued-warning signal and issues one warning. Exit status 0 when the
// signal delivered exactly that warning and the catalogue was found.
#include <diagnostic/module/entry_points.hpp>
#include <diagnostic/warnings/issued_warning_connection.hpp>
#include <diagnostic/warnings/warning_builtins.hpp>

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/lang/warning.hpp>
#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <boost/signals2/connection.hpp>

#include <dlfcn.h>

#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using orrery::lang::diagnostic::Warning;

struct ModuleCloser {
    void operator()(void* handle) const { dlclose(handle); }
};
using ModuleHandle = std::unique_ptr<void, ModuleCloser>;

// The exported connection point's linker name.
constexpr const char* kConnectSymbol =
    "_ZN8builtins28connectIssuedWarningCallbackERKN5boost8signals24slotIFvRKN6orrery4lang10diagnostic7WarningEENS0_"
    "8functionIS9_EEEE";

template <class Function>
Function* entry(void* module, const char* name) {
    void* symbol = dlsym(module, name);
    if (symbol == nullptr) throw std::runtime_error(std::string("the module lacks ") + name);
    return reinterpret_cast<Function*>(symbol);
}

// Issues warning('ORRERY:consumer:installed', 'value %d', 5) and answers what
// the issued-warning signal delivered meanwhile.
std::vector<Warning> issueAndListen(void* module) {
    const auto connect = entry<decltype(builtins::connectIssuedWarningCallback)>(module, kConnectSymbol);
    orrery::interp::registerFunction("warning", entry<decltype(bnFullWarningFcn)>(module, "bnFullWarningFcn"));
    std::vector<Warning> seen;
    const boost::signals2::scoped_connection listening =
        connect([&seen](const Warning& issued) { seen.push_back(issued); });
    const auto identifier = orrery::value::ValueArray::charsFromUtf8("ORRERY:consumer:installed");
    const auto format = orrery::value::ValueArray::charsFromUtf8("value %d");
    const auto number = orrery::value::ValueArray::scalar(5);
    const orrery::value::ValueArray* inputs[] = {&identifier, &format, &number};
    orrery::value::ValueArrayPtr outputs[1];
    orrery::interp::callFunction("warning", 0, outputs, 3, inputs);
    return seen;
}

int run() {
    ModuleHandle module(dlopen(ORRERY_MODULE, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
    if (!module) throw std::runtime_error(std::string("cannot open the module: ") + dlerror());
    const auto terminate = entry<decltype(LxTerminate_diagnostic)>(module.get(), "LxTerminate_diagnostic");
    entry<decltype(LxInitialize_diagnostic)>(module.get(), "LxInitialize_diagnostic")();
    std::vector<Warning> seen;
    try {
        seen = issueAndListen(module.get());
    } catch (...) {
        terminate();
        throw;
    }
    terminate();

    const orrery::catalogue::MessageArgument name = std::u16string(u"frobnicate");
    const std::string text = orrery::catalogue::formatMessageUtf8("ORRERY:undefinedFunction", {&name, 1});
    std::cout << "catalogue: " << text << "\n";
    if (seen.size() != 1) {
        std::cout << "the issued-warning signal delivered " << seen.size() << " warnings, not 1\n";
        return 1;
    }
    const std::string message = orrery::text::utf16ToUtf8(seen.front().getMessage());
    std::cout << "signalled: " << seen.front().getIdentifier() << ": " << message << "\n";
    return seen.front().getIdentifier() == "ORRERY:consumer:installed" && message == "value 5" ? 0 : 1;
}

}  // namespace

int main() {
    const orrery::interp::VirtualMachineScope machine;
    try {
        return run();
    } catch (const std::exception& failure) {
        std::cout << "failed: " << failure.what() << "\n";
        return 1;
    }
}
