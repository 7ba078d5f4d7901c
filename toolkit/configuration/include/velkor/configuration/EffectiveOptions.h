/// The options of an exchange as they are in effect, and where each of them comes from.
///
///     const PlatformSetup setup(configuration);
///     for (const EffectiveOption& option : effectiveOptions(setup)) show(option.name, option.meaning, option.sources);
#pragma once

#include "QORIFCOptions.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <vector>

namespace velkor {

/// An option with the value in force.
struct EffectiveOption {
    using Origin = QORIFCOptions::Origin; ///< Where a value comes from.

    /// In words; as a member of JSON with "_" for blanks.
    const char* name;
    int value;
    /// The value in words.
    const char* meaning;
    Origin origin = Origin::Fallback;
    /// The variables, the conversion option or the setting that it comes from.
    std::vector<std::string> sources = {};
    /// True when it follows from the forced profile. A run-time choice may still change it.
    bool isDerived = false;
    /// True when no run-time choice can change it.
    bool isForced = false;
    /// What was there but could not be taken as it is.
    std::vector<std::string> remarks = {};
};

/// Of the services as the set-up has left them. Asks environment and settings anew each time.
VELKOR_TOOLKIT_API std::vector<EffectiveOption> effectiveOptions(const PlatformSetup& setup);

/// "environment", "run_time", "setting", "fallback".
VELKOR_TOOLKIT_API const char* name(QORIFCOptions::Origin origin);

/// What became of a conversion option: "acted_upon", "overruled", "kept", "left_out". Overruled is a
/// profile that the environment forces.
VELKOR_TOOLKIT_API const char* outcomeName(const PlatformSetup::ConversionOption& option,
                                           const std::vector<EffectiveOption>& options);

} // namespace velkor
