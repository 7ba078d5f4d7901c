#include "ModelList.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace velkor::host {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 4> endings{".IFC", ".IFCZIP", ".ZIP", ".GZ"};

bool isNamedAsModel(const fs::path& path) {
    return std::ranges::count(endings, text::asciiUpper(path.extension().string())) > 0;
}

/// Puts models into a list.
class ModelLister {
public:
    explicit ModelLister(CommandContext& context) : _context(context) {}

    void addFile(const std::string& path) {
        if (_files.insert(identity(path)).second) _list.emplace_back(path);
    }

    // What is found stands in the list by path, and what cannot be read with it.
    void addFolder(const std::string& folder) {
        walk(folder);
        if (_found.empty()) _found.emplace(folder, "holds no model: no .ifc, .ifczip, .zip or .gz");
        for (const auto& [path, fault] : _found) {
            if (fault.empty())
                addFile(path);
            else
                _list.push_back(ModelInput::unreadable(path, path + ": " + fault));
        }
        _found.clear();
    }

    void addStandardInput() {
        if (!_isStreamTaken) _list.push_back(ModelInput::standardInput(_context.in));
        _isStreamTaken = true;
    }

    std::vector<ModelInput> take() {
        for (std::size_t i = 0; i < _list.size(); ++i) _list[i].place = i;
        return std::move(_list);
    }

private:
    static std::string identity(const fs::path& path) {
        std::error_code none;
        const fs::path real = fs::canonical(path, none);
        return none ? path.lexically_normal().string() : real.string();
    }

    // A link that leads nowhere, or what must not be looked at, is a file that cannot be read.
    static fs::file_type typeOf(const fs::directory_entry& entry) {
        std::error_code none;
        const fs::file_type type = entry.status(none).type();
        return type == fs::file_type::not_found || type == fs::file_type::none ? fs::file_type::regular : type;
    }

    // Folders are put off, so that no depth of them is too deep.
    void walk(const fs::path& root) {
        std::vector<fs::path> folders{root};
        while (!folders.empty()) {
            const fs::path folder = std::move(folders.back());
            folders.pop_back();
            // A link may lead back to where it stands.
            if (!_folders.insert(identity(folder)).second) continue;
            std::error_code error;
            fs::directory_iterator entries(folder, error);
            for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
                const fs::file_type type = typeOf(*entries);
                if (type == fs::file_type::directory)
                    folders.push_back(entries->path());
                else if (isNamedAsModel(entries->path()) && type == fs::file_type::regular)
                    _found.emplace(entries->path().string(), std::string());
            }
            if (error) _found.emplace(folder.string(), "cannot be read: " + error.message());
        }
    }

    CommandContext& _context;
    std::vector<ModelInput> _list;
    std::set<std::string> _files, _folders;
    // Paths, each with what is wrong with it.
    std::set<std::pair<std::string, std::string>> _found;
    bool _isStreamTaken = false;
};

} // namespace

std::optional<std::vector<ModelInput>> listModels(CommandContext& context, const ModelArguments& arguments) {
    ModelLister lister(context);
    for (const std::string& word : arguments.words) {
        std::error_code none;
        if (word == standardStream) {
            if (context.configurationFile == standardStream) {
                context.reportBadUsage("standard input is either the configuration or a model");
                return std::nullopt;
            }
            lister.addStandardInput();
        } else if (!fs::is_directory(word, none)) {
            lister.addFile(word);
        } else if (arguments.areFoldersTaken) {
            lister.addFolder(word);
        } else {
            context.reportBadUsage(word + ": is a folder; with -r the models in it are taken");
            return std::nullopt;
        }
    }
    return lister.take();
}

} // namespace velkor::host
