#include "velkor/configuration/ConfigurationReader.h"

#include "JsonTree.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/files/InputText.h"
#include "velkor/files/Paths.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <unordered_map>

namespace velkor {

namespace {

using Kind = JsonNode::Kind;

// A configuration is written by hand; what is larger is something else.
constexpr std::size_t mostBytes = 1 << 20;

class Reader {
public:
    explicit Reader(const std::string& path) : _path(path), _folder(std::filesystem::path(path).parent_path()) {
        _result.configuration.path = path;
    }

    ConfigurationReading read(std::string_view text) {
        const JsonTree tree = readJson(text);
        if (tree.fault) {
            const std::string column = tree.fault->column == 0 ? "" : ':' + std::to_string(tree.fault->column);
            _errors.emplace(tree.fault->line,
                            _path + ':' + std::to_string(tree.fault->line) + column + ": " + tree.fault->reason);
        } else if (tree.root.kind != Kind::Object) {
            error(tree.root.line, "", "expected an object, found " + tree.root.description());
        } else {
            readSections(tree.root);
        }
        for (const auto& [line, message] : _errors) _result.errors.push_back(message);
        return std::move(_result);
    }

private:
    void error(std::size_t line, const std::string& place, const std::string& message) {
        _errors.emplace(line,
                        _path + ':' + std::to_string(line) + ": " + place + (place.empty() ? "" : ": ") + message);
    }

    // Whether the node is of a kind; if not, what was expected is an error.
    bool expect(const JsonNode& node, Kind kind, const std::string& place, const char* expected) {
        if (node.kind == kind) return true;
        error(node.line, place, std::string("expected ") + expected + ", found " + node.description());
        return false;
    }

    // Repeated keys are errors at every level, and so are unknown ones where `known` is given.
    void checkKeys(const JsonNode& object, const std::string& place, const std::vector<std::string_view>* known) {
        std::unordered_map<std::string_view, std::size_t> lines;
        for (const JsonNode::Member& member : object.members) {
            const std::string here = place + (place.empty() ? "" : " / ") + text::quoted(member.key);
            if (const auto [first, isNew] = lines.try_emplace(member.key, member.line); !isNew)
                error(member.line, here, "the key is there already, in line " + std::to_string(first->second));
            if (member.key.find('\0') != std::string::npos)
                error(member.line, here, "expected a key without zero characters");
            if (known == nullptr || std::ranges::find(*known, member.key) != known->end()) continue;
            const auto nearest = text::nearestNames(*known, member.key, 1);
            const std::string hint = nearest.empty() ? "expected one of " + text::joined(*known, ", ", text::quoted)
                                                     : "did you mean " + text::quoted(nearest[0]);
            error(member.line, here, "unknown key; " + hint + (nearest.empty() ? "" : "?"));
        }
    }

    void readSections(const JsonNode& root) {
        const auto known = namesAt(ConfigurationPlace::Key);
        checkKeys(root, "", &known);
        Configuration& configuration = _result.configuration;
        for (const auto& [key, line, value] : root.members) {
            const std::string place = text::quoted(key);
            if (key == keys::settings) readSettings(value, place);
            if (key == keys::conversionOptions) readConversionOptions(value, place);
            if (key == keys::setupData) readSetupData(value, place);
            if (key == keys::collectionStandard)
                configuration.collectionStandard = readFolders(value, place, IsSeparatedList::Yes);
            if (key == keys::defaultCollectionStandard)
                configuration.defaultCollectionStandard = readFolders(value, place, IsSeparatedList::Yes);
            if (key == keys::runtimeView) configuration.runtimeView = readFolders(value, place, IsSeparatedList::No);
            if (key == keys::definitionsRelease) readDefinitionsRelease(value, place);
            if (key == keys::customPropertySets) readCustomPropertySets(value, place);
            if (key == keys::knowledgeTypes) readKnowledgeTypes(value, place);
        }
    }

