#include "QORIFCUnitServices.h"

#include "ModelText.h"
#include "UnitSlots.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/sdai/Model.h"

#include <array>
#include <deque>
#include <gmock/gmock.h>
#include <limits>
#include <regex>
#include <sstream>
#include <tuple>

namespace {

using testing::Each;
using testing::ElementsAre;
using velkor::objectmodeler::assertionCount;
using velkor::sdai::Model;

double measured(const char* measure) {
    QORUnicodeString name(measure);
    return QORIFCUnitServices::GetGlobalUnitConversionFactor(name);
}

/// Result, length factor and angle factor.
using Geometry = std::tuple<HRESULT, double, double>;

Geometry geometry(double length = 0.0, double angle = 0.0) {
    const HRESULT result = QORIFCUnitServices::GetSIConversionFactorforGeometry(length, angle);
    return {result, length, angle};
}

/// Type, prefix, name and factor.
using Alternative = std::tuple<std::string, std::string, std::string, double>;

Alternative alternative() {
    QORUnicodeString type, prefix, name;
    double factor = 0.0;
    EXPECT_EQ(QORIFCUnitServices::GetAlternativeLengthUnit(type, prefix, name, factor), S_OK);
    return {std::string(type.utf8()), std::string(prefix.utf8()), std::string(name.utf8()), factor};
}

/// A length unit that is worth some of another, and its measure under the next id.
std::string conversion(int id, double value, int unit) {
    const std::string self = std::to_string(id), measure = std::to_string(id + 1);
    return '#' + self + "=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'A',#" + measure + ");#" + measure +
           "=IFCMEASUREWITHUNIT(IFCREAL(" + std::to_string(value) + "),#" + std::to_string(unit) + ");";
}

constexpr auto otherSchema = static_cast<Fileschema>(2);

/// The state lasts as long as the process, so what it is at first is noted before any test.
const struct First {
    std::vector<Geometry> geometries;
    std::vector<double> lengths;
    Alternative chosen = alternative();
    bool isChosen = QORIFCUnitServices::GetAlternativeLengthUnitFlag();

    First() {
        for (const Fileschema schema : {FileschemaIFC4, FileschemaIFC2X3}) {
            QORIFCUnitServices::SetSchema(schema);
            geometries.push_back(geometry(7.0, 7.0));
            lengths.push_back(measured("IFCLENGTHMEASURE"));
        }
    }
} first;

class UnitServices : public testing::Test {
protected:
    void SetUp() override {
        for (const Fileschema schema : {FileschemaIFC4, FileschemaIFC2X3}) {
            QORIFCUnitServices::SetSchema(schema);
            QORIFCUnitServices::StoreGlobalUnits(nullptr);
        }
        QORIFCUnitServices::SetAlternativeLengthUnit("m");
        QORIFCUnitServices::SetLengthConversionFactor(1.0);
        QORIFCUnitServices::SetAlternativeLengthUnitFlag(false);
        velkor::objectmodeler::clearAssertionReports();
    }

    // A model that stays open until the test ends.
    const Model& open(const std::string& release, const std::string& data) {
        texts.push_back(velkor::test::modelText(release, data));
        auto model = Model::fromText(texts.back(), "units.ifc");
        EXPECT_TRUE(model) << model.error().message;
        models.push_back(std::move(*model));
        return *models.back();
    }
    /// Stores instance 1, the assignment of the units given and of those that `data` holds beside.
    HRESULT store(Fileschema schema, const std::string& release, const std::string& units, const std::string& data) {
        QORIFCUnitServices::SetSchema(schema);
        return QORIFCUnitServices::StoreGlobalUnits(
            open(release, "#1=IFCUNITASSIGNMENT((" + units + "));" + data).instance(1));
    }

    std::deque<std::string> texts;
    std::vector<std::unique_ptr<Model>> models;
};

constexpr const char* millimetreAndRadian =
    "#2=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);#3=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);";

} // namespace

TEST_F(UnitServices, KnowNothingAtFirst) {
    EXPECT_THAT(first.geometries, Each(Geometry(E_FAIL, 0.0, 0.0)));
    EXPECT_THAT(first.lengths, ElementsAre(0.0, 0.0));
    EXPECT_EQ(first.chosen, Alternative("", "", "", 1.0));
    EXPECT_FALSE(first.isChosen);
}

