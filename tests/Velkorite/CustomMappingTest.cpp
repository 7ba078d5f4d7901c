#include "MappingFixture.h"
#include "Matchers.h"
#include "PrivateOperation.h"
#include "QORHashTabCustoMappingElement.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCPSetQtoValidationService.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/knowledge/TypeDictionary.h"

namespace velkor::test {

namespace {

constexpr const char* key = "QORAECDataExchangeResources|IFCCustomMapping";
constexpr const char* none = "1003 was was";

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
    /// Lines of a document: "section scope: entity.property -> entity.property".
    static std::string lines(std::string_view table) {
        const auto names = [](const std::string& text, const std::string& side) {
            const std::size_t dot = text.find('.');
            return side + "Entity='" + text.substr(0, dot) + "' " + side + "Property='" + text.substr(dot + 1) + "' ";
        };
        std::string result;
        for (const auto& [place, from, to] : casesOf(table)) {
            const std::size_t blank = place.find(' ');
            result += '<' + place.substr(0, blank) + ' ' + names(from, "from") + names(to, "to") + "scope='" +
                      place.substr(blank + 1) + "'/>\n";
        }
        return result;
    }
    std::string mapping(const std::string& entity, const std::string& property, const std::string& scope) const {
        return answer<2>([&](auto& toEntity, auto& toProperty) {
            return services->GetCustomMapping(entity.c_str(), property.c_str(), scope.c_str(), toEntity, toProperty);
        });
    }

    const QORIExchangeIFCCustomMappingServices_var services =
        component<QORIExchangeIFCCustomMappingServices>("ExchangeIFCCustomMappingServices");
};

} // namespace

TEST_F(CustomMapping, MapsByScopeAndDirection) {
    document(lines(R"(CustomMapping Wall: A.P -> Custom.Q | C.P -> Pset_c.Q | D.P -> PSET_C.q
        StandardMapping Wall;Slab: A.P -> Standard.Q
        StandardMapping Wall: A. -> . | B.P -> First.X | IFCKEY5151. -> One. | IFCKEY59133. -> Two.
        StandardMapping WALL: b.p -> Later.Y
        StandardMapping : E.P -> F.Q
        StandardMapping ;;Beam;; Roof ;: E.P -> F.Q
        standardMapping Wall: G. -> H.)") +
             "<StandardMapping fromEntity='E' toEntity='F'/><Deep>" + lines("StandardMapping Wall: G.P -> H.P") +
             "</Deep>");
    // Two texts with one hash are one element: the later one.
    for (const auto& [scope, from, to] :
         casesOf(R"(Wall_Import: A.P -> 1002 Custom Q | A. -> 1002   | .AP -> 1002 Custom Q
        Wall_Import: C.P -> 1002 Pset_c Q | G.P -> 1003 was was | G. -> 1003 was was
        Wall_Import: IFCKEY5151. -> 1002 Two  | IFCKEY59133. -> 1002 Two 
        WALL_import: a.p -> 1002 Custom Q
        wall_Import: B.P -> 1002 Later Y
        Slab_Import: A.P -> 1002 Standard Q
        Wall_Export: Custom.Q -> 1002 A P | Pset_C.Q -> 1002 D P | Standard.Q -> 1003 was was | A.P -> 1003 was was
        Slab_Export: Standard.Q -> 1003 was was
        Wall: A.P -> 1003 was was
        : A.P -> 1003 was was
        _Import: E.P -> 1003 was was | E. -> 1003 was was
        Beam_Import: E.P -> 1002 F Q)")) {
        const std::size_t dot = from.find('.');
        EXPECT_EQ(mapping(from.substr(0, dot), from.substr(dot + 1), scope), to) << from << ' ' << scope;
    }
    EXPECT_EQ(mapping("E", "P", " Roof _Import"), "1002 F Q") << "blanks are part of a scope";
    EXPECT_EQ(objectmodeler::assertionCount(), 0U);
}

TEST_F(CustomMapping, TakesScopesForTypesOfBuildings) {
    using knowledge::TypeKind;
    const std::string text = lines("CustomMapping Known;None;Abstract;Special;AbstractSpecial;known: A.P -> B.Q");
    const auto known = [&](const std::string& scope) { return mapping("A", "P", scope + "_Import") != none; };
    for (const char* name : {"Some", "ifcAtTheStart", "AECAtTheStart"}) {
        knowledge::addType({name, TypeKind::Knowledge, "", false});
        document(text);
        EXPECT_TRUE(known("None")) << name << ": no type of buildings, names are as they are written";
    }
    knowledge::addType({"Abstract", TypeKind::Knowledge, "", true});
    knowledge::addType({"Known", TypeKind::Knowledge, "", false});
    knowledge::addType({"Special", TypeKind::Specialization, "", false});
    knowledge::addType({"AbstractSpecial", TypeKind::Specialization, "", true});
    for (const char* name : {"MyIFCWall", "MyAecWall"}) {
        knowledge::addType({name, TypeKind::Knowledge, "", false});
        document(text);
        for (const char* scope : {"Known", "Special"}) EXPECT_TRUE(known(scope)) << name << scope;
        EXPECT_EQ(mapping("B", "Q", "Special_Export"), "1002 A P");
        for (const char* scope : {"None", "Abstract", "AbstractSpecial"}) EXPECT_FALSE(known(scope)) << scope;
    }
}

