/// Moves properties to the sets and names that the mappings give.
#pragma once

#include "ChangeList.h"
#include "properties/SetMembers.h"
#include "ReleaseSchema.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/mapping/TypeMapping.h"
#include "velkor/sdai/Part21Edit.h"

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

class PropertyMapper {
public:
    PropertyMapper(const sdai::Model& model, const TypeMapping& mapping, const PropertyOptions& options,
                   sdai::Part21Edit& edit, ChangeList& changes);

    /// False when the caller has ended the work; an error when an edit was refused.
    tl::expected<bool, std::string> run();
    /// Instances that are others now, and those that are new.
    std::uint64_t converted() const noexcept { return _changed.size(); }
    std::uint64_t added() const noexcept { return _added; }

private:
    using Target = TypeMapping::Target;
    /// Where each member of a set goes; empty when all stay.
    using Targets = std::vector<Target>;
    using Result = tl::expected<void, std::string>;
    struct Group {
        Targets targets;
        std::vector<SetMembers::User> users;
    };

    void classifyProducts();
    Targets targetsOf(const SetMembers& set, std::string_view type);
    Target target(std::string_view type, std::string_view set, std::string_view property);
    std::vector<Group> groupsOf(const SetMembers& set);
    Result map(const SetMembers& set);
    /// Without `keep` the set stays for others, and the users leave their relationships.
    Result move(const SetMembers& set, const Group& group, bool keep);
    tl::expected<std::string, std::string> member(std::uint32_t number, const std::string& name, bool inPlace);
    Result addSet(const SetMembers& set, const Group& group, const std::string& name,
                  const std::vector<std::string>& members, const ConversionRule& rule);
    bool join(const Group& group, const std::string& name, std::string_view attribute,
              const std::vector<std::string>& members);
    Result leave(const std::vector<SetMembers::User>& users);
    Result set(std::uint32_t number, std::string_view attribute, std::string_view encoded);

    const sdai::Model& _model;
    const TypeMapping& _mapping;
    const PropertyOptions& _options;
    sdai::Part21Edit& _edit;
    ChangeList& _changes;
    const ReleaseSchema _schema;
    std::vector<SetMembers> _sets;
    std::unordered_map<std::uint32_t, std::string> _types;
    // How many sets have a property.
    std::unordered_map<std::uint32_t, std::uint32_t> _uses;
    // By name and the objects that have it.
    std::map<std::pair<std::string, std::vector<std::uint32_t>>, std::uint32_t> _byUsers;
    std::map<std::tuple<std::string, std::string, std::string>, Target> _targets;
    std::unordered_set<std::uint32_t> _changed;
    std::uint64_t _added = 0;
};

} // namespace velkor::exchange
