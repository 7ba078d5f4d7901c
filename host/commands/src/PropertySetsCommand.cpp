// velkor propertysets list|show|diff

#include "Commands.h"
#include "output/SetCatalogueText.h"
#include "ReleaseName.h"
#include "ResultFile.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/dictionaries/EntityFacts.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/propertysets/SetTemplate.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

namespace velkor::host {

namespace {

constexpr const char* standardOutput = "-";

/// What the user typed.
struct Arguments {
    std::string release;
    std::string after;
    /// A set, or an entity with or without a predefined type.
    std::string name;
    std::string search;
    std::string templateFile;
};

/// The definitions of one release, and what a word of the command line means there.
class Release {
public:
    Release(const SetLibrary& library, const std::string& name)
        : _library(library), _catalogue(library.of(name)),
          _schema(DXSdaiDictionaryRepo::TheOne().schema(name).value_or(nullptr)), _name(name) {}

    const std::string& name() const { return _name; }
    const SetCatalogue& catalogue() const { return _catalogue; }
    const sdai::EntityDefinition* entity(std::string_view word) const {
        return _schema == nullptr ? nullptr : _schema->entity(word);
    }

    /// A name of a set, in any letter case; empty when there is none.
    std::string_view setName(std::string_view word) const {
        if (_catalogue.contains(word)) return *std::ranges::lower_bound(_catalogue.names(), word);
        const auto isMeant = [&](std::string_view known) { return text::equalIgnoringCase(known, word); };
        const auto found = std::ranges::find_if(_catalogue.names(), isMeant);
        return found == _catalogue.names().end() ? std::string_view() : *found;
    }
    /// That there is no such set, and which may be meant.
    std::string noSuchSet(const std::string& word) const {
        std::string told = _catalogue.release() + " has no set " + text::quoted(word);
        if (const auto others = _library.releasesWith(word); !others.empty())
            told += "; it is one of " + text::joined(others);
        const std::vector<std::string_view> known(_catalogue.names().begin(), _catalogue.names().end());
        return withNearest(told, text::nearestNames(known, word, 5, "PSET_"));
    }
    /// The same of a word that may have been meant for an entity.
    std::string neitherSetNorEntity(const std::string& word) const {
        const std::string upper = text::asciiUpper(word);
        if (upper.starts_with("PSET") || upper.starts_with("QTO") || !_library.releasesWith(word).empty())
            return noSuchSet(word);
        return withNearest(_name + " has neither a set nor an entity " + text::quoted(word),
                           nearestEntities(*_schema, word));
    }
    std::string noSuchEntity(const std::string& word) const {
        return withNearest(_name + " has no entity " + text::quoted(word), nearestEntities(*_schema, word));
    }
    static std::string withNearest(const std::string& told, const std::vector<std::string>& nearest) {
        return nearest.empty() ? told : told + "; nearest: " + text::joined(nearest);
    }

private:
    const SetLibrary& _library;
    const SetCatalogue& _catalogue;
    DXSdaiDictionaryRepo::SchemaPointer _schema;
    std::string _name;
};

/// What a list is about.
struct Selection {
    const sdai::EntityDefinition* entity = nullptr;
    std::string predefinedType;
    SetList sets;
};

void answerNo(CommandContext& context, const std::string& reason) {
    context.err << "velkor: " << reason << '\n';
    context.status = Findings;
}

/// False after saying that no release defines anything.
bool hasDefinitions(CommandContext& context, const SetCatalogue& catalogue) {
    if (!catalogue.empty()) return true;
    context.reportUnreadable("there are no definitions of property sets for " + catalogue.release() +
                             "; velkor resources says where they are looked for");
    return false;
}

/// Predefined types that objects of an entity can have, and those that sets for it name beside them.
std::vector<std::string_view> predefinedTypes(const sdai::EntityDefinition& entity, const SetList& sets) {
    std::set<std::string_view> known;
    const sdai::Attribute* attribute = entity.attribute("PREDEFINEDTYPE");
    if (attribute != nullptr) {
        if (const auto* enumeration = attribute->type().resolved().asEnumeration())
            known.insert(enumeration->values().begin(), enumeration->values().end());
    }
    for (const SetDefinition* set : sets)
        for (const ApplicableClass& one : set->classes)
            if (!one.predefinedType.empty()) known.insert(one.predefinedType);
    return {known.begin(), known.end()};
}

/// Fills in what applies to "IfcActuator" or "IfcActuator/ELECTRICACTUATOR". False after saying what is not known.
bool selectByEntity(CommandContext& context, const Release& release, const std::string& word, Selection& selection) {
    const std::size_t slash = std::min(word.find('/'), word.size());
    const std::string entity = word.substr(0, slash);
    selection.entity = release.entity(entity);
    if (selection.entity == nullptr) {
        answerNo(context, release.noSuchEntity(entity));
        return false;
    }
    selection.sets = release.catalogue().applicableTo(*selection.entity);
    if (slash == word.size()) return true;
    selection.predefinedType = word.substr(slash + 1);
    const auto known = predefinedTypes(*selection.entity, selection.sets);
    if (std::ranges::none_of(
            known, [&](std::string_view one) { return text::equalIgnoringCase(one, selection.predefinedType); })) {
        const std::string told = std::string(selection.entity->name()) + " of " + release.name() +
                                 " has no predefined type " + text::quoted(selection.predefinedType);
        answerNo(context, Release::withNearest(told, text::nearestNames(known, selection.predefinedType)));
        return false;
    }
    selection.sets = release.catalogue().applicableTo(*selection.entity, selection.predefinedType);
    return true;
}

/// Each file once: those of the user hold for every release.
void reportUnreadableSets(CommandContext& context, const std::vector<const SetCatalogue*>& catalogues) {
    std::set<std::string> told;
    for (const SetCatalogue* catalogue : catalogues) {
        for (const std::string_view name : catalogue->names()) {
            const std::string reason = catalogue->unreadable(name);
            if (!reason.empty() && told.insert(reason).second) context.reportUnreadable(reason);
        }
    }
}

Json releaseJson(const Release& release) {
    return {{"release", release.name()}, {"defined_by", release.catalogue().release()}};
}

void tellRelease(CommandContext& context, const Release& release) {
    if (release.name() != release.catalogue().release())
        context.out << "what " << release.catalogue().release() << " defines holds for " << release.name() << '\n';
}

void writeSelection(CommandContext& context, const Release& release, const Selection& selection,
                    const std::string& search) {
    context.status = selection.sets.empty() ? Findings : Done;
    if (context.csv()) return writeSetsCsv(context.out, release.catalogue(), selection.sets);
    if (context.json()) {
        Json json = releaseJson(release);
        json.update({{"entity", selection.entity == nullptr ? Json() : Json(selection.entity->name())},
                     {"predefined_type", textOrNull(selection.predefinedType)},
                     {"search", textOrNull(search)},
                     {"total", selection.sets.size()},
                     {"sets", setsJson(release.catalogue(), selection.sets)}});
        return writeJson(context.out, json);
    }
    tellRelease(context, release);
    if (selection.sets.empty()) {
        context.out << "no sets\n";
        return;
    }
    writeSets(context.out, selection.sets);
    context.out << '\n' << text::counted(selection.sets.size(), "set", "sets") << '\n';
}

void runList(CommandContext& context, const Release& release, const Arguments& arguments) {
    Selection selection;
    if (arguments.name.empty())
        selection.sets = release.catalogue().all();
    else if (!selectByEntity(context, release, arguments.name, selection))
        return;
    if (!arguments.search.empty()) {
        const auto names = release.catalogue().namesWith(arguments.search);
        std::erase_if(selection.sets, [&](const SetDefinition* set) {
            return !std::ranges::binary_search(names, std::string_view(set->name));
        });
    }
    writeSelection(context, release, selection, arguments.search);
    reportUnreadableSets(context, {&release.catalogue()});
}

/// Now, in ISO 8601.
std::string timeStamp() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts));
}

