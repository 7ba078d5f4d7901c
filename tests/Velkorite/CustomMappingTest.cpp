#include "knowledge/QORIExchangeIFCCustomMappingServices.h"
#include "knowledge/QORIExchangeIFCMappingServices.h"
#include "knowledge/TypeDictionary.h"
#include "MappingFixture.h"
#include "PrivateOperation.h"
#include "QORHashTabCustoMappingElement.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCPSetQtoValidationService.h"

namespace velkor::test {

using testing::ElementsAre;

namespace {

constexpr const char* key = "QORAECDataExchangeResources|IFCCustomMapping";
constexpr const char* none = "none was was";

class CustomMapping : public MappingFixture {
protected:
    ~CustomMapping() override {
        QORIFCOptionsFromXCAD::DeleteInstance();
        knowledge::removeTypes();
        privateOperation<int(int)>("_ZN30QORIFCPSetQtoValidationService6OnExitEi")(3);
        files::setSetupDataFinder({});
        variables.removeAll();
        services->LoadCustomMapping(); // finds nothing and forgets what there was
    }

    void document(const std::string& mappings) const {
        setupData(key, {folder.file("map.xml", "<IfcMapping>" + mappings + "</IfcMapping>")});
        ASSERT_EQ(services->LoadCustomMapping(), S_OK) << mappings;
    }
    /// A line of a document, from "entity.property" to "entity.property".
    static std::string line(const char* section, const std::string& from, const std::string& to, const char* scope) {
        const auto dot = [](const std::string& text) { return text.find('.'); };
        return std::string("<") + section + " fromEntity='" + from.substr(0, dot(from)) + "' fromProperty='" +
               from.substr(dot(from) + 1) + "' toEntity='" + to.substr(0, dot(to)) + "' toProperty='" +
               to.substr(dot(to) + 1) + "' scope='" + scope + "'/>\n";
    }
    static std::string standard(const char* from, const char* to, const char* scope) {
        return line("StandardMapping", from, to, scope);
    }
    static std::string custom(const char* from, const char* to, const char* scope) {
        return line("CustomMapping", from, to, scope);
    }
    /// "mapped", or "none", entity and property; "was" stands for an output that was left alone.
    std::string mapping(const char* entity, const char* property, const char* scope) const {
        QORUnicodeString toEntity("was"), toProperty("was");
        const HRESULT result = services->GetCustomMapping(entity, property, scope, toEntity, toProperty);
        EXPECT_TRUE(result == IFC_MAPPING_MAPPED || result == IFC_MAPPING_NONE) << result;
        return std::string(result == IFC_MAPPING_MAPPED ? "mapped " : "none ") +
               std::string((toEntity + " " + toProperty).utf8());
    }

