#include "Matchers.h"
#include "QORIFCOptionsFromXCAD.h"

#include "OptionsFixture.h"
#include "PrivateOperation.h"
#include "velkor/exchangelog/MessageLog.h"

namespace velkor::test {

namespace {

class ConversionOptions : public OptionsFixture {
protected:
    void TearDown() override {
        exchangelog::setExchangeErr(nullptr);
        QORIFCOptionsFromXCAD::DeleteInstance();
        OptionsFixture::TearDown();
    }

    static QORIFCOptionsFromXCAD& conversion() { return *QORIFCOptionsFromXCAD::GetInstance(); }
    static HRESULT set(const char* name, const char* value) {
        return conversion().SetXCADConversionOptionForIFC(name, value);
    }
    static HRESULT setLists(const std::vector<const char*>& names, const std::vector<const char*>& values) {
        QORListValQORUnicodeString lists[2];
        for (const char* name : names) lists[0].Append(name);
        for (const char* value : values) lists[1].Append(value);
        return conversion().SetXCADConversionOptionsForIFC(lists[0], lists[1]);
    }
    /// All options as "name=value", behind what GetAllOptions found in the caller's lists.
    static std::vector<std::string> kept() {
        QORListValQORUnicodeString names, values;
        names.Append("before");
        values.Append("it");
        EXPECT_EQ(conversion().GetAllOptions(names, values), S_OK);
        std::vector<std::string> result;
        for (int i = 1; i <= names.Size(); ++i) result.emplace_back((names[i] + "=" + values[i]).utf8());
        return result;
    }
    static constexpr const char* mapping = "IFC_Disable_Version_Mapping";
};

} // namespace

TEST_F(ConversionOptions, SwitchTheVersionMapping) {
    const auto isDisabled = [] { return conversion().GetValueIFCVersionMapping() == S_OK; };
    EXPECT_FALSE(isDisabled());
    for (const char* yes : {"true", "TRUE", "ok", "Yes", "1", "FULL_AUTHORIZATION"}) {
        for (const char* other : {"maybe", "", "no", "0", "false", "ko", " true", "11", "yes!"}) {
            EXPECT_EQ(set(mapping, yes), S_OK);
            EXPECT_TRUE(isDisabled()) << yes;
            EXPECT_EQ(set(mapping, other), S_OK);
            EXPECT_FALSE(isDisabled()) << other;
        }
    }
    // No operation asks for the words that say no.
    const auto& negative = privateOperation<unsigned char(QORIFCOptionsFromXCAD*, const QORUnicodeString&)>(
        "_ZN21QORIFCOptionsFromXCAD7NegatifERK16QORUnicodeString");
    for (const auto& [word, no] :
         {std::pair{"false", 1}, {"KO", 1}, {"No", 1}, {"0", 1}, {"true", 0}, {"", 0}, {"n", 0}, {"off", 0}})
        EXPECT_EQ(negative(&conversion(), word), no) << word;
    EXPECT_EQ(set("ifc_disable_version_mapping", "true"), E_FAIL);
    EXPECT_FALSE(isDisabled()) << "the name's letter case counts";
}

TEST_F(ConversionOptions, SetTheExchangeProfile) {
    for (const char* name : {"TransferAllIntoOneRep", "transferallintoonerep"}) {
        EXPECT_EQ(set(name, "TRANSFERASFEATUREREP"), S_OK);
        EXPECT_EQ(set(name, "Feature"), E_FAIL);
        EXPECT_EQ(options.GetExchangeProfile(), QORIFCOptions::FeatureProfile);
        EXPECT_EQ(set(name, "AllToOneTessellatedrep"), S_OK);
        EXPECT_EQ(options.GetExchangeProfile(), QORIFCOptions::TessellatedProfile);
    }
    variables.set(QORIFCOptions::_envvar_exchange_profile, "1");
    QORIFCOptions::Reset();
    EXPECT_EQ(set("TransferAllIntoOneRep", "TransferAsFeatureRep"), S_OK);
    EXPECT_EQ(options.GetExchangeProfile(), QORIFCOptions::FullyExposedProfile) << "forced";
}

TEST_F(ConversionOptions, AreAllKeptInOrder) {
    for (const auto& [name, value] : {std::pair{"b", "1"}, {"ä", "true"}, {"B", "yes"}, {"b", "TRUE"}})
        EXPECT_EQ(set(name, value), E_FAIL);
    EXPECT_THAT(kept(), ElementsAre("before=it", "b=TRUE", "ä=true", "B=yes"));
    EXPECT_FALSE(conversion().IsOptionSet("Ä"));
    for (const auto& [value, isSet] :
         {std::pair{"True", true}, {"1", true}, {"yes", false}, {"", false}, {"10", false}}) {
        set("b", value);
        EXPECT_EQ(conversion().IsOptionSet("b"), isSet) << value;
    }
    set(mapping, "yes");
    QORIFCOptionsFromXCAD::DeleteInstance();
    QORIFCOptionsFromXCAD::DeleteInstance();
    EXPECT_THAT(kept(), ElementsAre("before=it"));
    EXPECT_EQ(conversion().GetValueIFCVersionMapping(), E_FAIL);
}

TEST_F(ConversionOptions, ComeInListsToo) {
    using Names = std::vector<const char*>;
    for (const auto& [names, values] : {std::pair<Names, Names>{},
                                        {{mapping, "a"}, {"yes", "1", "2"}},
                                        {{mapping, "a"}, {"yes"}},
                                        {{"WriteXCADOptions"}, {"yes"}}})
        EXPECT_EQ(setLists(names, values), E_FAIL);
    EXPECT_THAT(kept(), ElementsAre("before=it"));
    EXPECT_EQ(conversion().GetValueIFCVersionMapping(), E_FAIL);
    EXPECT_EQ(setLists({mapping, "WriteXCADOptions", "a", "a"}, {"yes", "yes", "1", "2"}), S_OK)
        << "one pair was accepted, though not the last";
    EXPECT_EQ(conversion().GetValueIFCVersionMapping(), S_OK);
    EXPECT_EQ(setLists({"a", "writexcadoptions"}, {"3", "yes"}), E_FAIL);
    EXPECT_EQ(set("WriteXCADOptions", "no"), E_FAIL) << "outside a list it is kept like any other";
    EXPECT_THAT(kept(), ElementsAre("before=it", std::string(mapping) + "=yes", "a=3", "writexcadoptions=yes",
                                    "WriteXCADOptions=no"));
}

TEST_F(ConversionOptions, AreToldToTheLogOfTheMoment) {
    exchangelog::MessageLog quiet(1), first(2), second(3);
    set("x", "before any log");
    exchangelog::setExchangeErr(&quiet);
    set("x", "y");
    exchangelog::setExchangeErr(&first);
    set(mapping, "yes");
    setLists({"WriteXCADOptions", "Größe"}, {"yes", "a b"});
    exchangelog::setExchangeErr(&second);
    set("TransferAllIntoOneRep", "");
    const std::string start = " *** IFC : Trying to set this XCAD option to the IFC document: ";
    const auto message = [&](const char* pair) { return testing::FieldsAre(start + pair, 0, 0); };
    EXPECT_THAT(quiet.messages(), IsEmpty());
    EXPECT_THAT(first.messages(), ElementsAre(message("IFC_Disable_Version_Mapping = yes"), message("Größe = a b")));
    EXPECT_THAT(second.messages(), ElementsAre(message("TransferAllIntoOneRep = ")));
}

} // namespace velkor::test
