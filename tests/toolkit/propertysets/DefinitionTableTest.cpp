#include "velkor/propertysets/DefinitionTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velkor {

using testing::HasSubstr;

namespace {

const std::string hash(64, 'a');

PropertyDefinition property(PropertyKind kind, const std::string& name, const std::string& valueType = {}) {
    PropertyDefinition result;
    result.kind = kind;
    result.name = name;
    result.valueType = valueType;
    return result;
}

// Something of all that a table can say, in words that look like its own.
DefinitionTable everything() {
    DefinitionTable table{
        .release = "IFC4", .entries = {}, .refused = {{"b c.xml", hash, "not \"well-formed\"\nat all"}}};
    table.entries.push_back({"Pset_A.xml", hash, {}, {{41, "type-missing", "\"Width\" \\ any will do"}, {0, "", ""}}});
    SetDefinition& set = table.entries.back().definition;
    set.name = "Pset_A";
    set.templateType = TemplateType::ProfileDriven;
    set.classes = {
        {"IfcActuator", "ELECTRICACTUATOR"}, {"IfcDiscreteAccessory", "Corner fixing plate"}, {"IfcWall", ""}};
    set.properties = {property(PropertyKind::Single, "unit", "unit"),
                      property(PropertyKind::Enumerated, "# Über\ttab")};
    set.properties[0].unitType = "LENGTHUNIT";
    set.properties[1].enumerators = {"values", "by", "", "NOT KNOWN", "\"", "a\\nb"};
    set.properties[1].enumeration = "list";
    PropertyDefinition curve = property(PropertyKind::Table, "T", "IfcRatioMeasure");
    curve.definingType = "IfcReal";
    curve.definingUnitType = "by-unit";
    PropertyDefinition inner = property(PropertyKind::Complex, "Inner"),
                       outer = property(PropertyKind::Complex, "Outer");
    inner.members = {property(PropertyKind::List, "L", "IfcLabel"), property(PropertyKind::Bounded, "B")};
    outer.usageName = "Use of it";
    outer.members = {curve, inner, property(PropertyKind::Reference, "R", "IfcPerson")};
    set.properties.push_back(outer);
    set.properties.push_back(inner);
    set.properties.push_back(property(PropertyKind::Single, ""));
    table.entries.push_back({"Qto_B.xml", hash, {}, {}});
    SetDefinition& quantities = table.entries.back().definition;
    quantities.name = "Qto_B";
    quantities.isQuantitySet = true;
    quantities.methods = {"BaseQuantities", "DIN 277"};
    for (auto i = static_cast<unsigned>(PropertyKind::Length); i <= static_cast<unsigned>(PropertyKind::Number); ++i)
        quantities.properties.push_back(property(static_cast<PropertyKind>(i), std::to_string(i)));
    return table;
}

} // namespace

TEST(DefinitionTableTest, WhatIsWrittenReadsBackTheSame) {
    const DefinitionTable table = everything();
    const std::string text = writtenTable(table);
    const auto read = readTable(text);
    ASSERT_TRUE(read) << read.error().line << ": " << read.error().message << '\n' << text;
    EXPECT_TRUE(*read == table) << text << writtenTable(*read);
    EXPECT_THAT(text, HasSubstr("\nproperty-set Pset_A profile-driven\n  source Pset_A.xml aaaa"));
    EXPECT_THAT(text, HasSubstr("\n  class IfcActuator ELECTRICACTUATOR\n"));
    EXPECT_THAT(text, HasSubstr("\n  complex Outer usage \"Use of it\"\n"
                                "    table T IfcRatioMeasure by IfcReal by-unit \"by-unit\"\n"
                                "    complex Inner\n      list L IfcLabel\n"));

    // As other systems end lines, and with what people add.
    std::string other = "\r\n# a remark\r\n";
    for (const char letter : text) other += letter == '\n' ? std::string("\r\n") : std::string(1, letter);
    const auto readAgain = readTable(other);
    ASSERT_TRUE(readAgain);
    EXPECT_TRUE(*readAgain == table);
}