    const QORIExchangeIFCCustomMappingServices_var services =
        component<QORIExchangeIFCCustomMappingServices>("ExchangeIFCCustomMappingServices");
};

} // namespace

TEST_F(CustomMapping, MapsByScopeAndDirection) {
    document(custom("A.P", "Custom.Q", "Wall") + standard("A.P", "Standard.Q", "Wall;Slab") +
             standard("A.", "", "Wall") + standard("B.P", "First.X", "Wall") + standard("b.p", "Later.Y", "WALL") +
             custom("C.P", "Pset_c.Q", "Wall") + custom("D.P", "PSET_C.q", "Wall") + standard("E.P", "F.Q", "") +
             "<StandardMapping fromEntity='E' toEntity='F'/>" + standard("E.P", "F.Q", ";;Beam;; Roof ;") + "<Deep>" +
             standard("G.P", "H.P", "Wall") + "</Deep>" +
             "<standardMapping fromEntity='G' toEntity='H' scope='Wall'/>" + standard("IFCKEY5151.", "One.", "Wall") +
             standard("IFCKEY59133.", "Two.", "Wall"));
    struct Case {
        const char* entity;
        const char* property;
        const char* scope;
        const char* answer;
    };
    for (const Case& c :
         {Case{"A", "P", "Wall_Import", "mapped Custom Q"}, Case{"a", "p", "WALL_import", "mapped Custom Q"},
          Case{"A", "P", "Slab_Import", "mapped Standard Q"}, Case{"Custom", "Q", "Wall_Export", "mapped A P"},
          Case{"Standard", "Q", "Wall_Export", none}, Case{"Standard", "Q", "Slab_Export", none},
          Case{"A", "P", "Wall_Export", none}, Case{"A", "P", "Wall", none}, Case{"A", "P", "", none},
          Case{"A", "", "Wall_Import", "mapped  "}, Case{"", "AP", "Wall_Import", "mapped Custom Q"},
          Case{"B", "P", "wall_Import", "mapped Later Y"}, Case{"Pset_C", "Q", "Wall_Export", "mapped D P"},
          Case{"C", "P", "Wall_Import", "mapped Pset_c Q"}, Case{"E", "P", "_Import", none},
          Case{"E", "", "_Import", none}, Case{"E", "P", "Beam_Import", "mapped F Q"},
          Case{"E", "P", " Roof _Import", "mapped F Q"}, Case{"G", "P", "Wall_Import", none},
          Case{"G", "", "Wall_Import", none},
          // Two texts with one hash are one element: the later one.
          Case{"IFCKEY5151", "", "Wall_Import", "mapped Two "},
          Case{"IFCKEY59133", "", "Wall_Import", "mapped Two "}}) {
        EXPECT_EQ(mapping(c.entity, c.property, c.scope), c.answer) << c.entity << '.' << c.property << ' ' << c.scope;
    }
    EXPECT_EQ(objectmodeler::assertionCount(), 0U);
}

TEST_F(CustomMapping, TakesScopesForTypesOfBuildings) {
    using knowledge::TypeKind;
    const auto addType = [](const char* name, TypeKind kind = TypeKind::Knowledge, bool isAbstract = false) {
        knowledge::addType({name, kind, "", isAbstract});
    };
    const std::string text = custom("A.P", "B.Q", "Known;None;Abstract;Special;AbstractSpecial;known");
    const auto known = [&](const char* scope) { return mapping("A", "P", scope) == "mapped B Q"; };
    for (const char* name : {"Some", "ifcAtTheStart", "AECAtTheStart"}) {
        addType(name);
        document(text);
        EXPECT_TRUE(known("None_Import")) << name << ": no type of buildings, names are as they are written";
    }
    addType("Abstract", TypeKind::Knowledge, true);
    addType("Known");
    addType("Special", TypeKind::Specialization);
    addType("AbstractSpecial", TypeKind::Specialization, true);
    for (const char* name : {"MyIFCWall", "MyAecWall"}) {
        addType(name);
        document(text);
        EXPECT_TRUE(known("Known_Import")) << name;
        EXPECT_TRUE(known("Special_Import"));
        EXPECT_EQ(mapping("B", "Q", "Special_Export"), "mapped A P");
        for (const char* scope : {"None_Import", "Abstract_Import", "AbstractSpecial_Import"})
            EXPECT_FALSE(known(scope)) << scope;
    }
}

TEST_F(CustomMapping, AnnouncesSetsThatUsersMapTo) {
    const std::string text =
        custom("A.P", "Pset_Mine.Q", "Wall") + custom("A.R", "", "Wall") + standard("A.S", "Pset_Standard.Q", "Wall");
    QORIFCPSetQtoValidationService& validation = *QORIFCPSetQtoValidationService::getInstance();
    document(text);
    EXPECT_EQ(mapping("A", "P", "Wall_Import"), "mapped Pset_Mine Q");
    EXPECT_FALSE(validation.IsCustomPsetQto("PSET_MINE"));
    unsigned char on = 1;
    validation.SetIfcPsetQtoValidation(on);
    EXPECT_EQ(mapping("A", "P", "Wall_Import"), "mapped Pset_Mine Q") << "as it was built";
    document(text);
    EXPECT_FALSE(validation.IsCustomPsetQto("PSET_MINE")) << "the first lookup builds";
    EXPECT_EQ(mapping("A", "P", "Wall_Import"), "mapped PSET_MINE Q");
    EXPECT_EQ(mapping("A", "S", "Wall_Import"), "mapped Pset_Standard Q");
    EXPECT_TRUE(validation.IsCustomPsetQto("PSET_MINE"));
    for (const char* name : {"", "PSET_STANDARD"}) EXPECT_FALSE(validation.IsCustomPsetQto(name)) << name;
}

TEST_F(CustomMapping, KnowsNothingUnlessADocumentWasLoaded) {
    const std::string text = standard("A.P", "B.Q", "Wall");
    const auto answer = [&] { return mapping("A", "P", "Wall_Import"); };
    EXPECT_EQ(answer(), none) << "before any load";
    EXPECT_EQ(services->LoadCustomMapping(), E_UNEXPECTED);
    EXPECT_EQ(answer(), none);

    // The one file of the collection standard; two are none.
    folder.add("a/ifcCustomMapping", {"map.xmlx"}, "<IfcMapping>" + text + "</IfcMapping>");
    variables.set("QORDefaultCollectionStandard", (folder / "a").c_str());
    EXPECT_EQ(answer(), none) << "a lookup does not load";
    EXPECT_EQ(services->LoadCustomMapping(), S_OK);
    EXPECT_EQ(answer(), "mapped B Q");
    // Another instance has the same table.
    QORUnicodeString entity, property;
    const auto other = extension<QORIExchangeIFCCustomMappingServices>();
    EXPECT_EQ(other->GetCustomMapping("A", "P", "Wall_Import", entity, property), IFC_MAPPING_MAPPED);

    QORIFCOptionsFromXCAD::GetInstance()->SetXCADConversionOptionForIFC("IFC_Disable_Version_Mapping", "yes");
    EXPECT_EQ(answer(), none);
    QORIFCOptionsFromXCAD::DeleteInstance();
    EXPECT_EQ(answer(), "mapped B Q");

    folder.add("a/ifcCustomMapping", {"other.xml"}, "<IfcMapping/>");
    EXPECT_EQ(services->LoadCustomMapping(), E_UNEXPECTED);
    EXPECT_EQ(answer(), none) << "a load that fails leaves nothing";
    document(text); // not asked before it goes
    setupData(key, {folder.file("broken.xml", "<IfcMapping>")});
    EXPECT_LT(services->LoadCustomMapping(), 0);
    EXPECT_EQ(answer(), none);

    document(text);
    EXPECT_EQ(answer(), "mapped B Q");
    document("<Other/>");
    const auto before = objectmodeler::assertionCount();
    EXPECT_EQ(answer(), none);
    EXPECT_EQ(objectmodeler::assertionCount(), before + 1) << "a document without mappings is reported";
    EXPECT_EQ(answer(), none);
    EXPECT_EQ(objectmodeler::assertionCount(), before + 1) << "once, since nothing is built a second time";
    setupData(key, {folder.file("root.xml", "<Other>" + text + "</Other>")});
    EXPECT_EQ(services->LoadCustomMapping(), S_OK);
    EXPECT_EQ(answer(), none) << "another root";
}

namespace {

/// Counts what is alive and what is called.
struct CountedElement : CustoMappingElement {
    explicit CountedElement(const char* entity) : CustoMappingElement(entity, "", "", "", "", 1) {}
    int call() {
        called.emplace_back(GetFromEntity().utf8());
        return GetFromEntity() == stopAt ? 7 : 0;
    }
    int callConst() const { return const_cast<CountedElement*>(this)->call(); }
    static int callGlobal(CustoMappingElement* element) { return static_cast<CountedElement*>(element)->call(); }