TEST_F(CustomMapping, AnnouncesSetsThatUsersMapTo) {
    const std::string text =
        lines("CustomMapping Wall: A.P -> Pset_Mine.Q | A.R -> .\nStandardMapping Wall: A.S -> Pset_Standard.Q");
    QORIFCPSetQtoValidationService& validation = *QORIFCPSetQtoValidationService::getInstance();
    document(text);
    EXPECT_EQ(mapping("A", "P", "Wall_Import"), "1002 Pset_Mine Q");
    EXPECT_FALSE(validation.IsCustomPsetQto("PSET_MINE"));
    unsigned char on = 1;
    validation.SetIfcPsetQtoValidation(on);
    EXPECT_EQ(mapping("A", "P", "Wall_Import"), "1002 Pset_Mine Q") << "as it was built";
    document(text);
    EXPECT_FALSE(validation.IsCustomPsetQto("PSET_MINE")) << "the first lookup builds";
    EXPECT_EQ(mapping("A", "P", "Wall_Import"), "1002 PSET_MINE Q");
    EXPECT_EQ(mapping("A", "S", "Wall_Import"), "1002 Pset_Standard Q");
    EXPECT_TRUE(validation.IsCustomPsetQto("PSET_MINE"));
    for (const char* name : {"", "PSET_STANDARD"}) EXPECT_FALSE(validation.IsCustomPsetQto(name)) << name;
}

TEST_F(CustomMapping, KnowsNothingUnlessADocumentWasLoaded) {
    const std::string text = lines("StandardMapping Wall: A.P -> B.Q");
    const auto found = [&] { return mapping("A", "P", "Wall_Import"); };
    EXPECT_EQ(found(), none) << "before any load";
    EXPECT_EQ(services->LoadCustomMapping(), E_UNEXPECTED);
    EXPECT_EQ(found(), none);

    // The one file of the collection standard; two are none.
    folder.add("a/ifcCustomMapping", {"map.xmlx"}, "<IfcMapping>" + text + "</IfcMapping>");
    standard({}, folder / "a");
    EXPECT_EQ(found(), none) << "a lookup does not load";
    EXPECT_EQ(services->LoadCustomMapping(), S_OK);
    EXPECT_EQ(found(), "1002 B Q");
    // Another instance has the same table.
    EXPECT_EQ(answer<2>([](auto& entity, auto& property) {
                  return extension<QORIExchangeIFCCustomMappingServices>()->GetCustomMapping("A", "P", "Wall_Import",
                                                                                             entity, property);
              }),
              "1002 B Q");

    QORIFCOptionsFromXCAD::GetInstance()->SetXCADConversionOptionForIFC("IFC_Disable_Version_Mapping", "yes");
    EXPECT_EQ(found(), none);
    QORIFCOptionsFromXCAD::DeleteInstance();
    EXPECT_EQ(found(), "1002 B Q");

    folder.add("a/ifcCustomMapping", {"other.xml"}, "<IfcMapping/>");
    EXPECT_EQ(services->LoadCustomMapping(), E_UNEXPECTED);
    EXPECT_EQ(found(), none) << "a load that fails leaves nothing";
    document(text); // not asked before it goes
    setupData(key, {folder.file("broken.xml", "<IfcMapping>")});
    EXPECT_LT(services->LoadCustomMapping(), 0);
    EXPECT_EQ(found(), none);

    document(text);
    EXPECT_EQ(found(), "1002 B Q");
    document("<Other/>");
    const auto before = objectmodeler::assertionCount();
    EXPECT_EQ(found(), none);
    EXPECT_EQ(objectmodeler::assertionCount(), before + 1) << "a document without mappings is reported";
    EXPECT_EQ(found(), none);
    EXPECT_EQ(objectmodeler::assertionCount(), before + 1) << "once, since nothing is built a second time";
    setupData(key, {folder.file("root.xml", "<Other>" + text + "</Other>")});
    EXPECT_EQ(services->LoadCustomMapping(), S_OK);
    EXPECT_EQ(found(), none) << "another root";
}

