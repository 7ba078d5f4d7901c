/// The dictionary repository: which schemas the runtime can have, and those it has.
///
/// A library registers a loader under a schema's name; the repository calls the loader the
/// first time somebody needs that schema, and the loader hands the schema's lists to
/// QORDXSdaiSchemaRestore.
///
///     auto schema = DXSdaiDictionaryRepo::TheOne().schema("IFC4");
///     if (!schema) report(schema.error().message);
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/PlatformExport.h"
#include "velkor/sdai/Dictionary.h"
#include "velkor/sdai/DXSdaiString.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

class VELKOR_PLATFORM_API DXSdaiDictionaryRepo {
public:
    using Loader = void (*)(); ///< Restores one schema into the repository.
    /// A dictionary, shared by all who use it.
    using SchemaPointer = std::shared_ptr<const velkor::sdai::SchemaDefinition>;
    /// The two text lists that a schema was restored from; views that live as long as it.
    struct Lists {
        std::span<const char* const> declarations;
        std::span<const char* const> statements;
    };

    /// The process-wide repository, made on first use.
    static DXSdaiDictionaryRepo& TheOne();

    /// Registers a loader under a schema's name. The answer is a handle above 0 that
    /// QORDXSdaiSchemaDecl takes over; it is 0 when the name is registered already, letter case
    /// ignored, when the name is empty and when there is no loader.
    static std::uint64_t AddPtr(Loader loader, const DXSdaiString& name);

    /// Takes the registration back and forgets the schema restored through it. Models that
    /// still use the schema must be closed before the library that holds its texts goes.
    void withdraw(std::uint64_t handle);

    /// Names in the order of registration.
    std::vector<std::string> names() const;

    /// The registered name that a schema name found in a file stands for, or empty: letter
    /// case and what follows a blank or brace are ignored; an exact name wins; then a name of
    /// which the text is a later stage ("IFC2X3_FINAL", "IFC4X4_17239"); then, for a bare
    /// version ("IFC4X3") or an unknown stage of one, its most advanced registered stage
    /// (an ADD before a TC before an RC, the higher number first).
    std::string match(std::string_view nameInFile) const;

    /// The schema of a registered name (exact, letter case ignored), restored now if it has
    /// not been. The message of an error says what is wrong with the lists, or which names are known; a
    /// refusal is remembered, the loader is not called again. Threads that ask at once get one
    /// schema. What a loader throws passes through, and the next request calls it again.
    tl::expected<SchemaPointer, velkor::files::OpenError> schema(std::string_view name);

    /// True when the schema has been restored already; restores nothing.
    bool isRestored(std::string_view name) const;
    /// The lists of a schema that has been restored; empty before.
    Lists lists(std::string_view name) const;

private:
    friend class QORDXSdaiSchemaRestore;
    VELKOR_PLATFORM_LOCAL DXSdaiDictionaryRepo();
    VELKOR_PLATFORM_LOCAL ~DXSdaiDictionaryRepo();
    struct State;
    struct Release;
    std::unique_ptr<State> _state;
};