TEST_F(UnitServices, EvaluateEveryKindOfUnit) {
    // Pairs of a unit and its factor.
    const std::string cases = R"(
        SIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.) 1e-3          SIUNIT(*,.LENGTHUNIT.,.NOSUCH.,.METRE.) 1
        SIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.) 1e-4     SIUNIT(*,.VOLUMEUNIT.,.MILLI.,.CUBIC_METRE.) 1e-9
        SIUNIT(*,.MASSUNIT.,$,.GRAM.) 1e-3                   SIUNIT(*,.MASSUNIT.,.KILO.,.GRAM.) 1
        SIUNIT(*,.LENGTHUNIT.,.KILO.,.GRAM.) 1e3             SIUNIT(*,.LENGTHUNIT.,$,.METRE.) 1
        CONVERSIONBASEDUNIT($,$,'DEGREE',#203) 0.017453293   CONVERSIONBASEDUNIT($,$,'FOOT',#204) 0.3048
        CONVERSIONBASEDUNIT($,$,'PACE',#205) 3               CONVERSIONBASEDUNITWITHOFFSET($,$,'F',#207,-459.67) 0.5
        CONVERSIONBASEDUNIT($,$,'NO_MEASURE',$) 1            CONVERSIONBASEDUNIT($,$,'LOST_MEASURE',#999) 1
        CONVERSIONBASEDUNIT($,$,'NO_UNIT',#208) 2.5          CONVERSIONBASEDUNIT($,$,'LOST_UNIT',#209) 2.5
        CONVERSIONBASEDUNIT($,$,'NO_VALUE',#210) 1e-3        DERIVEDUNIT((#220,#221),.LINEARVELOCITYUNIT.,$) 1
        DERIVEDUNIT((#222),.USERDEFINED.,'LITRE') 1e-9       DERIVEDUNIT((#223,#224),.MASSDENSITYUNIT.,$) 1e6
        DERIVEDUNIT((#225,#999,#226,#220),.USERDEFINED.,'GAPS') 1   DERIVEDUNIT((),.USERDEFINED.,'EMPTY') 1
        DERIVEDUNIT($,.USERDEFINED.,'UNSET') 1               MONETARYUNIT('EUR') 1
        CONTEXTDEPENDENTUNIT($,.USERDEFINED.,'PIECE') 1)";
    std::string data =
        "#200=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);#201=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);"
        "#202=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);#230=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);"
        "#203=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.017453293),#202);#231=IFCSIUNIT(*,.MASSUNIT.,$,.GRAM.);"
        "#204=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(12.),#211);#205=IFCMEASUREWITHUNIT(IFCINTEGER(3),#201);"
        "#207=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.5),#201);#208=IFCMEASUREWITHUNIT(IFCREAL(2.5),$);"
        "#209=IFCMEASUREWITHUNIT(IFCREAL(2.5),#999);#210=IFCMEASUREWITHUNIT($,#200);"
        "#211=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'INCH',#212);"
        "#212=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#200);#220=IFCDERIVEDUNITELEMENT(#201,1);"
        "#221=IFCDERIVEDUNITELEMENT(#230,-1);#222=IFCDERIVEDUNITELEMENT(#200,3);#223=IFCDERIVEDUNITELEMENT(#231,1);"
        "#224=IFCDERIVEDUNITELEMENT(#200,-3);#225=IFCDERIVEDUNITELEMENT($,2);#226=IFCDERIVEDUNITELEMENT(#200,$);";
    std::istringstream stream(cases);
    std::vector<double> factors;
    std::string unit, factor;
    while (stream >> unit >> factor) {
        factors.push_back(std::stod(factor));
        data += '#' + std::to_string(factors.size()) + "=IFC" + unit + ';';
    }
    ASSERT_EQ(factors.size(), 25U);
    const Model& model = open("IFC4", data);
    // The schema set decides about tables alone here.
    for (const Fileschema schema : {FileschemaIFC4, FileschemaIFC2X3, otherSchema}) {
        QORIFCUnitServices::SetSchema(schema);
        for (std::size_t i = 0; i < factors.size(); ++i) {
            EXPECT_DOUBLE_EQ(QORIFCUnitServices::GetUnitConversionFactor(model.instance(i + 1)), factors[i]) << i + 1;
        }
    }
    EXPECT_EQ(assertionCount(), 0U);
}

TEST_F(UnitServices, ReadPrefixesByNameWhateverTheOrderOfTheRelease) {
    constexpr std::array prefixes{"EXA",  "PETA",  "TERA",  "GIGA",  "MEGA", "KILO", "HECTO", "DECA",
                                  "DECI", "CENTI", "MILLI", "MICRO", "NANO", "PICO", "FEMTO", "ATTO"};
    constexpr std::array factors{1e18, 1e15, 1e12, 1e9,  1e6,  1e3,   1e2,   1e1,
                                 1e-1, 1e-2, 1e-3, 1e-6, 1e-9, 1e-12, 1e-15, 1e-18};
    std::string data;
    for (std::size_t i = 0; i < prefixes.size(); ++i) {
        EXPECT_EQ(QORIFCUnitServices::GetPrefixValue(static_cast<int>(i)), factors[i]);
        data += '#' + std::to_string(i + 1) + "=IFCSIUNIT(*,.LENGTHUNIT.,." + prefixes[i] + ".,.METRE.);";
    }
    for (const int outside : {-1, 16, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(QORIFCUnitServices::GetPrefixValue(outside), 1.0);
    }
    for (const char* release :
         {"IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_RC1", "IFC4X3_RC3", "IFC4X3_ADD2", "IFC4X4"}) {
        const Model& model = open(release, data);
        for (const Fileschema schema : {FileschemaIFC2X3, FileschemaIFC4}) {
            QORIFCUnitServices::SetSchema(schema);
            for (std::size_t i = 0; i < prefixes.size(); ++i) {
                EXPECT_EQ(QORIFCUnitServices::GetUnitConversionFactor(model.instance(i + 1)), factors[i])
                    << release << ' ' << prefixes[i];
            }
        }
    }
}

TEST_F(UnitServices, EndAtUnitsThatAreDefinedByThemselves) {
    const Model& model = open("IFC4", conversion(1, 2.0, 1) + conversion(3, 3.0, 5) + conversion(5, 5.0, 3));
    // The reference that closes the circle counts as 1.
    std::uint64_t reports = 0;
    for (const auto& [id, factor] : {std::pair(1U, 2.0), {3U, 15.0}, {5U, 15.0}}) {
        EXPECT_EQ(QORIFCUnitServices::GetUnitConversionFactor(model.instance(id)), factor);
        EXPECT_EQ(assertionCount(), ++reports);
    }
    const std::string source = velkor::objectmodeler::assertionReports().front().sourceUnit;
    EXPECT_EQ(source, "Velkorite/Velkor.m/src/units/UnitEvaluation.cpp");
}

TEST_F(UnitServices, StaySmallOnUnitsBuiltToBeEndless) {
    std::string chain, tree = "#130=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);";
    for (int id = 1; id <= 10'000; id += 2) chain += conversion(id, 1.0, id + 2);
    EXPECT_EQ(QORIFCUnitServices::GetUnitConversionFactor(open("IFC4", chain).instance(1)), 1.0);
    EXPECT_EQ(assertionCount(), 1U);

    // Every level names the next twice: 2^64 ways lead to the end.
    for (int i = 1; i <= 64; ++i) {
        const std::string self = std::to_string(2 * i), element = std::to_string(2 * i + 1);
        tree += '#' + self + "=IFCDERIVEDUNIT((#" + element + ",#" + element + "),.USERDEFINED.,$);#" + element +
                "=IFCDERIVEDUNITELEMENT(#" + std::to_string(2 * i + 2) + ",1);";
    }
    EXPECT_EQ(QORIFCUnitServices::GetUnitConversionFactor(open("IFC4", tree).instance(2)), 1.0);
    EXPECT_EQ(assertionCount(), 1U);
}

TEST_F(UnitServices, FindTheUnitOfEveryMeasure) {
    // Measures and units have the same names but for those that bound a measure.
    std::vector<std::tuple<std::string, std::string, bool>> measures{{"ifcAreaMeasure", "AREA", false}};
    const std::regex words("IFC(?:POSITIVE|NONNEGATIVE)?(\\w+)MEASURE");
    for (const velkor::MeasureSlots& measure : velkor::measureSlots) {
        measures.emplace_back(measure.name, std::regex_replace(measure.name, words, "$1"),
                              measure.ifc4 >= velkor::firstDerivedSlot);
    }
    ASSERT_EQ(measures.size(), 26U);
    const std::string shared = "#3=IFCMEASUREWITHUNIT(IFCREAL(7.),$);#4=IFCDERIVEDUNITELEMENT(#5,1);"
                               "#5=IFCCONVERSIONBASEDUNIT($,.USERDEFINED.,'B',#3);";
    for (const std::string release : {"IFC2X3", "IFC4", "IFC4X3_ADD2"}) {
        for (const Fileschema schema : {FileschemaIFC2X3, FileschemaIFC4}) {
            for (const auto& [measure, name, isDerived] : measures) {
                const bool isKnown = name != "AREADENSITY" || (schema == FileschemaIFC4 && release != "IFC2X3");
                const std::string unit = isDerived ? "#2=IFCDERIVEDUNIT((#4),." + name + "UNIT.,$);"
                                                   : "#2=IFCCONVERSIONBASEDUNIT($,." + name + "UNIT.,'A',#3);";
                EXPECT_EQ(store(schema, release, "#2", unit + shared), isKnown ? S_OK : E_FAIL) << release << name;
                for (const auto& [asked, meant, _] : measures) {
                    EXPECT_EQ(measured(asked.c_str()), isKnown && meant == name ? 7.0 : 1.0) << release << asked;
                }
            }
        }
    }
    EXPECT_EQ(measured("IFCLABEL"), 1.0);
    EXPECT_EQ(measured(""), 1.0);
}

TEST_F(UnitServices, StoreTheUnitsOfAnAssignment) {
    EXPECT_EQ(store(FileschemaIFC2X3, "IFC2X3", "#2,#3", millimetreAndRadian), S_OK);
    EXPECT_EQ(measured("IFCLENGTHMEASURE"), 0.001);
    EXPECT_EQ(geometry(), Geometry(S_OK, 1.0, 1.0));
    // The other schema has a table of its own.
    QORIFCUnitServices::SetSchema(FileschemaIFC4);
    EXPECT_EQ(measured("IFCLENGTHMEASURE"), 1.0);
    EXPECT_EQ(geometry(), Geometry(S_OK, 1000.0, 1.0));

    const std::string degree = "#4=IFCCONVERSIONBASEDUNIT($,.PLANEANGLEUNIT.,'DEGREE',#5);"
                               "#5=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.017453293),#3);"
                               "#6=IFCMONETARYUNIT('EUR');#7=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);";
    EXPECT_EQ(store(FileschemaIFC4, "IFC4", "#6,#2,$,#999,#4,#7", millimetreAndRadian + degree), S_OK);
    EXPECT_EQ(geometry(), Geometry(S_OK, 1000.0, 0.017453293)) << "the later length unit wins";
    EXPECT_EQ(store(FileschemaIFC4, "IFC4", "#7,#2", millimetreAndRadian + degree), S_OK);
    EXPECT_EQ(geometry(), Geometry(S_OK, 1.0, 1.0)) << "nothing is left of the angle stored before";

    // Both have the same place, which no measure reads, and touch no other.
    const char* overlap = "#2=IFCCONVERSIONBASEDUNIT($,.USERDEFINED.,'A',#4);#4=IFCMEASUREWITHUNIT(IFCREAL(7.),$);"
                          "#3=IFCDERIVEDUNIT((#5),.ANGULARVELOCITYUNIT.,$);#5=IFCDERIVEDUNITELEMENT(#2,1);";
    EXPECT_EQ(store(FileschemaIFC4, "IFC4", "#2,#3", overlap), S_OK);
    EXPECT_EQ(measured("IFCVOLUMEMEASURE"), 1.0);
    EXPECT_EQ(measured("IFCAREADENSITYMEASURE"), 1.0);

    // A factor of 0 makes no geometry.
    EXPECT_EQ(store(FileschemaIFC4, "IFC4", "#2", conversion(2, 0.0, 9)), S_OK);
    EXPECT_EQ(geometry(), Geometry(E_FAIL, 0.0, 1.0));
}

TEST_F(UnitServices, RefuseWhatHoldsNoUnitsButForgetTheOldOnes) {
    for (const char* data :
         {"#1=IFCUNITASSIGNMENT(());", "#1=IFCUNITASSIGNMENT($);", "#1=IFCUNITASSIGNMENT((#2));", "",
          "#1=IFCUNITASSIGNMENT((#9));#9=IFCMONETARYUNIT($);", "#1=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);",
          "#1=IFCUNITASSIGNMENT((#9));#9=IFCSIUNIT(*,.NOSUCH.,$,.METRE.);"}) {
        for (const auto& [schema, release] : {std::pair(FileschemaIFC2X3, "IFC2X3"), {FileschemaIFC4, "IFC4"}}) {
            ASSERT_EQ(store(schema, release, "#2,#3", millimetreAndRadian), S_OK);
            EXPECT_EQ(QORIFCUnitServices::StoreGlobalUnits(open(release, data).instance(1)), E_FAIL) << data;
            EXPECT_EQ(measured("IFCLENGTHMEASURE"), 1.0) << data;
        }
    }
}

TEST_F(UnitServices, KeepNoFactorsForAnotherSchema) {
    ASSERT_EQ(store(FileschemaIFC4, "IFC4", "#2,#3", millimetreAndRadian), S_OK);
    EXPECT_EQ(store(otherSchema, "IFC4", "#2", "#2=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);"), E_FAIL);
    EXPECT_EQ(measured("IFCLENGTHMEASURE"), 1.0);
    EXPECT_EQ(geometry(7.0, 8.0), Geometry(S_OK, 7.0, 8.0));
    EXPECT_EQ(geometry(7.0, 0.0), Geometry(E_FAIL, 7.0, 0.0));
    QORIFCUnitServices::SetSchema(FileschemaIFC4);
    EXPECT_EQ(measured("IFCLENGTHMEASURE"), 0.001);
}

TEST_F(UnitServices, NameTheLengthUnitOfADocument) {
    // "-" and -1.0 are what was there before.
    constexpr std::tuple<const char*, const char*, double> cases[] = {
        {"#2", "MILLI", 0.001},    {"#3", "METRE", 1.0},      {"#4", "INCH", 0.0254},    {"#5,#6,#3,#2", "METRE", 1.0},
        {"#2,#3", "MILLI", 0.001}, {"#5", "-", -1.0},         {"", "-", -1.0},           {"$,#99,#4", "INCH", 0.0254},
        {"#7", "-", 1.0},          {"#7,#2", "MILLI", 0.001}, {"#8", "-", 1.0},          {"#8,#4", "INCH", 0.0254},
        {"#9", "-", 0.0254},       {"#12", "-", -1.0},        {"#10,#4", "INCH", 0.0254}};
    const std::string data =
        "#2=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);"
        "#4=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'INCH',#11);#5=IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.);"
        "#6=IFCCONVERSIONBASEDUNIT($,.AREAUNIT.,'ACRE',#11);#7=IFCSIUNIT(*,.LENGTHUNIT.,.NOSUCH.,.METRE.);"
        "#8=IFCSIUNIT(*,.LENGTHUNIT.,$,$);#9=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,$,#11);#10=IFCMONETARYUNIT($);"
        "#11=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#2);#12=IFCCONTEXTDEPENDENTUNIT($,.LENGTHUNIT.,'STEP');";
    for (const auto& [units, expectedName, expectedFactor] : cases) {
        const Model& model = open("IFC4X3_ADD2", std::string("#1=IFCUNITASSIGNMENT((") + units + "));" + data);
        QORUnicodeString name("-");
        double factor = -1.0;
        // The last two are no assignment and so leave all as it is.
        for (DXSdaiAppInstance* assignment : {model.instance(1), model.instance(2), model.instance(99)}) {
            EXPECT_EQ(QORIFCUnitServices::GetDocumentLengthUnit(assignment, name, factor), S_OK);
            EXPECT_EQ(name.utf8(), expectedName) << units;
            EXPECT_EQ(factor, expectedFactor) << units;
        }
    }
}

TEST_F(UnitServices, RememberTheAlternativeLengthUnit) {
    const std::tuple<const char*, const char*, const char*, double> cases[] = {
        {"cm", "CENTI", "METRE", 0.1}, {"m", "", "METRE", 0.001},     {"in", "", "INCH", 1 / 25.4},
        {"yd", "", "INCH", 1 / 25.4},  {"ft", "", "FOOT", 1 / 304.8}, {"CM", "CENTI", "METRE", 0.1},
        {"", "CENTI", "METRE", 0.1}};
    for (const auto& [text, prefix, name, factor] : cases) {
        EXPECT_EQ(QORIFCUnitServices::SetAlternativeLengthUnit(text), S_OK);
        EXPECT_EQ(alternative(), Alternative("LENGTHUNIT", prefix, name, factor)) << text;
        EXPECT_EQ(QORIFCUnitServices::GetLengthConversionFactor(), factor);
        EXPECT_FALSE(QORIFCUnitServices::GetAlternativeLengthUnitFlag());
    }
    QORIFCUnitServices::SetAlternativeLengthUnitFlag(true);
    EXPECT_TRUE(QORIFCUnitServices::GetAlternativeLengthUnitFlag());
    QORIFCUnitServices::SetLengthConversionFactor(0.5);
    EXPECT_EQ(alternative(), Alternative("LENGTHUNIT", "CENTI", "METRE", 0.5));
    QORIFCUnitServices::SetAngleConversionFactor(2.0);
    EXPECT_EQ(QORIFCUnitServices::GetAngleConversionFactor(), 1.0) << "angles are never rescaled";
}
