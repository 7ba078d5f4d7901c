/// The products of a model, each with the neutral identifier and the PLM type that the services give it.
///
///     const Classification result = classify(*model);
///     for (const auto& product : result.products) show(product.number, result.decisions[product.decision].plmType);
#pragma once

#include "QORIFCAECEntries.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velkor {

struct Classification {
    /// What all products of one entity for which the same entry decides have in common.
    struct Decision {
        /// Null for complex instances.
        const sdai::EntityDefinition* entity = nullptr;
        /// Empty when the services give none.
        std::string neutralId;
        /// Empty when there is none.
        std::string plmType;
        /// The type as which the product was presented when the services answered; empty when they did not.
        std::string ifcType;
        /// The entry of the document that decided; nothing without one.
        std::optional<AECEntry> entry;
        /// Why there is no neutral identifier; empty when there is one.
        std::string reason;
        std::uint64_t count = 0;
    };
    /// A product, and what decided about it.
    struct Product {
        /// Of the instance, in file order.
        std::uint32_t number;
        /// Position in `decisions`.
        std::uint32_t decision;
    };

    std::vector<Decision> decisions;
    /// In file order.
    std::vector<Product> products;
    std::uint64_t unclassified = 0;
    /// False when the caller has ended the work before its end.
    bool isComplete = true;
};

/// Asks the services about every IFCPRODUCT. A product is presented as its own entity, and as long as there is no
/// answer as the next supertype. In a release that has no entity for a class but a type, a product of that type is
/// presented as the class first: a pump of IFC2X3 as IFCPUMP. The platform must have been set up; the services decide
/// by the document that they have. Each product is presented once per type; what its properties are
/// costs time and memory in proportion to the text of the model's relationships.
VELKOR_TOOLKIT_API Classification classify(const sdai::Model& model, const Progress& progress = {});

} // namespace velkor
