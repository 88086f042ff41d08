// The QException class of the class system.
#include "shell/eval/exception_object.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/namespace.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/prop_template.hpp>

namespace orrery::shell::eval {
namespace {

constexpr std::string_view kClassName = "QException";

class ExceptionInstance final : public ocos::COSObject {
public:
    // The instance keeps the error to raise it again on rethrow.
    explicit ExceptionInstance(except::QException error)
        : error_(std::move(error)) {}  // NOLINT(bugprone-throw-keyword-missing)
    std::shared_ptr<ocos::COSObject> clone() const override { return std::make_shared<ExceptionInstance>(*this); }
    const except::QException& error() const noexcept { return error_; }

private:
    except::QException error_;
};

/// rethrow(err): raises the error again with its own stack.
class RethrowMI final : public ocos::COSMethodInfo {
public:
    RethrowMI() : COSMethodInfo("rethrow", ocos::COSMethodSignature({kClassName}, {})) {}

    void invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* /*plhs*/, std::int32_t /*nrhs*/,
                const value::ValueArray* const* prhs) const override {
        const auto instance = ocos::validInstanceAt(*prhs[0], 0);
        throw ocos::instanceAs<ExceptionInstance>(*instance).error();
    }
};

std::shared_ptr<const ocos::COSClassInfo> describeClass() {
    auto info = std::make_shared<ocos::COSClassInfo>(std::string(kClassName));
    info->addProperty(ocos::makeReadOnlyProperty<ExceptionInstance>(
        "identifier", "asciiString", [](const ExceptionInstance& e) { return e.error().identifier(); }));
    info->addProperty(ocos::makeReadOnlyProperty<ExceptionInstance>(
        "message", "unicodeString", [](const ExceptionInstance& e) { return e.error().message(); }));
    info->addProperty(ocos::makeReadOnlyProperty<ExceptionInstance>(
        "stack", "struct", [](const ExceptionInstance& e) { return e.error().stack(); }));
    info->addMethod(std::make_shared<RethrowMI>());
    info->setInstanceFactory([] {
        return std::make_shared<ExceptionInstance>(
            except::QException("", u"", value::ValueArray::stackStructure(0), ""));
    });
    return info;
}

std::shared_ptr<const ocos::COSClassInfo> exceptionClass() {
    static const std::shared_ptr<const ocos::COSClassInfo> info = [] {
        auto described = describeClass();
        ocos::rootNamespace().registerClass(kClassName, described);
        return described;
    }();
    return info;
}

}  // namespace

void registerExceptionClass() { exceptionClass(); }

value::ValueArray makeExceptionObject(const except::QException& error) {
    value::ValueArray object = value::ValueArray::objectArray(exceptionClass(), value::Dims{1, 1});
    object.setObjectAt(0, std::make_shared<ExceptionInstance>(error));
    return object;
}

}  // namespace orrery::shell::eval
