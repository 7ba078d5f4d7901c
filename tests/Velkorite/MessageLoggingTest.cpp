#include "Matchers.h"
#include "QORIFCMsgLoggingServices.h"

#include "velkor/exchangelog/QORExchangeErr.h"
#include "velkor/exchangelog/QORMsgCatalog.h"
#include "velkor/objectmodeler/CallRecorder.h"

#include <array>
#include <tuple>

namespace velkor::test {

using testing::_;
using Services = QORIFCMsgLoggingServices;

namespace {

/// What the catalogue was asked to build.
using Build = std::tuple<QORString, QORString, QORUnicodeString*, int, QORUnicodeString, QORString*>;
std::vector<Build> builds;

class Log : public QORExchangeErr {
public:
    explicit Log(int current) : level(current) {
        exchangelog::setExchangeErr(this);
        // Nobody looks at what the log's own writing gives.
        ON_CALL(*this, PutMsgErr).WillByDefault(testing::Return(E_UNEXPECTED));
        ON_CALL(*this, PutUnicodeMessage).WillByDefault(testing::Return(E_UNEXPECTED));
    }
    int GetCurLevel() const override { return level; }
    MOCK_METHOD(int, PutMsgErr, (QORUnicodeString*, int*, QORString, QORString, int, QORUnicodeString*, int*),
                (override));
    MOCK_METHOD(int, PutUnicodeMessage, (const QORUnicodeString&, short, short), (override));
    MOCK_METHOD(int, PutMessage, (const QORUnicodeString&), (override));

    int level;
};
using StrictLog = testing::StrictMock<Log>;

class MessageLogging : public testing::Test {
protected:
    void SetUp() override {
        exchangelog::setExchangeErr(nullptr);
        ASSERT_EQ(Services::SetLogError(), E_FAIL);
        builds.clear();
        objectmodeler::startRecording();
    }
    void TearDown() override { objectmodeler::stopRecording(); }

    /// How often the host has been asked for its log since the test began.
    static std::size_t lookups() { return objectmodeler::recordedCalls().size(); }
    /// Puts a message in each of the three forms.
    static std::array<HRESULT, 3> put(int level) {
        const auto shortLevel = static_cast<short>(level);
        return {Services::PutMsg(nullptr, nullptr, "a", "b", level, nullptr, nullptr),
                Services::PutUnicodeMessage("finished", shortLevel, 7),
                Services::PutUnicodeMessage("Key", "Catalogue", shortLevel, 7, "default")};
    }
    /// Has the log get a number of messages in each of the forms.
    static void expectMessages(StrictLog& log, int count) {
        EXPECT_CALL(log, PutMsgErr).Times(count);
        EXPECT_CALL(log, PutUnicodeMessage).Times(2 * count);
    }
};

} // namespace

TEST_F(MessageLogging, FailsAsLongAsTheHostHasNoLog) {
    EXPECT_THAT(put(0), Each(E_FAIL));
    EXPECT_EQ(Services::SetLogError(), E_FAIL);
    EXPECT_EQ(lookups(), 4U) << "each looks for the log anew";
    EXPECT_THAT(builds, SizeIs(0));

    StrictLog log(0);
    expectMessages(log, 1);
    EXPECT_THAT(put(0), Each(S_OK));
    EXPECT_EQ(lookups(), 5U);
}

TEST_F(MessageLogging, WritesWhatTheLogsCurrentLevelLetsThrough) {
    constexpr int cases[][3] = {{2, 2, 1},   {2, 3, 0},          {2, 1, 1},           {-1, 0, 0},
                                {-1, -1, 1}, {100000, 32767, 1}, {-100000, -32768, 0}};
    for (const auto& [current, level, written] : cases) {
        SCOPED_TRACE(testing::Message() << "log " << current << ", message " << level);
        StrictLog log(current);
        Services::SetLogError();
        builds.clear();
        expectMessages(log, written);
        EXPECT_THAT(put(level), Each(written == 1 ? S_OK : E_FAIL));
        EXPECT_THAT(builds, SizeIs(written)) << "a text that is left out is not built";
    }
    StrictLog log(69999);
    Services::SetLogError();
    EXPECT_CALL(log, PutMsgErr(_, _, _, _, 70000, _, _));
    for (const HRESULT result : {E_FAIL, S_OK}) {
        EXPECT_EQ(Services::PutMsg(nullptr, nullptr, "a", "b", 70000, nullptr, nullptr), result);
        log.level = 70000;
    }
}

TEST_F(MessageLogging, HandsItsArgumentsOn) {
    StrictLog log(5);
    QORUnicodeString text, extra;
    int code = 1, extraCode = 2;
    EXPECT_CALL(log, PutMsgErr(&text, &code, QORString("one"), QORString("two"), 4, &extra, &extraCode));
    EXPECT_EQ(Services::PutMsg(&text, &code, "one", "two", 4, &extra, &extraCode), S_OK);
    EXPECT_CALL(log, PutUnicodeMessage(QORUnicodeString("finished"), 2, 8));
    EXPECT_EQ(Services::PutUnicodeMessage("finished", 2, 8), S_OK);
    EXPECT_CALL(log, PutUnicodeMessage(QORUnicodeString("built from the catalogue"), 3, 9));
    EXPECT_EQ(Services::PutUnicodeMessage("Key", "Catalogue", 3, 9, "default"), S_OK);
    EXPECT_THAT(builds, testing::ElementsAre(Build("Catalogue", "Key", nullptr, 0, "default", nullptr)));
}

TEST_F(MessageLogging, KeepsTheLogItFoundUntilItIsToldToLookAgain) {
    StrictLog one(1);
    EXPECT_THAT(put(2), Each(E_FAIL)) << "left out, but the log is found";
    StrictLog two(1);
    expectMessages(one, 1);
    EXPECT_THAT(put(1), Each(S_OK));
    EXPECT_EQ(lookups(), 1U);

    EXPECT_EQ(Services::SetLogError(), S_OK);
    expectMessages(two, 1);
    EXPECT_THAT(put(1), Each(S_OK));
    EXPECT_EQ(lookups(), 2U);

    exchangelog::setExchangeErr(nullptr);
    EXPECT_EQ(Services::SetLogError(), E_FAIL) << "and forgets the log";
    EXPECT_THAT(put(1), Each(E_FAIL));
    EXPECT_EQ(lookups(), 6U);
}

} // namespace velkor::test

// The program's own catalogue stands in for the platform's and notes what it is asked.
QORUnicodeString QORMsgCatalog::BuildMessage(const QORString& catalogue, const QORString& key, QORUnicodeString* params,
                                             int paramCount, const QORUnicodeString& defaultText, QORString* status) {
    velkor::test::builds.emplace_back(catalogue, key, params, paramCount, defaultText, status);
    return "built from the catalogue";
}
