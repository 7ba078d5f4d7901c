/// Judges mappings of PLM attributes to properties. The services read all files into one table, in which the first
/// entry of a key counts: so does this linter over the files that it judges.
#pragma once

#include "Linter.h"

#include <map>
#include <set>

namespace velkor::lint {

class PLMAttributesLinter : public Linter {
public:
    explicit PLMAttributesLinter(Dictionaries& dictionaries);

private:
    struct Group {
        std::string id;
        const XmlElement* element;
        /// The lines that count, those taken in as well, and each by its PLM attribute in upper case.
        std::vector<const XmlElement*> lines;
        std::map<std::string, const XmlElement*> byAttribute;
        /// Groups whose lines it has taken in.
        std::set<std::size_t> sources;
        bool isUsed = false;

        /// Adds a line unless there is one of its attribute; gives the one that counts.
        const XmlElement* add(const XmlElement& line);
    };
    struct Place {
        std::string path;
        std::string target;
        int number;
    };

    void judgeEntries(const XmlElement& root) override;
    void judgeLine(const XmlElement& line);
    void buildGroups(const XmlElement& root);
    void buildGroup(std::size_t index);
    void include(std::size_t index, const XmlElement& include);
    void judgeInclude(std::size_t index, const XmlElement& include, const std::set<std::size_t>& taken);
    void judgeMapping(const XmlElement& mapping);
    void takeIn(const XmlElement& mapping, const XmlElement& include);
    /// Where the entry of a key stands that counts in place of this one; null when this one counts.
    const Place* addKey(const XmlElement& mapping, const XmlElement& line, int number);
    void tellUnresolved(const XmlElement& include);
    void tellUnused();
    std::size_t groupNamed(const std::string& id) const;
    std::string shown(const Place& place) const;

    std::vector<Group> _groups;
    /// Groups that can be found, by their ids in upper case.
    std::map<std::string, std::size_t> _complete;
    std::map<std::string, Place> _keys;
};

} // namespace velkor::lint
