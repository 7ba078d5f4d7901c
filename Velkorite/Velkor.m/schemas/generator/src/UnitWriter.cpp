#include "UnitWriter.h"

#include <cstdio>

namespace velkor::dictgen {

namespace {

// A compiler need not take longer literals.
constexpr std::size_t longestLiteral = 60000;

/// The texts as literals of a struct of character arrays, so that one address reaches all.
std::string storedTexts(const std::deque<std::string>& texts) {
    std::string sizes, literals;
    std::size_t part = 0, size = 0;
    const auto closePart = [&] {
        sizes += "    char part" + std::to_string(part++) + '[' + std::to_string(size) + "];\n";
        size = 0;
    };
    for (const std::string& text : texts) {
        // The zero byte behind the last text of a part is the literal's own.
        if (size + text.size() + 1 > longestLiteral) {
            closePart();
            literals += "\",\n";
        } else if (size > 0) {
            literals += "\\0\"\n";
        }
        literals += "    \"" + text;
        size += text.size() + 1;
    }
    closePart();
    return "struct Texts {\n" + sizes + "};\n\nconstexpr Texts texts = {\n" + literals + "\"};\n";
}

std::string table(const char* name, const std::vector<std::string>& list, std::size_t release, TextStore& store) {
    std::string result = std::string("constexpr std::uint32_t ") + name + "[] = {\n";
    char place[24];
    for (const std::string& text : list) {
        std::snprintf(place, sizeof place, "    0x%08X, // ", store.place(release, text));
        result += place + text + "\n";
    }
    return result + "};\n";
}

} // namespace

std::string unitText(const std::string& schema, std::size_t release, const std::string& inputs,
                     const DictionaryLists& lists, TextStore& store) {
    const std::string declarations = table("declarations", lists.declarations, release, store);
    const std::string statements = table("statements", lists.statements, release, store);
    return "// Made by velkor-dictgen from " + inputs + "; do not edit.\n\n#include \"SchemaTables.h\"\n\n" +
           "namespace velkor::schemas {\n\nnamespace {\n\n" + storedTexts(store.texts(release)) + "\n" + declarations +
           "\n" + statements + "\n} // namespace\n\nSchemaTables tablesOf" + schema +
           "() noexcept {\n    return {reinterpret_cast<const char*>(&texts), declarations, statements};\n}\n\n" +
           "} // namespace velkor::schemas\n";
}

} // namespace velkor::dictgen
