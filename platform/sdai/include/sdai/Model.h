/// An IFC model opened for reading: a Part 21 file and the dictionary that its schema names.
///
///     auto model = Model::open("house.ifc");
///     if (!model) return report(model.error());
///     for (DXSdaiAppInstance* wall : (*model)->instancesOf("IFCWALL")) …
#pragma once

#include "sdai/DXSdaiAppInstance.h"
#include "sdai/DXSdaiDictionaryRepo.h"
#include "sdai/Part21File.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::sdai {

class Model {
public:
    static tl::expected<std::unique_ptr<Model>, std::string> open(const std::string& path);
    static tl::expected<std::unique_ptr<Model>, std::string> fromText(std::string_view text, std::string name);
    virtual ~Model() = default;

    const Part21File& file() const noexcept { return *_file; }
    const FileHeader& header() const noexcept { return _file->header(); }
    const SchemaDefinition& schema() const noexcept { return *_schema; }

    /// The instance of an id; null when the file has none.
    virtual DXSdaiAppInstance* instance(std::uint64_t id) const = 0;
    /// The instance by its number in file order.
    virtual DXSdaiAppInstance* instanceAt(std::uint32_t number) const = 0;
    /// The entity of an instance without making an instance object; null when unknown.
    virtual const EntityDefinition* entityAt(std::uint32_t number) const = 0;

    /// All instances of an entity and its subtypes, in file order, found by a pass over the
    /// index's keyword numbers alone.
    virtual std::vector<std::uint32_t> numbersOf(std::string_view entityName) const = 0;
    std::vector<DXSdaiAppInstance*> instancesOf(std::string_view entityName) const;

    /// How many instances each keyword of the file has, most frequent first.
    struct KeywordCount {
        std::string keyword;
        /// Null for a keyword that the schema does not know and for complex instances.
        const EntityDefinition* entity;
        std::uint64_t count;
    };
    virtual std::vector<KeywordCount> keywordCounts() const = 0;

protected:
    Model() = default;
    std::unique_ptr<Part21File> _file;
    DXSdaiDictionaryRepo::SchemaPointer _schema;
};

} // namespace velkor::sdai
