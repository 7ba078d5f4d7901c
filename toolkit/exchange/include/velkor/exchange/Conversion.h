/// Conversions of whole models: other releases, other units, repaired identifiers, mapped properties.
///
///     auto output = files::OutputFile::create("house-ifc4.ifc");
///     const auto report = convertRelease(*model, {.release = "IFC4"}, *output);
///     if (report && output->commit()) show(*report);
///
/// Each step reads one model and writes another; a conversion takes them in the order release, units, identifiers,
/// properties, each over what the one before it left. What a file has that was not understood, damaged statements among
/// it, is copied as it is. An error is one line that says why nothing could be converted; what the output holds then is
/// no model and should not be committed.
#pragma once

#include "velkor/configuration/PlatformSetup.h"
#include "velkor/exchange/ConversionReport.h"
#include "velkor/files/OutputFile.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

namespace velkor {

/// What the steps have in common.
struct StepOptions {
    /// How many changes are listed of each rule at most; all are counted.
    std::size_t limit = 100;
    Progress progress = {};
};

template <class Report>
using Converted = tl::expected<Report, std::string>; ///< What was done, or why nothing could be written.

/// What a conversion to another release is made with.
struct ReleaseOptions : StepOptions {
    /// Name of a dictionary, letter case ignored: "IFC2X3", "IFC4X3_ADD2".
    std::string release;
    /// Whose version mapping document is asked first; may be null.
    const PlatformSetup* setup = nullptr;
    /// ISO 8601; of the header and of owner histories that the target release wants. Empty for that of the
    /// source's header.
    std::string timeStamp = {};
};

/// A model of another release. Attributes go by name, values by their types; rules say what becomes of the rest.
VELKOR_TOOLKIT_API Converted<StepReport> convertRelease(const sdai::Model& model, const ReleaseOptions& options,
                                                        files::OutputFile& output);

/// What a conversion to other units is made with.
struct UnitOptions : StepOptions {
    /// A unit type and the unit to use for it, letter case ignored: {"LENGTHUNIT", "MILLIMETRE"},
    /// {"PLANEANGLEUNIT", "DEGREE"}. SI units with their prefix, and the conversion-based ones of ISO 16739.
    std::vector<std::pair<std::string, std::string>> units;
};

/// Why a unit type and a name mean no unit that can be asked for, in one line; nothing when they mean one.
VELKOR_TOOLKIT_API std::optional<std::string> unitFault(std::string_view type, std::string_view name);

/// The same model in other units: every value of a measure of theirs is converted, and the assignment rewritten.
VELKOR_TOOLKIT_API Converted<StepReport> convertUnits(const sdai::Model& model, const UnitOptions& options,
                                                      files::OutputFile& output);

/// Which identifiers are made anew.
struct IdentifierOptions : StepOptions {
    /// New identifiers for those that are malformed, missing or used before.
    bool repair = false;
    /// The property of products and other objects that holds their PLM identifier; empty for none.
    std::string plmAttribute;
};

/// What became of identifiers.
struct IdentifierReport : StepReport {
    /// An identifier that was changed.
    struct Entry {
        std::uint64_t id = 0;
        std::string before;
        std::string after;
    };
    /// Every identifier that was changed, in file order.
    std::vector<Entry> identifiers;
};

VELKOR_TOOLKIT_API Converted<IdentifierReport>
/// Gives instances new identifiers.
convertIdentifiers(const sdai::Model& model, const IdentifierOptions& options, files::OutputFile& output);

/// Which way a custom mapping is followed.
enum class MappingDirection : std::uint8_t { Import, Export };

/// By which mappings properties are renamed.
struct PropertyOptions : StepOptions {
    /// Sets and properties are renamed as the custom mapping says for this direction.
    std::optional<MappingDirection> customMapping;
    /// The PLM attributes of products, which stand as properties of any set, are put into the sets and under the
    /// names that the PLM attribute mapping gives.
    bool plmAttributes = false;
    const PlatformSetup* setup = nullptr;
};

/// Renames sets and properties as mappings say.
VELKOR_TOOLKIT_API Converted<StepReport> convertProperties(const sdai::Model& model, const PropertyOptions& options,
                                                           files::OutputFile& output);

/// Steps that are not asked for are left out.
struct ConversionOptions : StepOptions {
    std::optional<ReleaseOptions> release;
    std::optional<UnitOptions> units;
    std::optional<IdentifierOptions> identifiers;
    std::optional<PropertyOptions> properties;
    /// What stands between two steps is put on the disk of this path; in the system's temporary folder when it is
    /// empty.
    std::string scratchBeside = {};
};

/// What all steps did.
struct FullReport : ConversionReport {
    std::vector<IdentifierReport::Entry> identifiers;
};

/// All steps one after the other; what stands between two of them lies in a file without a name. Limit and progress of
/// the whole hold for every step. Places are those of the model: what a later step changes in an instance that an
/// earlier one has added is told without a line. Without a step it is a copy, byte for byte.
VELKOR_TOOLKIT_API Converted<FullReport> convertModel(const sdai::Model& model, const ConversionOptions& options,
                                                      files::OutputFile& output);

/// Every rule of a step, in the order of its tables. Names are those of one rule in a step, however many rows of a
/// table, for one entity each, follow it.
struct StepRules {
    std::string_view step;
    std::vector<const ConversionRule*> rules;
};
VELKOR_TOOLKIT_API std::vector<StepRules> conversionRules(); ///< Those of every step.

} // namespace velkor
