#include "Matchers.h"
#include "velkor/exchangelog/MessageLog.h"
#include "velkor/exchangelog/QORMsgCatalog.h"

#include <array>

namespace velkor::exchangelog::test {

TEST(MessageLog, KeepsMessagesReadable) {
    MessageLog log(2), other(1);
    for (MessageLog* next : std::initializer_list<MessageLog*>{nullptr, &log, &other, nullptr}) {
        setExchangeErr(next);
        EXPECT_EQ(GetExchangeErr(), next);
    }
    log.setLevel(-3);
    EXPECT_EQ(log.GetCurLevel(), -3);

    QORUnicodeString text("Träger #12");
    QORUnicodeString extra("Datei.ifc");
    QORUnicodeString nothing;
    int code = 5;
    EXPECT_EQ(log.PutMsgErr(&text, &code, "K", "C", 1, &extra, &code), 0);
    log.PutMsgErr(&text, nullptr, "K", "C", 70000, nullptr, nullptr);
    log.PutMsgErr(nullptr, nullptr, "K", "C", 3, &nothing, nullptr);
    log.PutMsgErr(&nothing, nullptr, "K", "C", 4, &extra, nullptr);
    EXPECT_EQ(log.PutUnicodeMessage("建物", 5, 6), 0);
    EXPECT_THAT(log.messages(), testing::ElementsAre(FieldsAre("Träger #12 (Datei.ifc)", 1, 0),
                                                     FieldsAre("Träger #12", 70000, 0), FieldsAre("K: C", 3, 0),
                                                     FieldsAre(" (Datei.ifc)", 4, 0), FieldsAre("建物", 5, 6)));
    EXPECT_EQ(code, 5);
    log.clear();
    EXPECT_THAT(log.messages(), testing::IsEmpty());
}

TEST(MessageCatalog, PutsParametersIntoATextInOnePass) {
    std::vector<QORUnicodeString> params = {"eins", "/P1", "", "建物", "e", "f", "g", "h", "i", "j", "k", "zwölf"};
    for (const auto& [text, message] :
         {std::pair{"", ""}, std::pair{"/P1", "eins"}, std::pair{"no parameter", "no parameter"},
          std::pair{"/P4 before /P1, /P4 again", "建物 before eins, 建物 again"}, std::pair{"/P2/P1P1", "/P1einsP1"},
          std::pair{"/P12 and /P1 2", "zwölf and eins 2"},
          std::pair{"Öffnung //P1: 「/P4」", "Öffnung /eins: 「建物」"},
          std::pair{"/P13, /P0, /P-1, /P, /Px, /p1", "/P13, /P0, /P-1, /P, /Px, /p1"},
          std::pair{"/P99999999999999999999", "/P99999999999999999999"}, std::pair{"<//P3/P>", "<//P>"}}) {
        const auto build = [&](const char* defaultText) {
            return QORMsgCatalog::BuildMessage("IFC", "Key", params.data(), 12, defaultText, nullptr);
        };
        EXPECT_EQ(build(text).utf8(), message) << "as the default text";
        QORMsgCatalog::SetText("IFC", "Key", text);
        EXPECT_EQ(build("default").utf8(), message);
        EXPECT_EQ(QORMsgCatalog::BuildMessage("IFC", "Key", nullptr, 0, "default", nullptr).utf8(), text);
        QORMsgCatalog::RemoveAll();
    }
}

TEST(MessageCatalog, SaysWhichTextIsMissing) {
    QORMsgCatalog::RemoveAll();
    QORMsgCatalog::SetText("IFC", "Wall", "a wall");
    QORMsgCatalog::SetText("IFC", "Wall", "the wall");
    QORMsgCatalog::SetText("IFC", "Empty", "");
    for (const auto& [catalogue, key, text, missing] :
         {std::array{"IFC", "Wall", "the wall", ""}, std::array{"IFC", "Empty", "", ""},
          std::array{"IFC", "Door", "default", "IFC.Door"}, std::array{"IFC", "wall", "default", "IFC.wall"},
          std::array{"Wall", "IFC", "default", "Wall.IFC"}}) {
        QORString status("before");
        EXPECT_EQ(QORMsgCatalog::BuildMessage(catalogue, key, nullptr, 0, "default", &status).utf8(), text);
        EXPECT_EQ(status.view(), missing);
    }
}

} // namespace velkor::exchangelog::test
