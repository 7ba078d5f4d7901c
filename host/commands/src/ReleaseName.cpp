#include "ReleaseName.h"

#include "velkor/dictionaries/EntityFacts.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/Wording.h"

namespace velkor::host {

std::string releaseNamed(CommandContext& context, const std::string& word) {
    std::string name = releaseMeant(word);
    if (!name.empty()) return name;
    context.err << "velkor: unknown release " << text::quoted(word)
                << "; supported: " << text::joined(DXSdaiDictionaryRepo::TheOne().names()) << '\n';
    context.status = BadUsage;
    return name;
}

} // namespace velkor::host
