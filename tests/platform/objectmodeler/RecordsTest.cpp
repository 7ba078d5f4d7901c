#include "Matchers.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/objectmodeler/CallRecorder.h"
#include "velkor/objectmodeler/ExitCallback.h"

#include <utility>

namespace velkor::objectmodeler::test {

namespace exit_callback = vrn::internal::v1::exit_callback;

namespace {

std::vector<std::string> ran;
int registrars = 0;
exit_callback::list callbacks;

template <char name>
int note(int order) {
    ran.push_back(name + std::to_string(order));
    return order;
}
void countRegistrar() {
    ++registrars;
}
int registerAnother(int order) {
    exit_callback::do_register(note<'a'>, 9, countRegistrar, callbacks);
    return note<'r'>(order);
}

} // namespace

TEST(ExitCallbacks, RunOnceInTheirOrder) {
    recordCall("before");
    startRecording();
    EXPECT_TRUE(isRecording());
    exit_callback::call(callbacks);
    EXPECT_THAT(recordedCalls(), IsEmpty()) << "nothing to run";
    exit_callback::do_register(note<'a'>, 3, countRegistrar, callbacks);
    exit_callback::do_register(note<'b'>, 1, countRegistrar, callbacks);
    exit_callback::do_register(note<'b'>, 3, countRegistrar, callbacks);
    exit_callback::do_register(note<'a'>, 1, countRegistrar, callbacks);
    EXPECT_EQ(registrars, 1) << "one registration with the runtime serves the list";
    EXPECT_THAT(ran, IsEmpty());
    exit_callback::call(callbacks);
    exit_callback::call(callbacks);
    stopRecording();
    recordCall("after");
    EXPECT_FALSE(isRecording());
    EXPECT_THAT(std::exchange(ran, {}), ElementsAre("b1", "a1", "a3", "b3"));
    const auto registered = [](int order) { return "exit callback registered, order " + std::to_string(order); };
    const auto runs = [](int order) { return "exit callback runs, order " + std::to_string(order); };
    EXPECT_THAT(recordedCalls(), ElementsAre(registered(3), registered(1), registered(3), registered(1), runs(1),
                                             runs(1), runs(3), runs(3)));
    startRecording();
    EXPECT_THAT(recordedCalls(), IsEmpty()) << "a record begins empty";
    stopRecording();

    exit_callback::do_register(registerAnother, 3, countRegistrar, callbacks);
    exit_callback::do_register(note<'b'>, 4, countRegistrar, callbacks);
    EXPECT_EQ(registrars, 2) << "the runtime has used up the first registration";
    exit_callback::call(callbacks);
    EXPECT_THAT(std::exchange(ran, {}), ElementsAre("r3", "b4", "a9"));
}

TEST(Assertions, AreCountedAndTheLastThousandKept) {
    clearAssertionReports();
    const int line = __LINE__ + 1;
    VELKOR_ASSERTION_FAILED();
    __OmyAssertionFailed(nullptr, -1, "why");
    EXPECT_THAT(assertionReports(),
                ElementsAre(FieldsAre(testing::EndsWith("tests/platform/objectmodeler/RecordsTest.cpp"), line, ""),
                            FieldsAre("", -1, "why")));
    for (int i = 1; i <= 1200; ++i) __OmyAssertionFailed("unit", i);
    EXPECT_EQ(assertionCount(), 1202U);
    const auto reports = assertionReports();
    ASSERT_EQ(reports.size(), 1000U);
    EXPECT_THAT(reports.front(), FieldsAre("unit", 201, ""));
    EXPECT_THAT(reports.back(), FieldsAre("unit", 1200, ""));
    clearAssertionReports();
    EXPECT_EQ(assertionCount(), 0U);
    EXPECT_THAT(assertionReports(), IsEmpty());
}

} // namespace velkor::objectmodeler::test
