/// Judges definitions of property sets and quantity sets: the two elements of them that the services read, and what
/// models are judged by, against the dictionary of the release that a definition is for.
#pragma once

#include "Linter.h"
#include "velkor/propertysets/DefinitionFile.h"

#include <set>

namespace velkor::lint {

class DefinitionLinter : public Linter {
public:
    explicit DefinitionLinter(Dictionaries& dictionaries);

private:
    void judgeEntries(const XmlElement& root) override;
    void judgeNames(const XmlElement& root);
    void judgeClasses(const XmlElement& root);
    void judgeFacts(const XmlElement& root);
    void tell(const DefinitionFault& fault, int line, std::string hint);
    bool isClass(const std::string& name);

    /// What the definition is for; all that define sets when it does not say.
    Dictionaries::Releases _releases;
    /// Where a text is missing, and where a class is unknown: models cannot do more with it than the services.
    std::set<int> _emptyLines;
    std::set<int> _unknownLines;
};

} // namespace velkor::lint
