/// What a model's header and index tell without decoding its instances, the project apart.
///
///     const ModelFacts facts = modelFacts(*model);
///     show(facts.release, facts.instanceCount);
///     for (const ContentCount& content : facts.contents) show(content.plural, content.count);
#pragma once

#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velkor {

/// What a project says of itself.
struct ProjectFacts {
    std::uint64_t id = 0;
    std::string name;
    std::string longName;
    std::string description;
    std::string phase;
};

/// A kind of thing that people ask a model for, with its number. The texts last as long as the process.
struct ContentCount {
    std::string_view entity;
    std::string_view singular;
    std::string_view plural;
    std::uint64_t count = 0;
};

struct ModelFacts {
    std::string path;
    /// The name that the model has in the archive; empty for none.
    std::string member;
    std::uint64_t bytes = 0;
    /// The dictionary used, and the names in FILE_SCHEMA when they are other than that.
    std::string release;
    std::vector<std::string> fileSchemas;
    bool isReleaseAsWritten = false;

    sdai::FileHeader header;
    /// Entries of the description that name a model view; the others.
    std::vector<std::string> views;
    std::vector<std::string> descriptions;

    /// The first project of the file.
    std::optional<ProjectFacts> project;
    std::uint64_t projectCount = 0;

    std::uint64_t instanceCount = 0;
    /// Most frequent first.
    std::vector<sdai::Model::KeywordCount> keywords;
    /// What the model holds at least one of.
    std::vector<ContentCount> contents;
};

/// What stands in the brackets of "ViewDefinition [...]", wherever that stands in an entry of a description; empty when
/// it names no view.
VELKOR_TOOLKIT_API std::string_view viewDefinition(std::string_view entry);

/// One pass over the index, two bytes an instance. Texts are copied; the entities of `keywords` are those of
/// the model.
VELKOR_TOOLKIT_API ModelFacts modelFacts(const sdai::Model& model);

} // namespace velkor
