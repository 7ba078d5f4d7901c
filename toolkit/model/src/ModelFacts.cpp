#include "velkor/model/ModelFacts.h"

#include <algorithm>
#include <array>

namespace velkor {

namespace {

struct ContentKind {
    std::string_view entity;
    std::string_view singular;
    std::string_view plural;
    /// Subtypes of this are not counted.
    std::string_view except = {};
};

// From the outside in. Features are holes and bumps of other elements.
constexpr std::array<ContentKind, 13> contentKinds{{
    {"IFCSITE", "site", "sites"},
    {"IFCBUILDING", "building", "buildings"},
    {"IFCBUILDINGSTOREY", "storey", "storeys"},
    {"IFCSPACE", "space", "spaces"},
    {"IFCBRIDGE", "bridge", "bridges"},
    {"IFCROAD", "road", "roads"},
    {"IFCRAILWAY", "railway", "railways"},
    {"IFCTUNNEL", "tunnel", "tunnels"},
    {"IFCMARINEFACILITY", "marine facility", "marine facilities"},
    {"IFCALIGNMENT", "alignment", "alignments"},
    {"IFCELEMENT", "element", "elements", "IFCFEATUREELEMENT"},
    {"IFCOPENINGELEMENT", "opening", "openings"},
    {"IFCPROPERTYSET", "property set", "property sets"},
}};

std::vector<ContentCount> countContents(const sdai::Model& model,
                                        const std::vector<sdai::Model::KeywordCount>& keywords) {
    std::vector<ContentCount> result;
    for (const ContentKind& kind : contentKinds) {
        const auto* wanted = model.schema().entity(kind.entity);
        if (wanted == nullptr) continue;
        const auto* except = model.schema().entity(kind.except);
        ContentCount content{kind.entity, kind.singular, kind.plural};
        for (const auto& keyword : keywords) {
            if (keyword.entity == nullptr || !keyword.entity->isKindOf(*wanted)) continue;
            if (except == nullptr || !keyword.entity->isKindOf(*except)) content.count += keyword.count;
        }
        if (content.count > 0) result.push_back(content);
    }
    return result;
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

void takeDescription(ModelFacts& facts) {
    for (const std::string& entry : facts.header.description) {
        if (const auto view = viewDefinition(entry); !view.empty())
            facts.views.emplace_back(view);
        else if (const auto text = trimmed(entry); !text.empty())
            facts.descriptions.emplace_back(text);
    }
}

ProjectFacts projectFacts(const DXSdaiAppInstance& project) {
    const auto text = [&](std::string_view attribute) { return project.GetAttr(attribute).asString(); };
    return {project.id(), text("NAME"), text("LONGNAME"), text("DESCRIPTION"), text("PHASE")};
}

} // namespace

std::string_view viewDefinition(std::string_view entry) {
    constexpr std::string_view keyword = "ViewDefinition";
    const auto found = entry.find(keyword);
    if (found == std::string_view::npos) return {};
    const std::string_view rest = trimmed(entry.substr(found + keyword.size()));
    const auto end = rest.find(']');
    return rest.starts_with('[') && end != std::string_view::npos ? trimmed(rest.substr(1, end - 1))
                                                                  : std::string_view();
}

ModelFacts modelFacts(const sdai::Model& model) {
    ModelFacts facts;
    facts.path = model.file().path();
    facts.member = model.file().member();
    facts.bytes = model.file().text().size();
    facts.release = model.schema().name();
    facts.fileSchemas = model.header().schemas;
    facts.isReleaseAsWritten = facts.fileSchemas.size() == 1 && facts.fileSchemas.front() == facts.release;

    facts.header = model.header();
    takeDescription(facts);

    if (const auto projects = model.numbersOf("IFCPROJECT"); !projects.empty()) {
        facts.projectCount = projects.size();
        facts.project = projectFacts(*model.instanceAt(projects.front()));
    }

    facts.instanceCount = model.file().instanceCount();
    facts.keywords = model.keywordCounts();
    facts.contents = countContents(model, facts.keywords);
    return facts;
}

} // namespace velkor
