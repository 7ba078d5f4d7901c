/// Judges correspondences of neutral identifiers, IFC types and PLM types.
#pragma once

#include "Linter.h"
#include "QORIFCAECEntries.h"

namespace velkor::lint {

class AECLinter : public Linter {
public:
    explicit AECLinter(Dictionaries& dictionaries);

private:
    void judgeEntries(const XmlElement& root) override;
    void judgeNeutral(const XmlElement& neutral);
    void judgeSide(const XmlElement& side);
    void judgeCondition(const XmlElement& side);
    void judgeOrder(AECSide side);
};

} // namespace velkor::lint