    static inline std::vector<std::string> called;
    static inline QORUnicodeString stopAt;
};

QORHashTabCustoMappingElement makeTable() {
    return {QORHTAB_ComputeKeyCustoMappingElement, QORHTAB_CompareCustoMappingElement, 4};
}

} // namespace

TEST(CustomMappingTable, TellsElementsApartByTheirHashAlone) {
    CustoMappingElement element("IfcA", "P", "Type", "IfcB", "Q", "Wall_Import", 3);
    CustoMappingElement same("IFCAP", "wall_", "", "", "IMPORT", 9), other("IfcA", "P", "", "", "Wall_Export", 3);
    EXPECT_EQ(element.GetHashKey(), QORUnicodeString("IFCAPWALL_IMPORT").ComputeHashKey());
    EXPECT_EQ((element.GetFromEntity() + element.GetFromProperty() + element.GetFromType() + element.GetToEntity() +
               element.GetToProperty() + element.GetScope())
                  .utf8(),
              "IfcAPTypeIfcBQWall_Import");
    EXPECT_EQ(same.GetFromType(), "");
    EXPECT_EQ(QORHTAB_ComputeKeyCustoMappingElement(nullptr), 0U);
    EXPECT_EQ(QORHTAB_CompareCustoMappingElement(&element, &same), 0);
    for (CustoMappingElement* with : {&other, static_cast<CustoMappingElement*>(nullptr)}) {
        EXPECT_EQ(QORHTAB_CompareCustoMappingElement(&element, with), 1);
        EXPECT_EQ(QORHTAB_CompareCustoMappingElement(with, &element), 1);
    }
    EXPECT_EQ(QORHTAB_CompareCustoMappingElement(nullptr, nullptr), 1);

    QORHashTabCustoMappingElement table = makeTable();
    EXPECT_EQ(table.Insert(&element), &element);
    EXPECT_EQ(table.Insert(&same), &element);
    table.Insert(&other);
    EXPECT_EQ(table.Size(), 2);
    EXPECT_EQ(table.KeyLocate(static_cast<int>(same.GetHashKey())), &element);
    int bucket = 0, place = 0, unused = 0;
    EXPECT_EQ(table.KeyLocatePosition(static_cast<int>(other.GetHashKey()), bucket, place), 1);
    EXPECT_EQ(table.Retrieve(bucket, place), &other);
    EXPECT_EQ(table.LocatePosition(&same, bucket, unused), 1);
    EXPECT_EQ(table.Next(&same), &other);

    QORHashTabCustoMappingElement copy(table), assigned = makeTable();
    assigned = table;
    EXPECT_TRUE(copy == table && assigned == table);
    EXPECT_EQ(copy.Remove(&same), &element);
    EXPECT_TRUE(copy != table) << "a copy goes its own way";
    EXPECT_EQ(copy.RemovePosition(bucket, place), &other);
    EXPECT_EQ(copy.Size(), 0);
    auto& self = assigned;
    assigned = self;
    EXPECT_TRUE(assigned == table);
    assigned = std::move(self);
    EXPECT_TRUE(assigned == table);
    QORHashTabCustoMappingElement moved(std::move(assigned));
    copy = std::move(moved);
    EXPECT_TRUE(copy == table);
    // What was moved from is empty and usable.
    for (QORHashTabCustoMappingElement* left : {&assigned, &moved}) {
        EXPECT_EQ(left->Size() + left->Collisions(), 0);
        EXPECT_EQ(left->Locate(&element), nullptr);
        EXPECT_EQ(left->Insert(&element), &element);
        EXPECT_EQ(left->KeyLocate(static_cast<int>(same.GetHashKey())), &element);
    }
    moved = std::move(assigned);
    assigned.RemoveAll();
    EXPECT_EQ(assigned.Insert(&other), &other);
    EXPECT_EQ(moved.Locate(&same), &element);
    std::vector<CustoMappingElement*> walked;
    for (auto at = copy.CreateIterator(); !at.AtEnd(); ++at) walked.push_back(copy[at]);
    EXPECT_THAT(walked, ElementsAre(&element, &other));
}

TEST(CustomMappingTable, AppliesUntilAnAnswerIsNotZero) {
    CountedElement a("a"), b("b"), c("c"), absent("absent");
    QORHashTabCustoMappingElement table = makeTable();
    for (CountedElement* element : {&a, &b, &c}) table.Insert(element);
    const auto member = static_cast<int (CustoMappingElement::*)()>(&CountedElement::call);
    const auto constMember = static_cast<int (CustoMappingElement::*)() const>(&CountedElement::callConst);
    struct Case {
        CustoMappingElement* start;
        const char* stopAt;
        std::vector<std::string> called;
        CustoMappingElement* last;
        int result;
    };
    for (const Case& k : {Case{nullptr, "", {"a", "b", "c"}, &c, 0}, Case{nullptr, "b", {"a", "b"}, &b, 7},
                          Case{&b, "", {"b", "c"}, &c, 0}, Case{&b, "a", {"b", "c"}, &c, 0},
                          Case{&c, "c", {"c"}, &c, 7}, Case{&absent, "", {}, &absent, 5}}) {
        for (const int kind : {0, 1, 2}) {
            SCOPED_TRACE(std::string(k.stopAt) + std::to_string(kind));
            const auto apply = [&](CustoMappingElement** last, int* result) {
                CountedElement::called.clear();
                CountedElement::stopAt = k.stopAt;
                return kind == 0   ? table.ApplyMemberFunct(member, k.start, last, result)
                       : kind == 1 ? table.ApplyMemberFunctConst(constMember, k.start, last, result)
                                   : table.ApplyGlobalFunct(CountedElement::callGlobal, k.start, last, result);
            };
            CustoMappingElement* last = &absent;
            int result = 5;
            EXPECT_EQ(apply(&last, &result), static_cast<int>(k.called.size()));
            EXPECT_EQ(CountedElement::called, k.called);
            EXPECT_EQ(last, k.last);
            EXPECT_EQ(result, k.result);
            EXPECT_EQ(apply(nullptr, nullptr), static_cast<int>(k.called.size()));
            EXPECT_EQ(CountedElement::called, k.called);
        }
    }
}

TEST(CustomMappingTable, DestroysItsElementsOnlyWhenTold) {
    QORHashTabCustoMappingElement table = makeTable();
    // Memory checks see what is destroyed twice or not at all.
    for (int i = 0; i < 100; ++i) table.Insert(new CustoMappingElement(std::to_string(i).c_str(), "", "", "", "", 1));
    { const QORHashTabCustoMappingElement copy = table; }
    EXPECT_EQ(table.Size(), 100);
    table.ApplyDelete();
    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Next(nullptr), nullptr);
    table.ApplyDelete();
    EXPECT_EQ(table.Size(), 0);
}

} // namespace velkor::test
