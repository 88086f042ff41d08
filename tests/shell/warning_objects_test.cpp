// Warning objects in the language, before any log is loaded: records made here
// are turned into a Warning array by the loaded module's exported conversion,
// then shown, indexed, concatenated, compared, sorted and written to.
#include "shell/builtins/host_builtins.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/lang/parser.hpp"
#include "shell/startup/module_loader.hpp"
#include "tests/support/builtin_call.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/interp/dates.hpp>
#include <orrery/lang/warning.hpp>

#include <dlfcn.h>

#include <vector>

using namespace orrery;
using lang::diagnostic::Warning;

namespace {

Warning record(const char* identifier, const char16_t* message, double minute, bool disabled = false) {
    Warning w;
    w.setIdentifier(identifier);
    w.setMessage(message);
    w.setFormat(message);
    w.setTime(interp::datenumFromDatevec(2026, 3, 4, 10, minute, 30));
    w.setWasDisabled(disabled);
    return w;
}

class WarningObjectsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        shell::registerHostBuiltins();
        module_ =
            std::make_unique<shell::startup::DiagnosticModule>(std::string(ORRERY_OUTPUT_DIR) + "/libdiagnostic.so");
    }
    static void TearDownTestSuite() { module_.reset(); }

    void SetUp() override {
        using Convert = value::ValueArrayPtr (*)(const std::vector<Warning>&);
        void* self = dlopen((std::string(ORRERY_OUTPUT_DIR) + "/libdiagnostic.so").c_str(), RTLD_NOW | RTLD_NOLOAD);
        ASSERT_NE(self, nullptr);
        const auto convert = reinterpret_cast<Convert>(
            dlsym(self, "_ZN6orrery4lang10diagnostic27convertWarningsToValueArrayERKSt6vectorINS1_7WarningESaIS3_EE"));
        dlclose(self);
        ASSERT_NE(convert, nullptr);
        const std::vector<Warning> records{record("demo:late", u"late\nand long", 9),
                                           record("demo:early", u"early", 1, true), record("", u"plain", 5)};
        interpreter_.baseWorkspace().set("w", *convert(records));
    }
    std::string run(std::string_view source) {
        console_.clear();
        interpreter_.run(shell::lang::parse(source, u"script.orr"), u"script.orr", u"script");
        return console_.output();
    }

    static inline std::unique_ptr<shell::startup::DiagnosticModule> module_;
    console::ConsoleCapture console_;
    shell::eval::Interpreter interpreter_;
};

}  // namespace

TEST_F(WarningObjectsTest, BehaveAsValuesOfTheLanguage) {
    static const std::pair<const char*, const char*> cases[] = {
        {"w",
         "w =\n  1x3 Warning array:\n\n"
         "    #  identifier  message        time\n"
         "    1  demo:late   late and long  2026-03-04 10:09:30\n"
         "    2  demo:early  early          2026-03-04 10:01:30  (off)\n"
         "    3              plain          2026-03-04 10:05:30\n"},
        {"x = [w(3), w(1); w(1:2)]; size(x), x(2, 2).identifier", "ans =\n    2   2\nans = 'demo:early'\n"},
        {"w == w(2)", "ans =\n  1x3 logical array\n    0   1   0\n"},
        {"w(2) ~= w", "ans =\n  1x3 logical array\n    1   0   1\n"},
        {"[isequal(w, w), isequal(w, w(1:2)), isequal(w, [w(1), w(1), w(3)])]",
         "ans =\n  1x3 logical array\n    1   0   0\n"},
        {"[s, i] = sort(w); disp(i), s.identifier",
         "    2   3   1\nans = 'demo:early'\nans = 0x0 empty char\nans = 'demo:late'\n"},
        {"[~, i] = sort([w; w(3), w(1:2)]); disp(i)", "    2   1   2\n    1   2   1\n"},
        {"v = w; v(2).message = \"x\"; v(2).message, w(2).message", "ans = 'x'\nans = 'early'\n"},
        {"w(1:0)", "ans =\n  1x0 Warning array with no warnings.\n"},
    };
    for (const auto& [source, output] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(run(source), output);
    }
}

TEST_F(WarningObjectsTest, RefusesWhatTheClassDoesNotDeclare) {
    static const std::pair<const char*, const char*> cases[] = {
        {"w(1).time = 'soon';", "ORRERY:ocos:propertyType"},
        {"w(1).wasDisabled = 1;", "ORRERY:ocos:propertyType"},
        {"w == 5", "ORRERY:ocos:argumentType"},
        {"[w, w] == [w; w]", "ORRERY:warning:compare:dimagree"},
        {"x = w; x(5) = w(1); sort(x)", "ORRERY:warning:Invalid"},
    };
    for (const auto& [source, identifier] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(orrery::testing::userErrorOf([&, text = source] { run(text); }).identifier(), identifier);
    }
}
