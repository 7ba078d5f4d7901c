#include "TestComponents.h"

namespace velkor::objectmodeler::test {

VELKOR_IMPLEMENT_CLASS(TestPlain, QORBaseUnknown, nullptr, "Tests")
VELKOR_IMPLEMENT_INTERFACE(QORITestGreeting, QORBaseUnknown, GreetingId, "Tests")
VELKOR_IMPLEMENT_CLASS(QORETestGreeting, QORITestGreeting, "QORnull", "Tests")
VELKOR_IMPLEMENT_BOA(, QORITestGreeting, QORETestGreeting)
VELKOR_IMPLEMENT_INTERFACE(QORITestCounting, QORBaseUnknown, CountingId, "Tests")
VELKOR_IMPLEMENT_CLASS(TestCounter, QORBaseUnknown, "QORNull", "Tests")

VELKOR_TIE_BEGIN(QORITestCounting, TestCounter)
int add(int count) override {
    return implementation()->add(count);
}
Alive alive;
VELKOR_TIE_END(, QORITestCounting, TestCounter)

namespace {

template <class Implementation, class Interface, QORExtensionFactory factory>
void* registerExtension() {
    ++registrationCalls;
    QORFillDictionary::Register(Implementation::MetaObject(), Interface::MetaObject(), factory, nullptr, 1);
    return nullptr;
}
void* registerCreation() {
    ++registrationCalls;
    QORFillDictionary::RegisterFunctionCreation("TestGreeting", createInstance<QORETestGreeting>);
    return nullptr;
}
void* registerInterface() {
    ++registrationCalls;
    QORFillDictionary::Register(GreetingId, QORITestGreeting::MetaObject());
    return nullptr;
}

} // namespace

std::span<const QOROMRegistration> testTable() {
    static constexpr QOROMRegistration table[] = {
        nullptr,
        registerExtension<QORETestGreeting, QORITestGreeting, CreateBOAQORITestGreetingQORETestGreeting>,
        registerCreation,
        nullptr,
        registerInterface,
        registerExtension<TestCounter, QORITestCounting, CreateTIEQORITestCountingTestCounter>,
        nullptr};
    return table;
}

} // namespace velkor::objectmodeler::test
