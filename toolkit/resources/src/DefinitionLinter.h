/// Judges definitions of property sets and quantity sets. The services read two elements of them alone, whatever
/// else the published format has.
#pragma once

#include "Linter.h"

namespace velkor::lint {

class DefinitionLinter : public Linter {
public:
    explicit DefinitionLinter(Dictionaries& dictionaries);

private:
    void judgeEntries(const XmlElement& root) override;
    void judgeClasses(const XmlElement& root);
};

} // namespace velkor::lint
