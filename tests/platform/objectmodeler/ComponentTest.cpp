#include "Matchers.h"
#include "TestComponents.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/objectmodeler/ClassDictionary.h"

namespace velkor::objectmodeler::test {

using Greeting = QORInterface_var<QORITestGreeting>;
using Counting = QORInterface_var<QORITestCounting>;

namespace {

class Component : public testing::Test {
protected:
    void SetUp() override {
        registrationCalls = 0;
        clearAssertionReports();
        ASSERT_THAT(registeredClasses(), IsEmpty());
    }
    void TearDown() override { EXPECT_EQ(Alive::count, 0) << "every object is gone"; }
};

template <class Class>
QORBaseUnknown_var make() {
    return QORBaseUnknown_var::adopt(new Class);
}

/// What a factory made, with the reference that it gave.
QORBaseUnknown_var adopted(IUnknown* made) {
    return QORBaseUnknown_var::adopt(static_cast<QORBaseUnknown*>(made));
}

/// What an object answers for the name of a class; empty when it lacks it.
QORBaseUnknown_var queried(const QORBaseUnknown_var& object, const char* name) {
    void* interface = nullptr;
    const HRESULT result = object->QueryInterface(name, &interface);
    EXPECT_EQ(result, interface != nullptr ? S_OK : E_NOINTERFACE);
    return QORBaseUnknown_var::adopt(static_cast<QORBaseUnknown*>(interface));
}

void* registerAfterAQuestion() {
    createComponent("AnyName");
    QORFillDictionary::RegisterFunctionCreation("Late", createNothing);
    return nullptr;
}
void* registerOther() {
    QORFillDictionary::RegisterFunctionCreation("Other", createNothing);
    return nullptr;
}

} // namespace

TEST_F(Component, TablesAreReadWhenTheDictionaryIsFirstAsked) {
    for (const int callsBefore : {0, 4}) {
        {
            const QOROMModule module(library());
            EXPECT_EQ(registrationCalls, callsBefore);
            EXPECT_THAT(registeredClasses(),
                        ElementsAre(FieldsAre("QORETestGreeting", "QORITestGreeting", ""),
                                    FieldsAre("", "", "TestGreeting"), FieldsAre("", "QORITestGreeting", ""),
                                    FieldsAre("TestCounter", "QORITestCounting", "")));
            const Greeting made = createComponent("TestGreeting");
            EXPECT_EQ(made->greet(3), 6);
            EXPECT_EQ(made->GetImpl(), made.get()) << "it extends nothing";
            EXPECT_TRUE(createComponent("QORETestGreeting").IsNull());
            EXPECT_THAT(interfaceIdOf("QORITestCounting"), testing::Pointee(CountingId));
            EXPECT_EQ(interfaceIdOf("TestCounter"), nullptr);
            EXPECT_EQ(registrationCalls, callsBefore + 4) << "each once";
        }
        EXPECT_THAT(registeredClasses(), IsEmpty());
        EXPECT_TRUE(createComponent("TestGreeting").IsNull());
        EXPECT_EQ(interfaceIdOf("QORITestCounting"), nullptr);
        EXPECT_TRUE(Greeting(make<TestPlain>()).IsNull());
    }
    { const QOROMModule unasked(library()); }
    EXPECT_THAT(registeredClasses(), IsEmpty());
    EXPECT_EQ(registrationCalls, 8);
}

TEST_F(Component, RegistrationsGoWithTheirModuleAlone) {
    // The question of the first table has the second one read in between.
    constexpr QOROMRegistration asking[] = {nullptr, registerAfterAQuestion, nullptr};
    constexpr QOROMRegistration other[] = {nullptr, registerOther, nullptr};
    auto first = std::make_unique<QOROMModule>(library(asking));
    const QOROMModule second(library(other));
    EXPECT_THAT(registeredClasses(), ElementsAre(FieldsAre("", "", "Other"), FieldsAre("", "", "Late")));
    first.reset();
    EXPECT_THAT(registeredClasses(), ElementsAre(FieldsAre("", "", "Other")));
}

TEST_F(Component, ExtendsAnObjectThatIsAskedForItsInterface) {
    const QOROMModule module(library());
    auto object = make<TestPlain>();
    const QORBaseUnknown* plain = object.get();
    const Greeting greeting = object;
    ASSERT_FALSE(greeting.IsNull());
    EXPECT_EQ(greeting->greet(5), 10);
    EXPECT_EQ(greeting->GetImpl(), plain);
    EXPECT_EQ(greeting, object) << "both stand for the same object";
    const auto another = queried(object, "QORITestGreeting");
    EXPECT_NE(another.get(), greeting.get()) << "an extension of its own";
    EXPECT_EQ(another, greeting);

    object = {};
    EXPECT_EQ(Alive::count, 3) << "an extension holds its object";
    EXPECT_EQ(QORInterface_var<TestPlain>(greeting).get(), plain);
    EXPECT_EQ(queried(greeting, "TestPlain").get(), plain);
}

TEST_F(Component, FactoryOfAnExtensionTakesTheImplementationItIsGiven) {
    constexpr auto create = CreateBOAQORITestGreetingQORETestGreeting;
    const auto plain = make<TestPlain>();
    const auto implementation = make<QORETestGreeting>();
    EXPECT_EQ(create(plain.get(), nullptr), nullptr) << "it makes none itself";
    EXPECT_EQ(assertionCount(), 0U);
    EXPECT_EQ(create(plain.get(), plain.get()), nullptr) << "not of its class";
    EXPECT_EQ(assertionCount(), 1U);

    const auto own = adopted(create(implementation.get(), implementation.get()));
    EXPECT_EQ(own.get(), implementation.get());
    EXPECT_EQ(own->GetImpl(), own.get()) << "does not hold itself";
    const auto extension = adopted(create(plain.get(), implementation.get()));
    EXPECT_EQ(extension->GetImpl(), plain.get());
}

TEST_F(Component, TieForwardsToTheObjectBehindIt) {
    const QOROMModule module(library());
    auto object = make<TestCounter>();
    auto* counter = static_cast<TestCounter*>(object.get());
    Counting tie = object;
    ASSERT_FALSE(tie.IsNull());
    EXPECT_EQ(Alive::count, 2);
    EXPECT_EQ(tie->add(2), 2);
    EXPECT_EQ(counter->add(3), 5);
    EXPECT_EQ(tie->GetImpl(), counter);
    EXPECT_EQ(tie, object);

    object = {};
    EXPECT_EQ(Alive::count, 2) << "a TIE holds the object behind it";
    EXPECT_EQ(Counting(tie).get(), tie.get()) << "its own interface is itself";
    EXPECT_EQ(QORInterface_var<TestCounter>(tie).get(), counter);
    EXPECT_EQ(QORInterface_var<QORBaseUnknown>(tie).get(), counter);
    EXPECT_EQ(Greeting(tie)->GetImpl(), counter) << "an extension of the object behind";
    EXPECT_EQ(queried(tie, "QORITestCounting").get(), tie.get());
    EXPECT_EQ(queried(tie, "TestCounter").get(), counter);
    EXPECT_EQ(queried(tie, "QORBaseUnknown").get(), counter);
    EXPECT_TRUE(queried(tie, "TestPlain").IsNull());
    EXPECT_EQ(tie->QueryInterface(CountingId, nullptr), E_INVALIDARG);
    EXPECT_EQ(tie->AddRef(), 2U);
    EXPECT_EQ(tie->Release(), 1U);
}

TEST_F(Component, FactoryOfATieTakesAnObjectThatHasItsOperations) {
    constexpr auto create = CreateTIEQORITestCountingTestCounter;
    const auto counter = make<TestCounter>();
    const auto tie = adopted(create(counter.get(), nullptr));
    const QORMetaClass& metaClass = *tie->GetMetaObject();
    EXPECT_EQ(static_cast<int>(metaClass.GetTypeOfClass()), 6);
    EXPECT_EQ(metaClass.GetParent(), QORITestCounting::MetaObject());
    EXPECT_EQ(metaClass.GetImplementation(), TestCounter::MetaObject());
    EXPECT_EQ(metaClass.IsAKindOf("TestCounter"), 0);
    const auto another = adopted(create(nullptr, counter.get()));
    ASSERT_FALSE(another.IsNull()) << "the second object stands in";
    EXPECT_EQ(another->GetMetaObject(), &metaClass);
    EXPECT_NE(another.get(), tie.get());
    EXPECT_EQ(another, tie);

    const QOROMModule module(library());
    const auto plain = make<TestPlain>();
    EXPECT_EQ(create(plain.get(), nullptr), nullptr);
    EXPECT_EQ(create(nullptr, nullptr), nullptr);
    EXPECT_EQ(assertionCount(), 2U);
    EXPECT_TRUE(Counting(plain).IsNull());
    EXPECT_EQ(assertionCount(), 2U) << "asking is no fault";
}

} // namespace velkor::objectmodeler::test
