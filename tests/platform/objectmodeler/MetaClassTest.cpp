#include "objectmodeler/CallRecorder.h"
#include "TestComponents.h"

#include <array>
#include <barrier>
#include <gmock/gmock.h>
#include <thread>
#include <tuple>

namespace velkor::objectmodeler::test {

using testing::Each;
using testing::FieldsAre;
using testing::Truly;

class OnDemand : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
};
VELKOR_IMPLEMENT_CLASS(OnDemand, QORBaseUnknown, nullptr, "Tests")

namespace {

constexpr int ClassCount = 96;
constexpr int ThreadCount = 6;

/// Those of odd number are children of the one before, so that making one makes another.
template <int number>
QORMetaClass* racedClass() {
    static constinit std::atomic<QORMetaClass*> slot = nullptr;
    return metaClassOnDemand(slot, [] {
        // Lets the others come as far as the lock.
        for (int i = 0; i < 4; ++i) std::this_thread::yield();
        QORMetaClass* parent = nullptr;
        if constexpr (number % 2 == 1) parent = racedClass<number - 1>();
        if constexpr (number % 2 == 0) parent = QORBaseUnknown::MetaObject();
        const std::string name = "Raced" + std::to_string(number);
        return vrn::internal::fct_RetrieveMetaObject(name.c_str(), TypeOfImplementation, parent, "QORNull", "Tests", 1);
    });
}

using AskForMetaClass = QORMetaClass* (*)();
template <int... numbers>
constexpr std::array<AskForMetaClass, ClassCount> racedClasses(std::integer_sequence<int, numbers...>) {
    return {racedClass<numbers>...};
}

} // namespace

TEST(MetaClass, DescribesItsClass) {
    QORMetaClass* base = QORBaseUnknown::MetaObject();
    QORMetaClass* greeting = QORITestGreeting::MetaObject();
    const auto described = [](const QORMetaClass* made) {
        EXPECT_EQ(metaClass(made->GetClassName()), made);
        return std::tuple(made->GetTypeOfClass(), made->GetParent(), std::string(made->GetExtendedClassName()),
                          made->extendsEveryObject(), made->GetInstanceSize());
    };
    const auto is = [](auto... expected) { return FieldsAre(TypeOfImplementation, expected...); };
    EXPECT_THAT(described(base), is(nullptr, "", false, sizeof(QORBaseUnknown)));
    EXPECT_THAT(described(greeting), FieldsAre(TypeOfInterface, base, "", false, 0));
    EXPECT_THAT(described(QORETestGreeting::MetaObject()), is(greeting, "QORnull", true, sizeof(QORETestGreeting)));
    EXPECT_THAT(described(TestCounter::MetaObject()), is(base, "QORNull", true, sizeof(TestCounter)));
    EXPECT_THAT(described(TestPlain::MetaObject()), is(base, "", false, sizeof(TestPlain)));
    EXPECT_THAT(greeting->GetFrameworkName(), testing::StrEq("Tests"));
    EXPECT_EQ(metaClass("NeverMade"), nullptr);
}

TEST(MetaClass, IsKnownByTheIdentifierOfItsInterface) {
    EXPECT_EQ(QORITestGreeting::ClassId(), GreetingId);
    EXPECT_EQ(metaClass(GreetingId), QORITestGreeting::MetaObject());
    EXPECT_EQ(metaClass(QORETestGreeting::ClassId()), nullptr) << "not an interface";
    EXPECT_NE(QORETestGreeting::ClassId(), TestCounter::ClassId()) << "made from the name";
    EXPECT_EQ(text({0x0C7255B3, 0x0C9B, 0x0988, {0x81, 0x36, 0x05, 0x37, 0xA2, 0x7D, 0x1F, 0xC7}}),
              "{0C7255B3-0C9B-0988-8136-0537A27D1FC7}");
}

TEST(MetaClass, KnowsTheAncestorsOfItsClass) {
    const QORETestGreeting object;
    EXPECT_EQ(object.IsA(), QORETestGreeting::ClassName());
    const auto isAKindOf = [&](const char* name) { return object.IsAKindOf(name) == 1; };
    EXPECT_THAT((std::array{"QORETestGreeting", "QORITestGreeting", "QORBaseUnknown"}), Each(Truly(isAKindOf)));
    EXPECT_THAT((std::array{"QORITestCounting", "qoretestgreeting", "QORETestGreetings", "", "QORnull",
                            static_cast<const char*>(nullptr)}),
                Each(testing::Not(Truly(isAKindOf))));
    EXPECT_TRUE(object.GetMetaObject()->isKindOf(GreetingId));
    EXPECT_FALSE(QORITestGreeting::MetaObject()->isKindOf(QORETestGreeting::ClassId()));
}

TEST(MetaClass, IsMadeOnFirstDemandAndOnce) {
    QORBaseUnknown::MetaObject();
    ASSERT_EQ(metaClass("OnDemand"), nullptr);
    startRecording();
    const QORMetaClass* first = OnDemand::MetaObject();
    EXPECT_EQ(OnDemand::MetaObject(), first);
    EXPECT_THAT(recordedCalls(), testing::ElementsAre("metaclass made: OnDemand"));
    stopRecording();
}

TEST(MetaClass, ThreadsThatAskFirstAtOnceGetOne) {
    constexpr auto ask = racedClasses(std::make_integer_sequence<int, ClassCount>());
    std::array<std::array<QORMetaClass*, ClassCount + 1>, ThreadCount> got = {};
    std::barrier together(ThreadCount);
    std::vector<std::thread> threads;
    startRecording();
    for (std::size_t thread = 0; thread < ThreadCount; ++thread) {
        threads.emplace_back([&, thread] {
            auto& mine = got[thread];
            together.arrive_and_wait();
            // Some ask for the common parent while others make its children.
            if (thread % 2 == 0) mine.back() = QORBaseUnknown::MetaObject();
            for (std::size_t pair = 0; pair < ClassCount; pair += 2) {
                const std::size_t first = pair + thread % 2;
                const std::size_t second = pair + 1 - thread % 2;
                mine[first] = ask[first]();
                mine[second] = ask[second]();
                together.arrive_and_wait();
            }
            mine.back() = QORBaseUnknown::MetaObject();
        });
    }
    for (std::thread& thread : threads) thread.join();
    stopRecording();

    EXPECT_THAT(got, Each(got[0]));
    std::vector<std::string> made;
    for (std::size_t i = 0; i < ClassCount; ++i) {
        EXPECT_EQ(got[0][i]->GetParent(), i % 2 == 1 ? got[0][i - 1] : got[0].back());
        made.push_back("metaclass made: Raced" + std::to_string(i));
    }
    std::vector<std::string> calls = recordedCalls();
    // Another test may have made it.
    std::erase(calls, "metaclass made: QORBaseUnknown");
    EXPECT_THAT(calls, testing::UnorderedElementsAreArray(made));
}

} // namespace velkor::objectmodeler::test