void writeTemplates(CommandContext& context, const Release& release, const SetList& sets, const std::string& path) {
    const bool isStream = path == standardOutput;
    const SetTemplateHeader header{isStream ? std::string() : std::filesystem::path(path).filename().string(),
                                   timeStamp()};
    const auto file = setTemplates(sets, release.catalogue().release(), header);
    if (!file) return answerNo(context, "no templates are written: " + file.error());
    if (isStream)
        context.out.unfitted().lines(file->text);
    else if (!writeResultFile(context, path, file->text))
        return;
    if (context.json() && !isStream) {
        Json json = releaseJson(release);
        Json names = Json::array();
        for (const SetDefinition* set : sets) names.push_back(set->name);
        json.update(
            {{"sets", std::move(names)}, {"file", path}, {"file_release", file->release}, {"notes", file->notes}});
        return writeJson(context.out, json);
    }
    const TextSink out = isStream ? context.err : context.out;
    for (const std::string& note : file->notes) out << note << '\n';
    out << (isStream ? "standard output" : path) << ": " << text::counted(sets.size(), "template", "templates")
        << " in " << file->release << '\n';
}

void showSet(CommandContext& context, const SetLibrary& library, const Release& release, const SetDefinition& set) {
    const auto releases = library.releasesWith(set.name);
    if (!context.json()) {
        tellRelease(context, release);
        return writeSet(context.out, release.catalogue(), set, releases);
    }
    Json json = releaseJson(release);
    json.update(setJson(release.catalogue(), set, releases));
    writeJson(context.out, json);
}

