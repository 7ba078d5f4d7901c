/// The definitions of a release: which sets there are, what each says, and which of them apply to what.
///
///     SetLibrary library(setup.definitionViews());
///     const SetCatalogue& catalogue = library.of("IFC4");
///     if (const SetDefinition* set = catalogue.find("Pset_WallCommon")) show(*set);
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/ToolkitExport.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai {
class EntityDefinition;
class SchemaDefinition;
} // namespace velkor::sdai

namespace velkor {

/// Where definition files are looked for.
struct DefinitionViews {
    /// Runtime views, the strongest first, whose definitions hold for every release.
    std::vector<std::string> own;
    /// A folder with a runtime view for each release that defines sets, named after it; empty for none. What is in the
    /// own views hides what has the same name here. Definitions are mended by the dictionary of the release.
    std::string byRelease;
};

/// The release whose definitions hold for a release's models: IFC4X3_ADD2 for IFC4X3_RC1, IFC4X3_RC3 and IFC4X4,
/// itself for the others.
VELKOR_TOOLKIT_API std::string_view definingRelease(std::string_view release) noexcept;
/// The releases that define sets, oldest first.
VELKOR_TOOLKIT_API std::span<const std::string_view> definingReleases() noexcept;

/// Names are found when it is made, each definition is read when it is first asked for and stays where it is. Letter
/// case counts in names of sets. Calls from one thread.
class VELKOR_TOOLKIT_API SetCatalogue {
public:
    /// The sets that a release defines in some views.
    SetCatalogue(const DefinitionViews& views, std::string_view release);
    ~SetCatalogue();
    SetCatalogue(const SetCatalogue&) = delete;
    SetCatalogue& operator=(const SetCatalogue&) = delete;

    /// That whose definitions these are: "IFC4X3_ADD2" for a model of IFC4X4.
    const std::string& release() const noexcept;
    /// Sorted. Whether a name's file can be read shows when it is asked for.
    std::span<const std::string_view> names() const noexcept;
    bool empty() const noexcept { return names().empty(); } ///< True when there is no definition.
    bool contains(std::string_view setName) const noexcept; ///< True when a set of the name is defined.
    /// Null when there is none of the name, and when its file cannot be read.
    const SetDefinition* find(std::string_view setName) const;
    /// Of the file that defines the set; empty when there is none.
    std::string path(std::string_view setName) const;
    /// Why a set's file cannot be read, with its place; empty when it can be.
    std::string unreadable(std::string_view setName) const;
    /// The readable ones, in the order of their names.
    std::vector<const SetDefinition*> all() const;
    /// True when some quantity set is defined. IFC2X3 defines none.
    bool definesQuantitySets() const noexcept;

    /// The name that has the same letters and digits, letter case ignored; empty when there is none.
    std::string_view spelledAlike(std::string_view setName) const;
    /// The one name that another is probably meant to be; empty when there is none.
    std::string likelyName(std::string_view setName) const;
    /// Names that contain a text, letter case ignored, sorted.
    std::vector<std::string_view> namesWith(std::string_view text) const;
    /// Sets that apply to objects of an entity, by inheritance, in the order of their names: with a predefined type,
    /// those that apply to that too; without, those too that apply to some predefined type alone.
    std::vector<const SetDefinition*> applicableTo(const sdai::EntityDefinition& entity,
                                                   std::string_view predefinedType = {}) const;

private:
    struct Contents;
    std::unique_ptr<Contents> _contents;
};

/// A catalogue for each release, made when first asked for.
class VELKOR_TOOLKIT_API SetLibrary {
public:
    explicit SetLibrary(DefinitionViews views); ///< Catalogues of some views, each made when it is asked for.
    ~SetLibrary();
    SetLibrary(const SetLibrary&) = delete;
    SetLibrary& operator=(const SetLibrary&) = delete;

    /// For models of a release; that of definingRelease() for releases that define none.
    const SetCatalogue& of(std::string_view release) const;
    /// The releases that define a set of this name, oldest first.
    std::vector<std::string_view> releasesWith(std::string_view setName) const;

private:
    struct Contents;
    std::unique_ptr<Contents> _contents;
};

} // namespace velkor
