/// Changes that lie over an open model: values by the names of attributes, held to the dictionary.
///
///     ModelEdit edit(*model);
///     const auto wall = edit.create("IFCWALL", {{"GLOBALID", "'2O2Fr$t4X7Zf8NOew3FLOH'"}});
///     if (auto set = edit.set(*wall, "NAME", "'north'"); !set) return report(set.error());
///     edit.write(*output);
///
/// The model below stays as it is. Values are in the encoding of the standard (Part21Encoding.h).
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Edit.h"
#include "velkor/sdai/PopulationCheck.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor::sdai {

/// An error is one line that says why nothing was changed. Attribute names are in any letter case.
class VELKOR_PLATFORM_API ModelEdit {
public:
    template <class Value>
    using Result = Part21Edit::Result<Value>; ///< A value, or why there is none.
    /// Attributes by name, each with its value as a file writes it.
    using NamedValues = std::vector<std::pair<std::string, std::string>>;

    /// The model must outlive the edit. `derivedSlots` as for checkPopulation().
    explicit ModelEdit(const Model& model, std::span<const DerivedSlot> derivedSlots = {});
    ~ModelEdit();
    ModelEdit(ModelEdit&&) noexcept;
    ModelEdit& operator=(ModelEdit&&) noexcept;

    /// The entity of an instance with the edits so far; null for one that there is not, that the schema does not know
    /// or that is complex.
    const EntityDefinition* entity(std::uint64_t id) const;
    /// The encoded value of an attribute with the edits so far.
    Result<std::string> value(std::uint64_t id, std::string_view attribute) const;

    /// Refused when the value is none of the attribute's type, as checkPopulation() would find, or the attribute is
    /// derived; "$" is refused for a required one.
    Result<void> set(std::uint64_t id, std::string_view attribute, std::string_view value);
    /// A new instance; attributes that are not named are unset, derived ones "*". Refused for an entity that is
    /// abstract, or when a required attribute has no value.
    Result<std::uint64_t> create(std::string_view entity, const NamedValues& values);
    /// References to it stay what they are; users() says where.
    Result<void> drop(std::uint64_t id);

    /// The ids that an instance refers to, in their order, each once; those that lead nowhere among them.
    std::vector<std::uint64_t> references(std::uint64_t id) const;
    /// The instances that refer to one, by id, rising. The first call reads the whole file; the others cost as much as
    /// there are users.
    std::vector<std::uint64_t> users(std::uint64_t id) const;

    /// The structure beneath, for what is no attribute: the header, complex instances. Changes of references made there
    /// are not seen by users().
    Part21Edit& structure();
    void write(files::OutputFile& output) const; ///< Writes the edited model.
    /// Bytes held beside the model.
    std::size_t memoryUse() const noexcept;

private:
    struct State;
    std::unique_ptr<State> _state;
};

} // namespace velkor::sdai
