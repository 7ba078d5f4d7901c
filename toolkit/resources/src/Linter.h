/// The frame of the linters, one for each kind of resource file: what all kinds have in common is judged here after
/// a table of the kind's elements, the rest by the kind's own class.
///
/// A linter remembers the keys of the files that it has judged where the services read several into one table.
#pragma once

#include "Dictionaries.h"
#include "velkor/resources/ResourceCheck.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"
#include "XmlElement.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::lint {

/// An element that the services read.
struct ElementRule {
    const char* name;
    /// What it is read below, "" for the document; none when it is read wherever it stands.
    std::vector<const char*> parents;
    /// Attributes that must be there with a text, and others that may.
    std::vector<const char*> required;
    std::vector<const char*> optional = {};
    /// It is read at any depth below its parents.
    bool atAnyDepth = false;
};

struct Format {
    /// Null when any root will do, and elements of other names may hold those that are read.
    const char* root;
    std::vector<ElementRule> elements;
    /// Names beside those of the table are passed over unless they are slips of the pen.
    bool isOpen = false;
};

class Linter {
public:
    virtual ~Linter() = default;
    Linter(const Linter&) = delete;
    Linter& operator=(const Linter&) = delete;

    Judgement judge(const std::string& path, const XmlReading& reading);

protected:
    Linter(const Format& format, Dictionaries& dictionaries) : _format(format), _dictionaries(dictionaries) {}

    /// What is to be found beyond the structure.
    virtual void judgeEntries(const XmlElement& root) = 0;

    void countEntry() noexcept { ++_judgement.entries; }
    void error(int line, const char* code, std::string message, std::string hint = {});
    void warn(int line, const char* code, std::string message, std::string hint = {});

    /// An entity of one of the releases; names of property sets are passed over. True when it is one.
    bool judgeEntity(int line, const std::string& name, const Dictionaries::Releases& releases);
    /// A property of an entity: it need not be an attribute, but should not nearly be one.
    void judgeProperty(int line, const std::string& entity, const std::string& property,
                       const Dictionaries::Releases& releases);
    /// A value where the attribute of the entity, if it has one of the name, is an enumeration.
    void judgeEnumerator(int line, const std::string& entity, const std::string& attribute, const std::string& value,
                         const Dictionaries::Releases& releases, bool doesCaseCount);
    /// The first node of an element is none that the services examine.
    void judgePlace(const XmlElement& element);

    const std::string& path() const noexcept { return _path; }
    std::string_view bytes() const noexcept { return _bytes; }
    Dictionaries& dictionaries() const noexcept { return _dictionaries; }
    const QORIDOMDocument_var& document() const noexcept { return _document; }

private:
    void judgeStructure(const XmlElement& element, bool isInside);
    void judgeUnknown(const XmlElement& element, bool isInside);
    void judgeAttributes(const XmlElement& element, const ElementRule& rule);
    bool isInPlace(const XmlElement& element, const ElementRule& rule) const;
    bool holdsKnown(const XmlElement& element) const;
    const ElementRule* rule(std::string_view name) const;

    const Format& _format;
    Dictionaries& _dictionaries;
    std::string _path;
    std::string_view _bytes;
    QORIDOMDocument_var _document;
    Judgement _judgement;
};

using text::quoted;
using text::toUpper;
std::string inLine(int line);
/// The concatenation's hash, as the services take it.
unsigned int keyHash(const std::vector<std::string_view>& parts);
/// The parts in upper case, told apart.
std::string keyText(const std::vector<std::string_view>& parts);
/// `did you mean "…"?` for the known name from which only few letters differ, else empty.
std::string didYouMean(const std::vector<std::string_view>& known, std::string_view name);

} // namespace velkor::lint
