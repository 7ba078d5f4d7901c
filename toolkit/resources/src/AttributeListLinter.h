/// Judges lists of attributes by generation of the schema.
#pragma once

#include "IFCAttributeList.h"
#include "Linter.h"

#include <map>

namespace velkor::lint {

class AttributeListLinter : public Linter {
public:
    explicit AttributeListLinter(Dictionaries& dictionaries);

private:
    void judgeEntries(const XmlElement& root) override;
    void judgeLevel(const XmlElement& level);
    /// The entries below an element but for those of another level.
    void judgeBelow(const XmlElement& element, IfcLevel level, const Dictionaries::Releases& releases);
    void judgeEntry(const XmlElement& entry, IfcLevel level, const Dictionaries::Releases& releases);

    /// Keys of all levels, and their lines.
    std::map<std::string, int> _keys;
};

} // namespace velkor::lint
