#include "output/ClassificationText.h"
#include "output/PropertySetText.h"
#include "output/Report.h"
#include "output/UnitText.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

Json headerJson(const ModelFacts& facts) {
    const sdai::FileHeader& header = facts.header;
    return {{"name", header.name},
            {"time_stamp", header.timeStamp},
            {"author", header.author},
            {"organization", header.organization},
            {"originating_system", header.originatingSystem},
            {"preprocessor_version", header.preprocessorVersion},
            {"authorization", header.authorization},
            {"implementation_level", header.implementationLevel},
            {"description", header.description},
            {"model_views", facts.views}};
}

Json projectJson(const ModelFacts& facts) {
    if (!facts.project) return nullptr;
    const ProjectFacts& project = *facts.project;
    return {{"instance", project.id},
            {"name", project.name},
            {"long_name", project.longName},
            {"description", project.description},
            {"phase", project.phase}};
}

Json contentsJson(const ModelFacts& facts) {
    Json result = Json::array();
    for (const ContentCount& content : facts.contents) {
        result.push_back({{"entity", content.entity}, {"count", content.count}});
    }
    return result;
}

Json instancesJson(const ModelFacts& facts) {
    Json entities = Json::array();
    for (const auto& keyword : facts.keywords) {
        entities.push_back(
            {{"keyword", keyword.keyword}, {"known", keyword.entity != nullptr}, {"count", keyword.count}});
    }
    return {{"total", facts.instanceCount}, {"keywords", std::move(entities)}};
}

Json summaryJson(const ProblemSummary& summary) {
    Json kinds = Json::array();
    for (const ProblemSummary::Kind& kind : summary.kinds) {
        const sdai::Problem& first = kind.first;
        kinds.push_back({{"code", kind.code},
                         {"severity", name(kind.severity)},
                         {"count", kind.count},
                         {"first",
                          {{"line", first.line},
                           {"instance", first.instance == 0 ? Json() : Json(first.instance)},
                           {"message", first.message}}}});
    }
    return {{"total", summary.total},
            {"listed", summary.listed()},
            {"errors", summary.errors},
            {"warnings", summary.warnings},
            {"kinds", std::move(kinds)}};
}

Json identifiersJson(const Report& report) {
    Json json{{"checked", report.identifierCount}};
    json.update(summaryJson(report.identifiers));
    return json;
}

Json propertySetsJson(const Report& report) {
    if (!report.propertySets.hasDefinitions) return nullptr;
    Json json = coverageJson(report.propertySets);
    json["findings"] = summaryJson(report.setFindings);
    return json;
}

Json classificationJson(const Report& report) {
    if (!report.classified) return nullptr;
    const Classification& classification = report.classified->classification;
    return {{"document", report.classified->documentPath},
            {"total", classification.products.size()},
            {"unclassified", classification.unclassified},
            {"classes", classesJson(classification)}};
}

} // namespace

Json reportJson(const Report& report) {
    const ModelFacts& facts = report.facts;
    return {{"file", {{"path", facts.path}, {"bytes", facts.bytes}, {"member", textOrNull(facts.member)}}},
            {"release", {{"dictionary", facts.release}, {"file_schema", facts.fileSchemas}}},
            {"header", headerJson(facts)},
            {"project", projectJson(facts)},
            {"project_count", facts.projectCount},
            {"contents", contentsJson(facts)},
            {"instances", instancesJson(facts)},
            {"units", unitReportJson(report.units)},
            {"problems", summaryJson(report.problems)},
            {"identifiers", identifiersJson(report)},
            {"property_sets", propertySetsJson(report)},
            {"classification", classificationJson(report)}};
}

} // namespace velkor::host
