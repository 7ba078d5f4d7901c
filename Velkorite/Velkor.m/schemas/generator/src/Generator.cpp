#include "Generator.h"

#include "DictionaryLists.h"
#include "SourceFile.h"
#include "TextStore.h"
#include "UnitWriter.h"

namespace velkor::dictgen {

using namespace express;

tl::expected<std::vector<GeneratedUnit>, std::string> generate(const Profiles& profiles, const std::string& folder) {
    std::vector<GeneratedUnit> units;
    TextStore store(profiles.releases.size());
    for (const Profile& profile : profiles.releases) {
        const auto source = std::filesystem::path(folder) / (profile.schema + ".exp");
        ExpressSchema schema;
        std::string inputs;
        if (auto read = readSource(source, schema, inputs); !read) return tl::unexpected(read.error());
        if (profile.hasSupplement) {
            if (auto read = readSource(profiles.supplementPath, schema, inputs); !read) {
                return tl::unexpected(read.error());
            }
        }
        if (auto applied = applyProfile(profile, schema); !applied) return tl::unexpected(applied.error());
        const auto lists = numberSchema(profile.schema, schema);
        if (!lists) return tl::unexpected(source.string() + ": " + lists.error());
        units.push_back({profile.schema + ".cpp", unitText(profile.schema, units.size(), inputs, *lists, store)});
    }
    return units;
}

} // namespace velkor::dictgen