    void readSettings(const JsonNode& section, const std::string& place) {
        if (!expect(section, Kind::Object, place, "an object of repositories")) return;
        checkKeys(section, place, nullptr);
        for (const auto& [repository, line, settings] : section.members) {
            const std::string inside = place + " / " + text::quoted(repository);
            if (!expect(settings, Kind::Object, inside, "an object of integers")) continue;
            checkKeys(settings, inside, nullptr);
            for (const auto& [name, settingLine, value] : settings.members) {
                using Limits = std::numeric_limits<short>;
                const bool fits = value.kind == Kind::Integer && value.integer && *value.integer >= Limits::min() &&
                                  *value.integer <= Limits::max();
                if (fits)
                    _result.configuration.settings.push_back({repository, name, static_cast<short>(*value.integer)});
                else
                    error(value.line, inside + " / " + text::quoted(name),
                          "expected an integer from -32768 to 32767, found " + value.description());
            }
        }
    }

    void readConversionOptions(const JsonNode& section, const std::string& place) {
        if (!expect(section, Kind::Object, place, "an object of texts")) return;
        checkKeys(section, place, nullptr);
        for (const auto& [name, line, value] : section.members) {
            if (isText(value, place + " / " + text::quoted(name)))
                _result.configuration.conversionOptions.emplace_back(name, value.text);
        }
    }

    void readSetupData(const JsonNode& section, const std::string& place) {
        if (!expect(section, Kind::Object, place, "an object of paths")) return;
        checkKeys(section, place, nullptr);
        for (const auto& [key, line, value] : section.members) {
            const std::string inside = place + " / " + text::quoted(key);
            const std::size_t bar = key.find('|');
            if (bar == 0 || bar == std::string::npos || bar + 1 == key.size() || key.find('|', bar + 1) != key.npos)
                error(line, inside, "expected a key \"RESOURCESET|CATEGORY\"");
            Configuration::SetupResource resource{key, {}};
            if (value.kind == Kind::Text)
                addPath(resource.paths, value, inside);
            else if (expect(value, Kind::List, inside, "a path or a list of paths"))
                addPaths(resource.paths, value, inside);
            _result.configuration.setupData.push_back(std::move(resource));
        }
    }

    enum class IsSeparatedList { No, Yes };

    std::vector<std::string> readFolders(const JsonNode& section, const std::string& place, IsSeparatedList separated) {
        std::vector<std::string> folders;
        if (expect(section, Kind::List, place, "a list of texts")) addPaths(folders, section, place, separated);
        return folders;
    }

    void addPaths(std::vector<std::string>& paths, const JsonNode& list, const std::string& place,
                  IsSeparatedList separated = IsSeparatedList::No) {
        std::size_t number = 0;
        for (const JsonNode& item : list.items) {
            const std::string inside = place + " / item " + std::to_string(++number);
            const std::size_t before = paths.size();
            addPath(paths, item, inside);
            // The folder of the configuration may be the one that has it.
            if (separated == IsSeparatedList::Yes && paths.size() > before &&
                paths.back().find(';') != std::string::npos)
                error(item.line, inside, "expected a folder without \";\", found " + text::quoted(paths.back()));
        }
    }

    void addPath(std::vector<std::string>& paths, const JsonNode& node, const std::string& place) {
        if (!isText(node, place)) return;
        if (node.text.empty()) return error(node.line, place, "expected a path, found an empty text");
        const std::filesystem::path path(files::nativePath(QORUnicodeString(std::string_view(node.text))));
        paths.push_back((_folder / path).string());
    }

    bool isText(const JsonNode& node, const std::string& place) {
        if (!expect(node, Kind::Text, place, "a text")) return false;
        // Paths and variables end at the first one.
        if (node.text.find('\0') == std::string::npos) return true;
        error(node.line, place, "expected a text without zero characters");
        return false;
    }

    void readDefinitionsRelease(const JsonNode& section, const std::string& place) {
        if (!isText(section, place)) return;
        if (!isDefinitionRelease(section.text))
            error(section.line, place,
                  "expected one of " + text::joined(definitionReleases, ", ", text::quoted) + ", found " +
                      text::quoted(section.text));
        _result.configuration.definitionsRelease = section.text;
    }

    void readCustomPropertySets(const JsonNode& section, const std::string& place) {
        if (!expect(section, Kind::List, place, "a list of names")) return;
        std::size_t number = 0;
        for (const JsonNode& item : section.items) {
            const std::string inside = place + " / item " + std::to_string(++number);
            if (!isText(item, inside)) continue;
            if (item.text.empty()) error(item.line, inside, "expected a name, found an empty text");
            _result.configuration.customPropertySets.push_back(item.text);
        }
    }