void runShow(CommandContext& context, const SetLibrary& library, const Release& release, const Arguments& arguments) {
    const SetCatalogue& catalogue = release.catalogue();
    Selection selection;
    if (const std::string_view name = release.setName(arguments.name); !name.empty()) {
        const SetDefinition* set = catalogue.find(name);
        if (set == nullptr) return context.reportUnreadable(catalogue.unreadable(name));
        if (arguments.templateFile.empty()) return showSet(context, library, release, *set);
        selection.sets.push_back(set);
    } else if (release.entity(arguments.name.substr(0, arguments.name.find('/'))) == nullptr) {
        return answerNo(context, release.neitherSetNorEntity(arguments.name));
    } else if (!selectByEntity(context, release, arguments.name, selection)) {
        return;
    }
    if (arguments.templateFile.empty())
        writeSelection(context, release, selection, {});
    else
        writeTemplates(context, release, selection.sets, arguments.templateFile);
}

/// Of one set; nothing after saying that neither release has it.
std::optional<CatalogueDifference> compareOne(CommandContext& context, const Release& before, const Release& after,
                                              const std::string& word) {
    const std::string_view first = before.setName(word), second = after.setName(word);
    for (const auto& [release, name] : {std::pair(&before, first), std::pair(&after, second)}) {
        const std::string reason = release->catalogue().unreadable(name);
        if (reason.empty()) continue;
        context.reportUnreadable(reason);
        return std::nullopt;
    }
    const SetDefinition* earlier = before.catalogue().find(first);
    const SetDefinition* later = after.catalogue().find(second);
    CatalogueDifference difference;
    if (earlier == nullptr && later == nullptr) {
        answerNo(context, after.noSuchSet(word));
        return std::nullopt;
    }
    if (earlier == nullptr) {
        difference.added.push_back(later);
    } else if (later == nullptr) {
        difference.removed.push_back(earlier);
    } else {
        SetDifference set = compareSets(*earlier, *later);
        if (set.empty())
            difference.unchanged = 1;
        else
            difference.changed.push_back(std::move(set));
    }
    return difference;
}

void runDiff(CommandContext& context, const Release& before, const Release& after, const Arguments& arguments) {
    const auto difference = arguments.name.empty()
                                ? std::optional(compareCatalogues(before.catalogue(), after.catalogue()))
                                : compareOne(context, before, after, arguments.name);
    if (!difference) return;
    if (context.csv())
        writeSetDifferencesCsv(context.out, *difference);
    else if (context.json())
        writeJson(context.out,
                  setDifferencesJson(before.catalogue().release(), after.catalogue().release(), *difference));
    else
        writeSetDifferences(context.out, before.catalogue().release(), after.catalogue().release(), *difference);
    if (arguments.name.empty()) reportUnreadableSets(context, {&before.catalogue(), &after.catalogue()});
}

