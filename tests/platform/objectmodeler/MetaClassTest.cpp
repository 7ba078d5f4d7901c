#include "Matchers.h"
#include "TestComponents.h"
#include "velkor/objectmodeler/CallRecorder.h"

#include <array>
#include <barrier>
#include <thread>
#include <tuple>

namespace velkor::objectmodeler::test {

using testing::Truly;

class OnDemand : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
};
VELKOR_IMPLEMENT_CLASS(OnDemand, QORBaseUnknown, nullptr, "Tests")

namespace {

constexpr std::size_t ClassCount = 96;
std::array<std::atomic<QORMetaClass*>, ClassCount> raced;

/// Those of odd number are children of the one before, so that making one makes another.
QORMetaClass* racedClass(std::size_t number) {
    return metaClassOnDemand(raced[number], [number] {
        // Lets the others come as far as the lock.
        for (int i = 0; i < 4; ++i) std::this_thread::yield();
        QORMetaClass* parent = number % 2 == 1 ? racedClass(number - 1) : QORBaseUnknown::MetaObject();
        const std::string name = "Raced" + std::to_string(number);
        return vrn::internal::fct_RetrieveMetaObject(name.c_str(), TypeOfImplementation, parent, "QORNull", "Tests", 1);
    });
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

    EXPECT_EQ(QORITestGreeting::ClassId(), GreetingId);
    EXPECT_EQ(metaClass(GreetingId), greeting);
    EXPECT_EQ(metaClass(QORETestGreeting::ClassId()), nullptr) << "not an interface";
    EXPECT_NE(QORETestGreeting::ClassId(), TestCounter::ClassId()) << "made from the name";
    EXPECT_EQ(text({0x0C7255B3, 0x0C9B, 0x0988, {0x81, 0x36, 0x05, 0x37, 0xA2, 0x7D, 0x1F, 0xC7}}),
              "{0C7255B3-0C9B-0988-8136-0537A27D1FC7}");
}

TEST(MetaClass, KnowsTheAncestorsOfItsClass) {
    const QORETestGreeting object;
    EXPECT_STREQ(object.IsA(), "QORETestGreeting");
    const auto isAKindOf = [&](const char* name) { return object.IsAKindOf(name) == 1; };
    EXPECT_THAT((std::array{"QORETestGreeting", "QORITestGreeting", "QORBaseUnknown"}), Each(Truly(isAKindOf)));
    EXPECT_THAT((std::array{"QORITestCounting", "qoretestgreeting", "QORETestGreetings", "", "QORnull",
                            static_cast<const char*>(nullptr)}),
                Each(testing::Not(Truly(isAKindOf))));
    EXPECT_TRUE(object.GetMetaObject()->isKindOf(GreetingId));
    EXPECT_FALSE(QORITestGreeting::MetaObject()->isKindOf(QORETestGreeting::ClassId()));
}

TEST(MetaClass, IsMadeOnFirstDemandAndOnceHoweverManyThreadsAsk) {
    QORBaseUnknown::MetaObject();
    ASSERT_EQ(metaClass("OnDemand"), nullptr);
    std::array<std::array<QORMetaClass*, ClassCount>, 6> got = {};
    std::barrier together(got.size());
    std::vector<std::thread> threads;
    startRecording();
    for (std::size_t thread = 0; thread < got.size(); ++thread) {
        threads.emplace_back([&, thread] {
            for (std::size_t pair = 0; pair < ClassCount; pair += 2) {
                together.arrive_and_wait();
                // Some ask for the parent while others make its child.
                for (const std::size_t number : {pair + thread % 2, pair + 1 - thread % 2}) {
                    got[thread][number] = racedClass(number);
                }
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(OnDemand::MetaObject(), OnDemand::MetaObject());
    stopRecording();

    EXPECT_THAT(got, Each(got[0]));
    std::vector<std::string> made{"metaclass made: OnDemand"};
    for (std::size_t i = 0; i < ClassCount; ++i) {
        EXPECT_EQ(got[0][i]->GetParent(), i % 2 == 1 ? got[0][i - 1] : QORBaseUnknown::MetaObject());
        made.push_back("metaclass made: Raced" + std::to_string(i));
    }
    EXPECT_THAT(recordedCalls(), testing::UnorderedElementsAreArray(made));
}

} // namespace velkor::objectmodeler::test