TEST(DefinitionTableTest, ErrorsSayWhereAndWhatWasExpected) {
    const std::string head = "release IFC4\n", source = "  source a.xml " + hash + '\n';
    const std::string set = head + "property-set Pset_B\n" + source;
    const struct {
        std::string text;
        std::uint64_t line;
        std::string message;
    } cases[] = {
        {"", 0, "expected a release, found the end"},
        {"\n\n", 2, "expected a release, found the end"},
        {"property-set A\n", 1, "expected the release, found \"property-set\""},
        {"release\n", 1, "expected the name of a release, found the end"},
        {"release IFC4 IFC4\n", 1, "expected the end of the line, found \"IFC4\""},
        {head + "set A\n", 2, "expected a set or a file refused, found \"set\""},
        {head + "property-set A driven\n", 2, "expected a template type, found \"driven\""},
        {head + "property-set A\nproperty-set B\n", 3, "expected the source of \"A\" before this, found \"B\""},
        {head + "property-set A\n", 2, "expected the source of \"A\" before this, found the end"},
        {head + "property-set A\n  source a 12ab\n", 3, "expected its SHA-256, 64 hexadecimal digits, found \"12ab\""},
        {head + source, 2, "expected a set before this, found \"source\""},
        {set + "property-set Pset_A\n", 4, "expected a name behind \"Pset_B\", found \"Pset_A\""},
        {set + "property-set Pset_B\n", 4, "expected a name behind \"Pset_B\", found \"Pset_B\""},
        {set + "refused b " + hash + "\n", 4, "expected a reason, found the end"},
        {set + "refused b " + hash + " why\n  method a\n", 5, "expected a set before this, found \"method\""},
        {set + " method a\n", 4, "expected an even number of blanks before the line, found the end"},
        {set + "  sinlge A\n", 4, "expected a fact of a set, found \"sinlge\""},
        {set + "  single\n", 4, "expected the name of a property, found the end"},
        {set + "  single A IfcLabel IfcText\n", 4,
         "expected another fact of a property that is \"single\", found \"IfcText\""},
        {set + "  single A values B\n", 4, "expected another fact of a property that is \"single\", found \"values\""},
        {set + "  list A unit B unit C\n", 4, "expected another fact of a property that is \"list\", found \"unit\""},
        {set + "  table A by\n", 4, "expected a word behind \"by\", found the end"},
        {set + "  fault x kind text\n", 4, "expected a line number, found \"x\""},
        {set + "  fault -1 kind text\n", 4, "expected a line number, found \"-1\""},
        {set + "  fault 99999999999 kind text\n", 4, "expected a line number, found \"99999999999\""},
        {set + "  method \"a\n", 4, "expected a quotation mark at the end of the word, found \"a\""},
        {set + "  method \"a\"b\n", 4, "expected a blank behind the quotation mark, found \"a\""},
        {set + "    single A\n", 4, "expected less indentation, found \"single\""},
        {set + "  single A\n    single B\n", 5, "expected less indentation, found \"single\""},
        {set + "  complex A\n      single B\n", 5, "expected less indentation, found \"single\""},
        {set + "  complex A\n    class B\n", 5, "expected a property, found \"class\""},
    };
    for (const auto& [text, line, message] : cases) {
        const auto read = readTable(text);
        ASSERT_FALSE(read) << text;
        EXPECT_EQ(read.error().message, message) << text;
        EXPECT_EQ(read.error().line, line) << text;
    }
    std::string deep = set;
    for (std::size_t depth = 1; depth < 100'000; depth *= 2) deep += std::string(2 * depth, ' ') + "complex A\n";
    EXPECT_FALSE(readTable(deep));
    deep = set;
    for (std::size_t depth = 1; depth < 2'000; ++depth) deep += std::string(2 * depth, ' ') + "complex A\n";
    EXPECT_EQ(readTable(deep).error().message, "expected less indentation, found \"complex\"");
}

} // namespace velkor
