// velkor resources

#include "Commands.h"
#include "output/Json.h"
#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/resources/ResourceSearch.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

using Entry = ResourceSearch::Entry;

/// Files that people are shown by name, of a folder and of all that are used.
constexpr std::size_t mostShown = 10;

const char* name(ResourceRule rule) {
    switch (rule) {
    case ResourceRule::TheOnlyFile:
        return "the_only_file";
    case ResourceRule::FirstFile:
        return "first_file";
    case ResourceRule::FirstFileWithFinder:
        return "first_file_with_finder";
    case ResourceRule::AllFiles:
        return "all_files";
    case ResourceRule::FirstFileWithoutSetupData:
        return "first_file_without_setup_data";
    case ResourceRule::RuntimeView:
        return "runtime_view";
    }
    return "";
}

const char* name(Entry::Use use) {
    constexpr const char* names[] = {"used", "not_used", "hidden"};
    return names[static_cast<std::size_t>(use)];
}

// A file that is not used, as the rule wants it.
const char* notUsedBecause(const ResourceSearch& search) {
    if (!search.setupPaths.empty() && search.setupPaths.front().path == search.used.front().path)
        return "not used, the setup data are stronger";
    return "not used, the first file alone counts";
}

std::string useText(const ResourceSearch& search, const Entry& entry) {
    if (entry.use == Entry::Use::Hidden) return "hidden by the one in " + entry.hiddenBy;
    if (entry.use == Entry::Use::Used) return "used";
    return search.used.empty() ? "not used" : notUsedBecause(search);
}

std::string withState(const std::string& path, PathState state) {
    return path + (state == PathState::Readable ? "" : std::string(": ") + inWords(state));
}

// What a folder has, the first ones by name.
void writeEntries(Page& page, const ResourceSearch& search, const std::vector<Entry>& entries) {
    const std::size_t shown = entries.size() > mostShown ? mostShown - 1 : entries.size();
    for (std::size_t i = 0; i < shown; ++i) page.line("  " + entries[i].name + ": " + useText(search, entries[i]));
    if (shown == entries.size()) return;
    std::string rest;
    for (const Entry::Use use : {Entry::Use::Used, Entry::Use::NotUsed, Entry::Use::Hidden}) {
        const auto count = std::count_if(entries.begin() + static_cast<std::ptrdiff_t>(shown), entries.end(),
                                         [&](const Entry& entry) { return entry.use == use; });
        constexpr const char* words[] = {" used", " not used", " hidden"};
        if (count == 0) continue;
        rest += (rest.empty() ? "" : ", ") + text::grouped(static_cast<std::uint64_t>(count)) +
                words[static_cast<std::size_t>(use)];
    }
    page.line("  " + text::grouped(entries.size() - shown) + " others: " + rest);
}

void writeText(Page& page, const ResourceSearch& search) {
    page.section(search.kind.name, search.isUsable() ? "found" : "not found",
                 search.isUsable() ? Page::Style::Good : Page::Style::Bad);
    if (!search.setupKey.empty()) {
        page.line("setup data " + text::quoted(search.setupKey) + (search.setupPaths.empty() ? ": nothing" : ""));
        for (const auto& file : search.setupPaths) page.line("  " + withState(file.path, file.state));
    }
    for (const auto& folder : search.folders) {
        const bool isEmpty = folder.state == PathState::Readable && folder.entries.empty();
        page.line(folder.source + "  " + withState(folder.path, folder.state) + (isEmpty ? ": no such file" : ""));
        writeEntries(page, search, folder.entries);
    }
    if (search.used.size() > mostShown)
        page.line("-> " + text::grouped(search.used.size()) + " files");
    else
        for (const auto& file : search.used) page.line("-> " + withState(file.path, file.state));
    if (!search.releaseViews.empty()) page.line("models are judged by the files of their own release:");
    for (const auto& view : search.releaseViews)
        page.line("  " + view.release + "  " +
                  (view.state == PathState::Readable ? text::counted(view.files.size(), "file", "files")
                                                     : view.path + ' ' + inWords(view.state)) +
                  (view.isForServices ? ", those of the services" : ""));
    for (const std::string& remark : search.remarks) page.line({"note: " + remark, Page::Style::Doubtful});
    if (!search.isUsable()) page.line({search.reason, Page::Style::Bad});
}

Json filesJson(const std::vector<ResourceSearch::File>& files) {
    Json result = Json::array();
    for (const auto& file : files) result.push_back({{"path", file.path}, {"state", name(file.state)}});
    return result;
}

Json searchJson(const ResourceSearch& search) {
    Json folders = Json::array();
    for (const auto& folder : search.folders) {
        Json entries = Json::array();
        for (const Entry& entry : folder.entries) {
            entries.push_back({{"name", entry.name},
                               {"use", name(entry.use)},
                               {"hidden_by", entry.hiddenBy.empty() ? Json() : Json(entry.hiddenBy)}});
        }
        folders.push_back({{"source", folder.source},
                           {"path", folder.path},
                           {"state", name(folder.state)},
                           {"files", std::move(entries)}});
    }
    Json views = Json::array();
    for (const auto& view : search.releaseViews)
        views.push_back({{"release", view.release},
                         {"path", view.path},
                         {"state", name(view.state)},
                         {"files", view.files.size()},
                         {"services", view.isForServices}});
    return {{"name", search.kind.name},
            {"rule", name(search.kind.rule)},
            {"setup_data", search.setupKey.empty()
                               ? Json()
                               : Json{{"key", search.setupKey}, {"paths", filesJson(search.setupPaths)}}},
            {"folders", std::move(folders)},
            {"releases", std::move(views)},
            {"result", search.result ? Json(*search.result) : Json()},
            {"used", filesJson(search.used)},
            {"reason", search.isUsable() ? Json() : Json(search.reason)},
            {"remarks", search.remarks}};
}

void runResources(CommandContext& context) {
    const PlatformSetup setup(context.configuration, context.tell());
    Json resources = Json::array();
    Page page(context.out, context.color);
    const std::string& path = context.configuration.path;
    if (!context.json()) page.title(path.empty() ? "no configuration" : "configuration " + path);
    for (const ResourceKind& kind : resourceKinds) {
        const ResourceSearch search = searchResource(kind, setup);
        if (!search.isUsable()) context.status = Findings;
        if (context.json())
            resources.push_back(searchJson(search));
        else
            writeText(page, search);
    }
    if (!context.json()) return;
    writeJson(context.out,
              {{"configuration", path.empty() ? Json() : Json(path)}, {"resources", std::move(resources)}});
}

} // namespace

void addResourcesCommand(const Command& app, CommandContext& context) {
    const Command command =
        app.addCommand("resources", "The resource files that the services use, and where they are looked for");
    context.complete(command, [&context] { runResources(context); });
    command.example("velkor resources --config velkor.json\n\n"
                    "Exit status 1 when a kind of resource has no file that can be read.");
    addResourcesCheckCommand(command, context);
}

} // namespace velkor::host