namespace {

/// Notes what is called.
struct CountedElement : CustoMappingElement {
    explicit CountedElement(const char* entity) : CustoMappingElement(entity, "", "", "", "", 1) {}
    int call() {
        called += GetFromEntity().utf8();
        return GetFromEntity() == stopAt.c_str() ? 7 : 0;
    }
    int callConst() const { return const_cast<CountedElement*>(this)->call(); }
    static int callGlobal(CustoMappingElement* element) { return static_cast<CountedElement*>(element)->call(); }

    static inline std::string called, stopAt;
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
    CustoMappingElement* const null = nullptr;
    for (const auto& [a, b] : {std::pair{&element, &other}, {&element, null}, {null, &element}, {null, null}})
        EXPECT_EQ(QORHTAB_CompareCustoMappingElement(a, b), 1);

    QORHashTabCustoMappingElement table = makeTable();
    for (CustoMappingElement* inserted : {&element, &same}) EXPECT_EQ(table.Insert(inserted), &element);
    table.Insert(&other);
    EXPECT_EQ(table.Size(), 2);
    EXPECT_EQ(table.KeyLocate(static_cast<int>(same.GetHashKey())), &element);
    int bucket = 0, place = 0, unused = 0;
    EXPECT_EQ(table.KeyLocatePosition(static_cast<int>(other.GetHashKey()), bucket, place), 1);
    EXPECT_EQ(table.Retrieve(bucket, place), &other);
    EXPECT_EQ(table.LocatePosition(&same, bucket, unused), 1);
    EXPECT_EQ(table.Next(&same), &other);
    std::vector<CustoMappingElement*> walked;
    for (auto at = table.CreateIterator(); !at.AtEnd(); ++at) walked.push_back(table[at]);
    EXPECT_THAT(walked, ElementsAre(&element, &other));

    QORHashTabCustoMappingElement copy(table), assigned = makeTable();
    EXPECT_EQ(copy.Remove(&same), &element);
    EXPECT_TRUE(copy != table) << "a copy goes its own way";
    EXPECT_EQ(copy.RemovePosition(bucket, place), &other);
    EXPECT_EQ(copy.Size(), 0);
    assigned = table;
    auto& self = assigned;
    assigned = self;
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
        EXPECT_EQ(left->Locate(&same), &element);
        left->RemoveAll();
        EXPECT_EQ(left->Insert(&other), &other);
    }
}

TEST(CustomMappingTable, AppliesUntilAnAnswerIsNotZero) {
    CountedElement elements[] = {CountedElement("a"), CountedElement("b"), CountedElement("c"), CountedElement("d")};
    QORHashTabCustoMappingElement table = makeTable();
    for (int i = 0; i < 3; ++i) table.Insert(&elements[i]);
    const auto member = static_cast<int (CustoMappingElement::*)()>(&CountedElement::call);
    const auto constMember = static_cast<int (CustoMappingElement::*)() const>(&CountedElement::callConst);
    // Where it starts and stops; what is called, the last of them and the result.
    for (const auto& [from, stopAt, expected] : casesOf(R"(:  -> abc c 0 | b -> ab b 7
        b:  -> bc c 0 | a -> bc c 0
        c: c -> c c 7
        d:  ->  d 5)")) {
        CountedElement::stopAt = stopAt;
        CustoMappingElement* start = from.empty() ? nullptr : &elements[from[0] - 'a'];
        for (const int kind : {0, 1, 2}) {
            const auto apply = [&](CustoMappingElement** last, int* result) {
                CountedElement::called.clear();
                return kind == 0   ? table.ApplyMemberFunct(member, start, last, result)
                       : kind == 1 ? table.ApplyMemberFunctConst(constMember, start, last, result)
                                   : table.ApplyGlobalFunct(CountedElement::callGlobal, start, last, result);
            };
            CustoMappingElement* last = &elements[3];
            int result = 5;
            const int calls = apply(&last, &result);
            const std::string called = CountedElement::called;
            EXPECT_EQ(called + ' ' + last->GetFromEntity().ConvertToChar() + ' ' + std::to_string(result), expected);
            EXPECT_EQ(calls, called.size());
            EXPECT_EQ(apply(nullptr, nullptr), calls);
            EXPECT_EQ(CountedElement::called, called);
        }
    }
}

TEST(CustomMappingTable, DestroysItsElementsOnlyWhenTold) {
    QORHashTabCustoMappingElement table = makeTable();
    // Memory checks see what is destroyed twice or not at all.
    for (int i = 0; i < 100; ++i) table.Insert(new CustoMappingElement(std::to_string(i).c_str(), "", "", "", "", 1));
    { const QORHashTabCustoMappingElement copy = table; }
    EXPECT_EQ(table.Size(), 100);
    for (int time = 0; time < 2; ++time) {
        table.ApplyDelete();
        EXPECT_EQ(table.Size(), 0);
        EXPECT_EQ(table.Next(nullptr), nullptr);
    }
}

} // namespace velkor::test
