#include "velkor/sdai/Dictionary.h"
#include "Matchers.h"

#include "SampleSchema.h"

namespace velkor::sdai::test {

class Dictionary : public testing::Test {
protected:
    Dictionary() : schema(sample.restore().value()) {}

    const EntityDefinition& entity(std::string_view name) const { return *schema->entity(name); }
    static std::vector<std::string> names(const EntityDefinition& entity) {
        std::vector<std::string> result;
        for (const AttributeSlot& slot : entity.attributes()) {
            result.push_back(std::string(slot.attribute->owner().name()) + '.' + std::string(slot.attribute->name()) +
                             (slot.isDerived ? "*" : ""));
        }
        return result;
    }

    SampleSchema sample;
    std::shared_ptr<const SchemaDefinition> schema;
};

TEST_F(Dictionary, FindsTypesAndEntitiesByNameOfAnyCase) {
    EXPECT_EQ(schema->entity("Part"), schema->entities()[2]);
    EXPECT_EQ(schema->definedType("operand"), schema->definedTypes()[4]);
    EXPECT_EQ(schema->entity("LABEL"), nullptr);
    EXPECT_EQ(schema->definedType("PART"), nullptr);
    EXPECT_EQ(schema->named("PART"), schema->entity("PART"));
    for (const char* unknown : {"", "PAR", "PARTS", "PA[T", "PART ", "SAMPLE"}) {
        EXPECT_EQ(schema->named(unknown), nullptr) << unknown;
    }
}

TEST_F(Dictionary, KnowsTheEntityTree) {
    EXPECT_EQ(entity("TWIG").supertype(), &entity("PART"));
    EXPECT_EQ(entity("ROOT").supertype(), nullptr);
    EXPECT_THAT(entity("ROOT").subtypes(), ElementsAre(&entity("LEAF"), &entity("PART")));
    EXPECT_TRUE(entity("ROOT").isAbstract());
    EXPECT_FALSE(entity("PART").isAbstract());

    // Every pair, against what the supertypes say.
    for (const EntityDefinition* a : schema->entities()) {
        for (const EntityDefinition* b : schema->entities()) {
            const EntityDefinition* up = a;
            while (up != nullptr && up != b) up = up->supertype();
            EXPECT_EQ(a->isKindOf(*b), up != nullptr) << a->name() << ' ' << b->name();
        }
    }
    EXPECT_TRUE(entity("TWIG").isKindOf("ROOT"));
    EXPECT_FALSE(entity("TWIG").isKindOf("LABEL"));
}

TEST_F(Dictionary, PlacesAttributesAsInstancesHoldThem) {
    const auto attribute = [this](const char* owner, const char* name) { return entity(owner).attribute(name); };
    EXPECT_THAT(names(entity("ROOT")), ElementsAre("ROOT.NAME", "ROOT.SIZE"));
    EXPECT_THAT(names(entity("PART")), ElementsAre("ROOT.NAME", "PART.SIZE*", "PART.LEFT"));
    EXPECT_THAT(names(entity("TWIG")), ElementsAre("ROOT.NAME", "PART.SIZE*", "PART.LEFT"));
    EXPECT_THAT(names(entity("LEAF")), ElementsAre("LEAF.NAME", "ROOT.SIZE", "LEAF.PARTS"));
    EXPECT_TRUE(entity("OTHER").attributes().empty());

    const EntityDefinition& twig = entity("TWIG");
    for (const auto& [name, index] : {std::pair{"NAME", 0}, {"SIZE", 1}, {"left", 2}, {"DIM", -1}, {"PARTS", -1}}) {
        EXPECT_EQ(twig.attributeIndex(name), index) << name;
    }
    EXPECT_TRUE(twig.attribute("DIM")->isDerived());
    EXPECT_EQ(twig.attribute("PARTS"), nullptr);
    EXPECT_THAT(twig.derivedAttributes(), ElementsAre(attribute("PART", "DIM")));
    EXPECT_EQ(attribute("PART", "SIZE")->redeclared(), attribute("ROOT", "SIZE"));
    EXPECT_EQ(attribute("LEAF", "NAME")->redeclared(), attribute("ROOT", "NAME"));
    EXPECT_EQ(attribute("ROOT", "NAME")->redeclared(), nullptr);
    EXPECT_TRUE(attribute("ROOT", "SIZE")->isOptional());
    EXPECT_EQ(entity("PART").ownAttributes().size(), 3U);

    ASSERT_EQ(entity("LEAF").uniquenessRules().size(), 1U);
    const UniquenessRule& rule = entity("LEAF").uniquenessRules()[0];
    EXPECT_EQ(rule.label, "UR1");
    EXPECT_THAT(rule.attributes, ElementsAre(attribute("LEAF", "PARTS"), attribute("LEAF", "SIZE")));
}

TEST_F(Dictionary, LooksIntoSelectsForWhatTheyAccept) {
    // Of the two declarations of OPERAND the attribute refers to the first, DefTypes and ANYTHING to the second.
    const DefinedType* operand = schema->definedType("OPERAND");
    const SelectType& select = *operand->underlying().asSelect();
    const SelectType& anything = *schema->definedType("ANYTHING")->underlying().asSelect();
    EXPECT_EQ(&entity("PART").attribute("LEFT")->type(), operand);
    EXPECT_EQ(anything.items()[0], operand);
    EXPECT_EQ(&select.definedType(), operand);
    EXPECT_EQ(schema->definedTypes().size(), 6U);

    const DefinedType &nickname = *schema->definedType("NICKNAME"), &colour = *schema->definedType("COLOUR");
    EXPECT_TRUE(select.accepts(entity("PART")) && select.accepts(entity("TWIG")) && select.accepts(nickname));
    EXPECT_FALSE(select.accepts(entity("ROOT")) || select.accepts(colour));
    EXPECT_TRUE(anything.accepts(entity("TWIG")) && anything.accepts(nickname) && anything.accepts(colour));
    EXPECT_FALSE(anything.accepts(*schema->definedType("LABEL")));
    const auto another = sample.restore().value();
    EXPECT_FALSE(select.accepts(*another->entity("PART")) || select.accepts(*another->definedType("NICKNAME")));
}

TEST_F(Dictionary, CountsEnumeratorsFromZeroAndTheirTextsFromOne) {
    const EnumerationType& colour = *schema->definedType("COLOUR")->underlying().asEnumeration();
    EXPECT_TRUE(colour.position("RED") == 0 && colour.position("blue") == 2 && colour.position("BLACK") == -1);
    EXPECT_TRUE(colour.text(1) == "RED" && colour.text(3) == "BLUE");
    for (const int outside : {-1, 0, 4}) EXPECT_EQ(colour.text(outside), "");
    EXPECT_EQ(&colour.definedType(), schema->definedType("COLOUR"));
    EXPECT_EQ(&colour.schema(), schema.get());
}

TEST_F(Dictionary, WritesTypesInExpress) {
    const auto underlying = [&](const char* name) { return schema->definedType(name)->underlying().expressText(); };
    EXPECT_EQ(underlying("LABEL"), "STRING(255)");
    EXPECT_EQ(underlying("NICKNAME"), "LABEL");
    EXPECT_EQ(underlying("PAIR"), "ARRAY [1:2] OF REAL");
    EXPECT_EQ(underlying("COLOUR"), "ENUMERATION OF (RED, GREEN, BLUE)");
    EXPECT_EQ(underlying("ANYTHING"), "SELECT (OPERAND, COLOUR)");
    EXPECT_EQ(entity("LEAF").attribute("PARTS")->type().expressText(), "SET [0:5] OF LIST [1:?] OF UNIQUE PART");

    sample.declarations[1] = "DefinedType(LABEL,BinaryType(32,FIXED))";
    sample.declarations[3] = "ArrayType(LogicalType,0,0,UNIQ,OPT)";
    schema = sample.restore().value();
    EXPECT_EQ(underlying("LABEL"), "BINARY(32) FIXED");
    EXPECT_EQ(underlying("PAIR"), "ARRAY [0:?] OF OPTIONAL UNIQUE LOGICAL");
    EXPECT_EQ(schema->definedType("NICKNAME")->resolved().asSimple()->width(), 32);
}

} // namespace velkor::sdai::test
