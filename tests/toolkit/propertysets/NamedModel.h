/// Models whose instances go by names, and whose entities are filled up.
///
///     const NamedModel named("IFC4", "#wall=IFCWALL('',$,'South',...);#type=IFCWALLTYPE(...,.SOLIDWALL.);");
#pragma once

#include "ModelText.h"
#include "velkor/sdai/Dictionary.h"
#include "velkor/sdai/Model.h"

#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>

namespace velkor::test {

class NamedModel {
public:
    /// Blanks, line ends and comments wherever they may be.
    enum class Layout { Dense, Loose };

    /// Names are numbers from 1 on in the order in which they occur. An ellipsis stands for as many unset attributes as
    /// the entity lacks.
    NamedModel(const std::string& release, const std::string& instances, Layout layout = Layout::Dense)
        : _text(modelText(release, laidOut(numbered(filled(release, instances)), layout))), _model(opened(_text)) {}

    const sdai::Model& model() const { return *_model; }
    /// "#wall"; "" for none.
    std::string nameOf(std::uint64_t id) const {
        for (const auto& [name, number] : _ids) {
            if (number == id) return '#' + name;
        }
        return id == 0 ? "" : '#' + std::to_string(id);
    }

private:
    static std::unique_ptr<sdai::Model> opened(const std::string& text) {
        auto model = sdai::Model::fromText(text, "test");
        if (!model) throw std::runtime_error("no model");
        return std::move(*model);
    }

    static std::string filled(const std::string& release, std::string text) {
        const std::string none = modelText(release, "");
        const auto dictionary = opened(none);
        for (std::size_t at = text.find("..."); at != std::string::npos; at = text.find("...", at)) {
            std::size_t given = 0, open = at, depth = 0;
            while (open-- > 0 && (text[open] != '(' || depth > 0)) given += isBetween(text[open], depth, ')', '(');
            for (std::size_t i = at + 3; text[i] != ')' || depth > 0; ++i) given += isBetween(text[i], depth, '(', ')');
            const std::size_t keyword = text.rfind("IFC", open);
            const auto* entity = dictionary->schema().entity(text.substr(keyword, open - keyword));
            if (entity == nullptr) throw std::runtime_error("no entity of " + release + " in " + text);
            // Commas are between attributes alone.
            const bool isLast = text[at + 3] == ')';
            std::string unset;
            for (std::size_t i = given; i < entity->attributes().size(); ++i) unset += isLast ? ",$" : "$,";
            text.replace(isLast ? at - 1 : at, 4, unset);
        }
        return text;
    }
    static bool isBetween(char character, std::size_t& depth, char open, char close) {
        if (character == open) ++depth;
        if (character == close) --depth;
        return character == ',' && depth == 0;
    }

    static std::string laidOut(const std::string& text, Layout layout) {
        if (layout == Layout::Dense) return text;
        std::string result;
        bool isInString = false;
        for (const char character : text) {
            isInString ^= character == '\'' && !result.ends_with("\\S\\");
            const bool isPlace = !isInString && std::string_view("(),;").find(character) != std::string_view::npos;
            if (isPlace) result += " /*,)'*/ ";
            result += character;
            if (isPlace) result += "\n\t/*,)'*/";
        }
        return result;
    }

    std::string numbered(const std::string& text) {
        std::string result;
        for (std::size_t i = 0; i < text.size(); ++i) {
            result += text[i];
            if (text[i] != '#' || std::isalpha(static_cast<unsigned char>(text[i + 1])) == 0) continue;
            std::string name;
            while (std::isalnum(static_cast<unsigned char>(text[i + 1])) != 0) name += text[++i];
            result += std::to_string(_ids.emplace(name, _ids.size() + 1).first->second);
        }
        return result;
    }

    std::map<std::string, std::uint64_t> _ids;
    std::string _text;
    std::unique_ptr<sdai::Model> _model;
};

} // namespace velkor::test