    void readKnowledgeTypes(const JsonNode& section, const std::string& place) {
        if (!expect(section, Kind::List, place, "a list of objects")) return;
        std::vector<std::size_t> lines;
        std::size_t number = 0;
        for (const JsonNode& item : section.items) {
            const std::string inside = place + " / item " + std::to_string(++number);
            if (!expect(item, Kind::Object, inside, "an object")) continue;
            _result.configuration.knowledgeTypes.push_back(readKnowledgeType(item, inside));
            lines.push_back(item.line);
        }
        checkKnowledgeTypes(lines, place);
    }

    Configuration::KnowledgeType readKnowledgeType(const JsonNode& object, const std::string& place) {
        const auto known = namesAt(ConfigurationPlace::KnowledgeTypeKey);
        checkKeys(object, place, &known);
        Configuration::KnowledgeType type;
        bool hasName = false, hasKind = false;
        for (const auto& [key, line, value] : object.members) {
            const std::string inside = place + " / " + text::quoted(key);
            if (key == keys::typeName) {
                hasName = true;
                if (isText(value, inside)) type.name = value.text;
                if (value.kind == Kind::Text && value.text.empty())
                    error(value.line, inside, "expected a name, found an empty text");
            } else if (key == keys::typeParent) {
                if (isText(value, inside)) type.parent = value.text;
            } else if (key == keys::typeAbstract) {
                if (expect(value, Kind::Boolean, inside, "true or false")) type.isAbstract = value.text == "true";
            } else if (key == keys::typeKind) {
                hasKind = true;
                type.isSpecialization = value.text == "specialization";
                const bool isKind = value.kind == Kind::Text && (type.isSpecialization || value.text == "knowledge");
                if (!isKind)
                    error(value.line, inside,
                          "expected \"knowledge\" or \"specialization\", found " +
                              (value.kind == Kind::Text ? text::quoted(value.text) : value.description()));
            }
        }
        if (!hasName) error(object.line, place, "expected a key \"name\"");
        if (!hasKind) error(object.line, place, "expected a key \"kind\"");
        return type;
    }

    // Names are unique, parents are known, and no type is its own ancestor.
    void checkKnowledgeTypes(const std::vector<std::size_t>& lines, const std::string& place) {
        const auto& types = _result.configuration.knowledgeTypes;
        std::unordered_map<std::string_view, std::size_t> byName;
        for (std::size_t i = 0; i < types.size(); ++i) {
            const auto [first, isNew] = byName.try_emplace(types[i].name, i);
            if (!isNew && !types[i].name.empty())
                error(lines[i], place,
                      "the type " + text::quoted(types[i].name) + " is there already, in line " +
                          std::to_string(lines[first->second]));
        }
        // Each type is passed once: `round` tells by which walk to the ancestors.
        std::vector<std::size_t> round(types.size());
        for (std::size_t i = 0; i < types.size(); ++i) {
            for (std::size_t at = i; round[at] == 0;) {
                round[at] = i + 1;
                if (types[at].parent.empty()) break;
                const auto parent = byName.find(types[at].parent);
                const std::string child = "the parent of " + text::quoted(types[at].name);
                if (parent == byName.end()) {
                    error(lines[at], place, child + " is unknown: " + text::quoted(types[at].parent));
                    break;
                }
                if (round[parent->second] == i + 1) {
                    error(lines[at], place, child + ", " + text::quoted(types[at].parent) + ", is derived from it");
                    break;
                }
                at = parent->second;
            }
        }
    }

    std::string _path;
    std::filesystem::path _folder;
    // By line.
    std::multimap<std::size_t, std::string> _errors;
    ConfigurationReading _result;
};

} // namespace

tl::expected<ConfigurationReading, files::OpenError> readConfiguration(const std::string& path,
                                                                       std::istream* standardInput) {
    auto text = files::readInput(path, standardInput, mostBytes + 1);
    if (text && text->size() > mostBytes)
        text = tl::unexpected(files::OpenError{files::OpenError::Code::TooLarge, "it is larger than 1 MiB"});
    if (!text)
        return tl::unexpected(files::OpenError{text.error().code, path + ": cannot be read: " + text.error().message});
    return parseConfiguration(*text, path);
}

ConfigurationReading parseConfiguration(std::string_view text, const std::string& path) {
    return Reader(path).read(text);
}

} // namespace velkor
