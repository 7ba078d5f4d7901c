#include "MappingFixture.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"

#include <optional>

namespace velkor::test {

namespace {

constexpr const char* key = "QORAECDataExchangeResources|IFCPLMAttributesMapping";

/// The library reads the documents once: each test loads it after they were put in place, and unloads it.
class PLMAttributesMapping : public MappingFixture {
protected:
    void load() {
        library.emplace();
        services = component<QORIExchangeIFCPLMAttributesMappingServices>("ExchangeIFCPLMAttributesMappingServices");
    }
    void unload() {
        services = {};
        library.reset();
    }
    std::string document(const std::string& name, const std::string& content) const {
        return folder.file(name, "<IfcPLMMappingAttr>" + content + "</IfcPLMMappingAttr>");
    }
    /// Set and property, or "none" when the outputs were rightly left alone.
    std::string property(const std::string& type, const std::string& attribute) const {
        QORUnicodeString set("was"), name("was");
        const HRESULT result = services->GetIFCPropertyFromPLMAttribute(type.c_str(), attribute.c_str(), set, name);
        std::string text((set + "." + name).utf8());
        return result == S_OK ? text : result == E_FAIL && text == "was.was" ? "none" : "failed with " + text;
    }

    std::optional<Library> library;
    QORIExchangeIFCPLMAttributesMappingServices_var services;
};

/// A line that exports an attribute as a property of a set.
std::string line(const std::string& attribute, const std::string& set, const std::string& rest = {}) {
    return "<fromAttributes plmProp='" + attribute + "' propSetName='" + set + "' ifcProp='Prop' " + rest + "/>\n";
}
std::string include(const std::string& id) {
    return "<PLMAttrInclude IncludedId='" + id + "'/>";
}
std::string group(const std::string& id, const std::string& content) {
    return "<PLMAttrIncluded id='" + id + "'>" + content + "</PLMAttrIncluded>\n";
}
std::string mapping(const std::string& type, const std::string& content) {
    return "<IfcPLMMapping Name='" + type + "'>" + content + "</IfcPLMMapping>\n";
}

} // namespace

TEST_F(PLMAttributesMapping, TakesLinesThatCountForExport) {
    setupData(
        key,
        {document(
            "map.xml",
            mapping("Wall", line("A", "Set") + line("B", "Both", "propExpose='Both'") + "text<!-- -->" +
                                line("C", "Out", "propExpose='Export_Only'") + line("D", "Empty", "propExpose=''") +
                                line("E", "In", "propExpose='Import_Only'") + line("F", "Case", "propExpose='both'") +
                                line("a", "Again") +
                                "<FromAttributes plmProp='G'/><fromAttributes plmProp='H'/>"
                                "<fromAttributes propSetName='S' ifcProp='P'/>") +
                mapping("wall", line("A", "Other type") + line("I", "More")) + mapping("", line("WallA", "No type")) +
                mapping("IfcKey5151", line("Wall_Import", "One")) + mapping("IfcKey59133", line("Wall_Import", "Two")) +
                "<Deep>" + mapping("Wall", line("J", "Deep")) + "</Deep>")});
    load();
    // One hash does not make two one, nor does one text.
    for (const auto& [type, attribute, answer] : casesOf(R"(Wall: A -> Set.Prop | B -> Both.Prop | C -> Out.Prop
        Wall: D -> Empty.Prop | E -> none | F -> none | G -> none | H -> . |  -> S.P | I -> More.Prop | J -> none
        WALL: a -> Set.Prop
        Slab: A -> none
        : A -> none | WallA -> No type.Prop
        Wal: lA -> none
        IfcKey5151: Wall_Import -> One.Prop
        IfcKey59133: Wall_Import -> Two.Prop)"))
        EXPECT_EQ(property(type, attribute), answer) << type << '.' << attribute;
}

TEST_F(PLMAttributesMapping, BringsInGroups) {
    std::string text = group("Import", line("I", "s", "propExpose='Import_Only'")) +
                       group("First", line("F", "first") + line("S", "first") + include("Later")) +
                       group("Second", line("s", "second") + include("Nobody")) + group("Nothing", include("Import")) +
                       group("Later", line("L", "later") + include("Last")) + group("Last", line("Z", "last")) +
                       group("Last", line("Y", "again")) +
                       group("Self", include("self") + include("First") + line("O", "own")) +
                       group("First", line("I", "an id counts once")) +
                       group("Alike", line("ı", "dotless") + line("i", "dotted") + line("I", "refused"));
    // Answers to F, S, L, Z, Y, O, I. Whatever an include names, all groups above come with it.
    const std::vector<Case> cases = casesOf(R"(First:  -> first first later none none none none
        second:  -> first second later none none none none
        Nothing:  -> first first later none none none none
        Later:  -> first first later last again none none
        Last:  -> none none none last none none none
        Self:  -> first first later last again own none
        Import:  -> none none none none none none none
        Alike:  -> none none none none none none dotted
        Nobody:  -> none none none none none none none)");
    for (const Case& c : cases) text += mapping("T" + c.subject, include(c.subject));
    text += mapping("Mixed", line("f", "mine") + include("First") + line("L", "too late"));
    setupData(key, {document("map.xml", text)});
    load();
    const auto answers = [&](const std::string& type) {
        std::string result;
        for (const char* attribute : {"F", "S", "L", "Z", "Y", "O", "I"}) {
            const std::string answer = property(type, attribute);
            result += answer.substr(0, answer.find('.')) + ' ';
        }
        result.pop_back();
        return result;
    };
    for (const Case& c : cases) EXPECT_EQ(answers("T" + c.subject), c.expected) << c.subject;
    EXPECT_EQ(property("TAlike", "ı"), "dotless.Prop") << "in upper case the two are the same";
    EXPECT_EQ(answers("Mixed"), "mine first later none none none none");
}

TEST_F(PLMAttributesMapping, ReadsAllFilesOnceAndEachForItself) {
    folder.add("IfcPLMAttributesMapping", {"3.xml"},
               "<IfcPLMMappingAttr>" + group("G", line("A", "three") + line("B", "three")) +
                   mapping("Wall", line("C", "late") + line("D", "new")) + mapping("Slab", include("G")) +
                   mapping("Door", include("Alone")) + mapping("Piping_RigidPipe", line("V_WallThickness", "file")) +
                   "</IfcPLMMappingAttr>");
    standard(folder.path);
    setupData(key, {document("1.xml", group("G", line("A", "one")) + mapping("Wall", include("G") + line("C", "one"))),
                    folder.file("broken.xml", "<IfcPLMMappingAttr>"), document("2.xml", group("Alone", line("E", "s"))),
                    folder / "none.xml", document("4.xml", mapping("Roof", include("G")))});
    load();
    EXPECT_EQ(property("Wall", "A"), "one.Prop");
    EXPECT_EQ(property("Wall", "C"), "one.Prop") << "the first line stays";
    EXPECT_EQ(property("Wall", "D"), "new.Prop");
    EXPECT_EQ(property("Wall", "B"), "none");
    EXPECT_EQ(property("Slab", "A"), "three.Prop") << "a group of the file itself";
    for (const char* attribute : {"A", "E"}) {
        EXPECT_EQ(property("Door", attribute), "none") << "a group of another file";
        EXPECT_EQ(property("Roof", attribute), "none");
    }
    EXPECT_EQ(property("Piping_RigidPipe", "V_WallThickness"), "file.Prop");
    EXPECT_EQ(property("Piping_FlexibleType", "V_WallThickness"), "Pset_PipeSegmentTypeCommon.InnerDiameter");

    setupData(key, {document("5.xml", mapping("Wall", line("A", "four")))});
    EXPECT_EQ(services->LoadMapping(), S_OK);
    EXPECT_EQ(property("Wall", "A"), "one.Prop") << "read once";
    unload();
    load();
    EXPECT_EQ(property("Wall", "A"), "four.Prop") << "and forgotten with the library";
    services = extension<QORIExchangeIFCPLMAttributesMappingServices>();
    EXPECT_EQ(property("Wall", "C"), "late.Prop") << "another instance has the same";
}

TEST_F(PLMAttributesMapping, KnowsTheWallThicknessOfPipesByItself) {
    folder.add("IfcPLMAttributesMapping", {"1.xml"},
               "<IfcPLMMappingAttr>" + mapping("Wall", line("A", "s")) + "</IfcPLMMappingAttr>");
    standard(folder.path);
    for (const bool hasFinder : {false, true}) {
        if (hasFinder) setupData("another key", {});
        load();
        EXPECT_EQ(services->LoadMapping(), S_OK);
        EXPECT_EQ(property("Wall", "A"), hasFinder ? "s.Prop" : "none") << "without a finder no file is read";
        for (const char* type : {"Piping_RigidPipe", "Piping_FlexibleType"}) {
            EXPECT_EQ(property(type, "V_WallThickness"), "Pset_PipeSegmentTypeCommon.InnerDiameter");
            for (const char* attribute : {"", "v_wallthickness", "V_Wall"})
                EXPECT_EQ(property(type, attribute), "none");
        }
        for (const char* type : {"", "piping_rigidpipe", "Piping"})
            EXPECT_EQ(property(type, "V_WallThickness"), "none");
        unload();
    }
}

} // namespace velkor::test