/// Has a subcommand run with the definitions that are configured and the releases that are named.
template <class Run>
void withReleases(CommandContext& context, const std::vector<std::string>& words, Run run) {
    std::vector<std::string> names;
    for (const std::string& word : words) {
        names.push_back(releaseNamed(context, word));
        if (names.back().empty()) return;
    }
    const PlatformSetup setup(context.configuration, context.tell());
    const SetLibrary library(definitionViews(setup));
    std::vector<Release> releases;
    for (const std::string& name : names) {
        releases.emplace_back(library, name);
        if (!hasDefinitions(context, releases.back().catalogue())) return;
    }
    run(library, releases);
}

void addList(const Command& propertySets, CommandContext& context, const std::shared_ptr<Arguments>& arguments) {
    const Command list = propertySets.addCommand("list", "The sets that a release defines, or those for an entity");
    list.addOption("release", arguments->release, releaseHelp).required();
    list.addOption("entity", arguments->name,
                   "Sets that apply to it or what it inherits from; with /PREDEFINEDTYPE those for that type alone");
    list.addOption("--search", arguments->search, "Sets whose names contain this, in any letter case")
        .valueName("TEXT");
    list.example("velkor propertysets list IFC4 IfcActuator/ELECTRICACTUATOR\n\nExit status 1 when there are none.");
    const auto run = [&context, arguments] {
        withReleases(context, {arguments->release}, [&](const SetLibrary&, const std::vector<Release>& releases) {
            runList(context, releases.front(), *arguments);
        });
    };
    context.complete(list, run, {"csv"});
}

void addShow(const Command& propertySets, CommandContext& context, const std::shared_ptr<Arguments>& arguments) {
    const Command show = propertySets.addCommand("show", "What a set holds and applies to, or the sets for an entity");
    show.addOption("release", arguments->release, releaseHelp).required();
    show.addOption("name", arguments->name, "Name of a set or of an entity, in any letter case").required();
    show.addOption("--as-template", arguments->templateFile,
                   "Write an IFC file with the template of the set, or of each; - for standard output")
        .valueName("FILE");
    show.example("velkor propertysets show IFC4X3_ADD2 Pset_WallCommon --as-template wall.ifc");
    context.complete(show, [&context, arguments] {
        withReleases(context, {arguments->release}, [&](const SetLibrary& library, const std::vector<Release>& all) {
            runShow(context, library, all.front(), *arguments);
        });
    });
}

void addDiff(const Command& propertySets, CommandContext& context, const std::shared_ptr<Arguments>& arguments) {
    const Command diff = propertySets.addCommand("diff", "What changed from the sets of one release to another's");
    diff.addOption("before", arguments->release, releaseHelp).required();
    diff.addOption("after", arguments->after, "The release to compare with it").required();
    diff.addOption("name", arguments->name, "This set alone");
    diff.example("velkor propertysets diff IFC2X3 IFC4 Pset_WallCommon");
    const auto run = [&context, arguments] {
        withReleases(context, {arguments->release, arguments->after},
                     [&](const SetLibrary&, const std::vector<Release>& releases) {
                         runDiff(context, releases.front(), releases.back(), *arguments);
                     });
    };
    context.complete(diff, run, {"csv"});
}

} // namespace

void addPropertySetsCommand(const Command& app, CommandContext& context) {
    const Command propertySets = app.addCommand("propertysets", "The property sets and quantity sets that are defined");
    propertySets.requireCommand();
    propertySets.example("velkor propertysets show IFC4 Pset_WallCommon");
    const auto arguments = std::make_shared<Arguments>();
    addList(propertySets, context, arguments);
    addShow(propertySets, context, arguments);
    addDiff(propertySets, context, arguments);
}

} // namespace velkor::host
