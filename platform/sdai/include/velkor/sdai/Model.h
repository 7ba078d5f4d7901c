/// An IFC model opened for reading: a Part 21 file and the dictionary that its schema names.
///
///     auto model = Model::open("house.ifc");
///     if (!model) return report(model.error().message);
///     for (DXSdaiAppInstance* wall : (*model)->instancesOf("IFCWALL")) …
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/DXSdaiAppInstance.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/sdai/Part21File.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::sdai {

/// Reading an attribute remembers where the instance's parameters stand: one thread at a time may use
/// a model, different models are independent.
class VELKOR_PLATFORM_API Model {
public:
    /// The message of an error names the file and says why it cannot be read, or which schemas there are when the
    /// file's is none of them.
    static tl::expected<std::unique_ptr<Model>, files::OpenError>
    open(const std::string& path, Part21File::Access access = Part21File::Access::Mapped);
    /// The same over what is open already and stays the caller's, standard input for example, as
    /// Part21File::fromDescriptor takes it; `name` stands for the file in messages.
    static tl::expected<std::unique_ptr<Model>, files::OpenError>
    fromDescriptor(int descriptor, std::string name, Part21File::Access access = Part21File::Access::Mapped);
    /// The same over bytes that the caller keeps alive.
    static tl::expected<std::unique_ptr<Model>, files::OpenError> fromText(std::string_view text, std::string name);
    /// The same over a file that is open already.
    static tl::expected<std::unique_ptr<Model>, files::OpenError> over(std::unique_ptr<Part21File> file);
    /// Why no model can be made over a file: it names no schema that the repository has. Nothing when it
    /// names one.
    static std::optional<Problem> schemaProblem(const Part21File& file);
    ~Model();
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    const Part21File& file() const noexcept { return *_file; }            ///< The file that it is read from.
    const FileHeader& header() const noexcept { return _file->header(); } ///< The header of the file.
    const SchemaDefinition& schema() const noexcept { return *_schema; }  ///< The dictionary that it is read with.

    /// The instance of an id; null when the file has none.
    DXSdaiAppInstance* instance(std::uint64_t id) const;
    /// The instance by its number in file order, which must be below the file's count.
    DXSdaiAppInstance* instanceAt(std::uint32_t number) const;
    /// The entity of an instance without making an instance object; null for a keyword that the schema
    /// does not know and for complex instances.
    const EntityDefinition* entityAt(std::uint32_t number) const;

    /// All instances of an entity and its subtypes, in file order, found by a pass over the
    /// index's keyword numbers alone. A complex instance counts with each of its partial entities.
    std::vector<std::uint32_t> numbersOf(std::string_view entityName) const;
    std::vector<DXSdaiAppInstance*> instancesOf(std::string_view entityName) const;

    /// How many instances each keyword of the file has, most frequent first.
    struct KeywordCount {
        /// Of all complex instances together "(…)".
        std::string keyword;
        /// Null for a keyword that the schema does not know and for complex instances.
        const EntityDefinition* entity;
        std::uint64_t count;
    };
    std::vector<KeywordCount> keywordCounts() const; ///< By keyword.

    /// Bytes held beside the mapped text: the index, and the instances that were asked for. The dictionary
    /// is shared by all models of its release and not counted.
    std::size_t memoryUse() const noexcept;

private:
    // Instances are made a page at a time, so that one costs no allocation of its own, and few beside those asked for
    // are made.
    static constexpr std::uint32_t pageSize = 8;
    using Page = std::unique_ptr<DXSdaiAppInstance[]>;

    VELKOR_PLATFORM_LOCAL Model(std::unique_ptr<Part21File> file, DXSdaiDictionaryRepo::SchemaPointer schema);
    VELKOR_PLATFORM_LOCAL Page makePage(std::uint32_t first) const;

    std::unique_ptr<Part21File> _file;
    DXSdaiDictionaryRepo::SchemaPointer _schema;
    // By keyword number.
    std::vector<const EntityDefinition*> _entities;
    mutable std::unique_ptr<Page[]> _pages;
};

} // namespace velkor::sdai
