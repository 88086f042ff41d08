// A host of the diagnostic module, built against the installed package: it makes
// the virtual machine, opens the module and initialises it, binds the warning
// built-in by its exported name, listens to the issued-warning signal, opens a
// warning log, issues one warning and closes the log. Exit status 0 when the
// signal delivered exactly that warning, the log holds it and the catalogue was
// found. docs/EMBEDDING.md walks through it.
//
// Build (the module's path comes from the package):
//   g++ host.cpp $(pkg-config --cflags --libs orrery-platform) \
//       -DORRERY_MODULE="\"$(pkg-config --variable=module orrery-platform)\"" -o host
// Run: ./host [LOG.xml]   (default: host_warnings.xml in the current folder)
#include <diagnostic/module/entry_points.hpp>
#include <diagnostic/warnings/issued_warning_connection.hpp>
#include <diagnostic/warnings/warning_builtins.hpp>

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/lang/warning.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <boost/signals2/connection.hpp>

#include <dlfcn.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using orrery::lang::diagnostic::Warning;
using orrery::value::ValueArray;

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

// orrery.internal.diagnostic.log.open or close of the log file.
void logFunction(const char* function, const std::string& log) {
    const ValueArray name = ValueArray::charsFromUtf8(log);
    const ValueArray* inputs[] = {&name};
    orrery::value::ValueArrayPtr outputs[1];
    orrery::ocos::callNamespaceFunction(std::string("orrery.internal.diagnostic.log.") + function, 0, outputs, 1,
                                        inputs);
}

// With the log open, issues warning('ORRERY:host:installed', 'value %d', 5) and
// answers what the issued-warning signal delivered meanwhile.
std::vector<Warning> issueAndListen(void* module, const std::string& log) {
    const auto connect = entry<decltype(builtins::connectIssuedWarningCallback)>(module, kConnectSymbol);
    orrery::interp::registerFunction("warning", entry<decltype(bnFullWarningFcn)>(module, "bnFullWarningFcn"));
    std::vector<Warning> seen;
    const boost::signals2::scoped_connection listening =
        connect([&seen](const Warning& issued) { seen.push_back(issued); });
    logFunction("open", log);
    const auto identifier = ValueArray::charsFromUtf8("ORRERY:host:installed");
    const auto format = ValueArray::charsFromUtf8("value %d");
    const auto number = ValueArray::scalar(5);
    const ValueArray* inputs[] = {&identifier, &format, &number};
    orrery::value::ValueArrayPtr outputs[1];
    orrery::interp::callFunction("warning", 0, outputs, 3, inputs);
    logFunction("close", log);
    return seen;
}

int run(const std::string& log) {
    ModuleHandle module(dlopen(ORRERY_MODULE, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
    if (!module) throw std::runtime_error(std::string("cannot open the module: ") + dlerror());
    const auto terminate = entry<decltype(LxTerminate_diagnostic)>(module.get(), "LxTerminate_diagnostic");
    entry<decltype(LxInitialize_diagnostic)>(module.get(), "LxInitialize_diagnostic")();
    std::vector<Warning> seen;
    try {
        seen = issueAndListen(module.get(), log);
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
    std::ifstream file(log);
    const std::string logged{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const bool inLog = logged.find("<message>value 5</message>") != std::string::npos;
    std::cout << "logged: " << (inLog ? "yes" : "no") << " (" << log << ")\n";
    return seen.front().getIdentifier() == "ORRERY:host:installed" && message == "value 5" && inLog ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    // Every call into the platform and the module needs the machine to exist.
    const orrery::interp::VirtualMachineScope machine;
    try {
        return run(argc > 1 ? argv[1] : "host_warnings.xml");
    } catch (const std::exception& failure) {
        std::cout << "failed: " << failure.what() << "\n";
        return 1;
    }
}
