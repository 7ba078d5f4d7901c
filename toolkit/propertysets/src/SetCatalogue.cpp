#include "velkor/propertysets/SetCatalogue.h"

#include "ResourceKinds.h"
#include "velkor/configuration/DefinitionReleases.h"
#include "velkor/files/FileContents.h"
#include "velkor/files/Paths.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/propertysets/SetApplicability.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"
#include "velkor/xml/XmlEvents.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

namespace velkor {

namespace {

// Of a name that is asked for; what is longer is none that is nearly another.
constexpr std::size_t longestName = 100;

// Drafts that became the last release that defines sets, and its successor, which defines none yet.
constexpr std::string_view judgedByTheLast[] = {"IFC4X3_RC1", "IFC4X3_RC3", "IFC4X4"};

struct Entry {
    std::string path;
    /// In the view of the release, whose dictionary mends what published files get wrong.
    bool isOfRelease = false;
    bool isRead = false;
    std::unique_ptr<SetDefinition> definition;
    std::string reason;
};

void read(Entry& entry, const std::string& release, xml::XmlEvents& events) {
    entry.isRead = true;
    const auto bytes = files::readFile(entry.path, mostDefinitionBytes + 1);
    if (!bytes) {
        entry.reason = entry.path + ": " + bytes.error().message;
        return;
    }
    auto reading = readDefinition(events, *bytes, entry.path);
    if (!reading) {
        entry.reason = std::move(reading.error().message);
        return;
    }
    if (entry.isOfRelease) mendDefinition(reading->definition, release);
    entry.definition = std::make_unique<SetDefinition>(std::move(reading->definition));
}

// Letters and digits alone, in lower case: what is left of a name that somebody spells in his own way.
std::string spelled(std::string_view name) {
    std::string result;
    for (const char c : name) {
        const char lower = text::asciiLower(c);
        if ((lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9')) result += lower;
    }
    return result;
}

} // namespace

std::string_view definingRelease(std::string_view release) noexcept {
    return std::ranges::find(judgedByTheLast, release) == std::end(judgedByTheLast) ? release
                                                                                    : *std::rbegin(definitionReleases);
}

std::span<const std::string_view> definingReleases() noexcept {
    return definitionReleases;
}

struct SetCatalogue::Contents {
    std::string release;
    std::vector<std::string_view> names;
    std::unordered_map<std::string_view, Entry> entries;
    // By letters and digits alone; made when it is first needed.
    std::unordered_map<std::string, std::string_view> spelledNames;
    // What the names are views of: paths of files, in the order of their folders.
    std::vector<std::string> files;
    // What reads them, one after the other.
    xml::XmlEvents events;

    Entry* entry(std::string_view setName) {
        const auto found = entries.find(setName);
        if (found == entries.end()) return nullptr;
        if (!found->second.isRead) read(found->second, release, events);
        return &found->second;
    }
};

SetCatalogue::SetCatalogue(const DefinitionViews& views, std::string_view release)
    : _contents(std::make_unique<Contents>()) {
    _contents->release = release;
    QORListValQORUnicodeString folders;
    for (const std::string& folder : views.own) folders.Append(QORUnicodeString(std::string_view(folder)));
    const std::string_view ending = propertySetResource.nameText;
    std::string subPath("/");
    subPath += propertySetResource.subFolder;
    std::string ofRelease;
    if (!views.byRelease.empty()) {
        ofRelease.append(views.byRelease).append("/").append(release);
        folders.Append(QORUnicodeString(std::string_view(ofRelease)));
        ofRelease.append(subPath).append("/");
    }
    const auto paths = files::entriesOf(folders, QORUnicodeString(std::string_view(subPath)),
                                        QORUnicodeString(propertySetResource.nameText));
    _contents->files.reserve(static_cast<std::size_t>(paths.Size()));
    for (const QORUnicodeString& path : paths) {
        const std::string& file = _contents->files.emplace_back(files::nativePath(path));
        std::string_view name = file;
        name.remove_prefix(name.rfind('/') + 1);
        name.remove_suffix(ending.size());
        _contents->names.push_back(name);
        Entry& entry = _contents->entries[name];
        entry.path = file;
        entry.isOfRelease = !ofRelease.empty() && file.starts_with(ofRelease);
    }
    std::ranges::sort(_contents->names);
}

SetCatalogue::~SetCatalogue() = default;

const std::string& SetCatalogue::release() const noexcept {
    return _contents->release;
}

std::span<const std::string_view> SetCatalogue::names() const noexcept {
    return _contents->names;
}

bool SetCatalogue::contains(std::string_view setName) const noexcept {
    return _contents->entries.contains(setName);
}

const SetDefinition* SetCatalogue::find(std::string_view setName) const {
    const Entry* entry = _contents->entry(setName);
    return entry == nullptr ? nullptr : entry->definition.get();
}

std::string SetCatalogue::path(std::string_view setName) const {
    const auto found = _contents->entries.find(setName);
    return found == _contents->entries.end() ? std::string() : found->second.path;
}

std::string SetCatalogue::unreadable(std::string_view setName) const {
    const Entry* entry = _contents->entry(setName);
    return entry == nullptr ? std::string() : entry->reason;
}

std::vector<const SetDefinition*> SetCatalogue::all() const {
    std::vector<const SetDefinition*> result;
    for (const std::string_view name : names()) {
        if (const SetDefinition* definition = find(name)) result.push_back(definition);
    }
    return result;
}

bool SetCatalogue::definesQuantitySets() const noexcept {
    return std::ranges::any_of(names(), [](std::string_view name) { return name.starts_with(quantitySetPrefix); });
}

std::string_view SetCatalogue::spelledAlike(std::string_view setName) const {
    if (setName.size() > longestName) return {};
    if (_contents->spelledNames.empty()) {
        for (const std::string_view name : names()) _contents->spelledNames.try_emplace(spelled(name), name);
    }
    const auto found = _contents->spelledNames.find(spelled(setName));
    return found == _contents->spelledNames.end() ? std::string_view() : found->second;
}

std::string SetCatalogue::likelyName(std::string_view setName) const {
    if (setName.size() > longestName) return {};
    if (const std::string_view name = spelledAlike(setName); !name.empty()) return std::string(name);
    const std::vector<std::string_view> known(names().begin(), names().end());
    // What lies closer comes first: many names of the standard are close to each other.
    std::string meant = text::likelyMeant(known, setName, 1);
    return meant.empty() ? text::likelyMeant(known, setName, 2) : meant;
}

std::vector<std::string_view> SetCatalogue::namesWith(std::string_view text) const {
    const std::string wanted = text::toUpper(text);
    std::vector<std::string_view> result;
    for (const std::string_view name : names()) {
        if (text::toUpper(name).find(wanted) != std::string::npos) result.push_back(name);
    }
    return result;
}

std::vector<const SetDefinition*> SetCatalogue::applicableTo(const sdai::EntityDefinition& entity,
                                                             std::string_view predefinedType) const {
    std::vector<const SetDefinition*> result = all();
    std::erase_if(result, [&](const SetDefinition* definition) {
        const SetApplicability applicability(*definition, entity.schema());
        if (predefinedType.empty()) return !applicability.mayApplyTo(entity);
        const SetBearer bearer{.object = {.entity = &entity, .predefinedType = predefinedType}};
        return applicability.fit(bearer) != SetFit::Applies;
    });
    return result;
}

struct SetLibrary::Contents {
    DefinitionViews views;
    std::map<std::string, SetCatalogue, std::less<>> catalogues;
};

SetLibrary::SetLibrary(DefinitionViews views) : _contents(std::make_unique<Contents>()) {
    _contents->views = std::move(views);
}

SetLibrary::~SetLibrary() = default;

const SetCatalogue& SetLibrary::of(std::string_view release) const {
    const std::string_view wanted = definingRelease(release);
    if (const auto known = _contents->catalogues.find(wanted); known != _contents->catalogues.end())
        return known->second;
    return _contents->catalogues.try_emplace(std::string(wanted), _contents->views, wanted).first->second;
}

std::vector<std::string_view> SetLibrary::releasesWith(std::string_view setName) const {
    std::vector<std::string_view> result;
    for (const std::string_view release : definitionReleases) {
        if (of(release).contains(setName)) result.push_back(release);
    }
    return result;
}

} // namespace velkor
