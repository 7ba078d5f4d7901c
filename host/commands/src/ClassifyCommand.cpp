// velkor classify

#include "Commands.h"
#include "LimitOption.h"
#include "models/ModelWork.h"
#include "output/ClassificationText.h"
#include "output/Csv.h"
#include "output/Json.h"
#include "terminal/DisplayText.h"
#include "terminal/TextTable.h"
#include "velkor/classification/ProductClasses.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

using Decision = Classification::Decision;

struct Options {
    ModelArguments models;
    std::size_t limit = defaultLimit;
};

using Result = ConfiguredClassification;

std::string explanation(const Decision& decision) {
    if (decision.neutralId.empty()) return "none: " + decision.reason;
    const AECEntry& entry = *decision.entry;
    std::string text = entry.type + ", priority " + std::to_string(entry.priority);
    if (entry.condition) text += ", " + entry.condition->attribute + " is " + text::quoted(entry.condition->value);
    return text + " (line " + std::to_string(entry.line) + ')';
}

/// Calls with each product that is to be listed.
template <class Show>
void eachListed(const sdai::Model& model, const Classification& classification, std::size_t limit, Show show) {
    const std::size_t listed = std::min(limit, classification.products.size());
    for (std::size_t i = 0; i < listed; ++i) {
        const Classification::Product& product = classification.products[i];
        show(*model.instanceAt(product.number), classification.decisions[product.decision]);
    }
}

void writeText(TextSink out, const sdai::Model& model, const Result& result, std::size_t limit) {
    const Classification& classification = result.classification;
    TextTable products({{"product", TextTable::Right}, {"entity"}, {"name"}, {"neutral id"}, {"PLM type"}, {"entry"}});
    eachListed(model, classification, limit, [&](const DXSdaiAppInstance& product, const Decision& decision) {
        products.add({'#' + std::to_string(product.id()), entityName(decision), product.GetAttr("NAME").asString(),
                      orDash(decision.neutralId), orDash(decision.plmType), explanation(decision)});
    });
    if (!products.empty()) {
        products.write(out);
        out << '\n';
    }
    TextTable classes({{"entity"}, {"neutral id"}, {"PLM type"}, {"count", TextTable::Right}});
    for (const ProductClass& group : classesOf(classification)) {
        const Decision& decision = *group.decision;
        classes.add(
            {entityName(decision), orDash(decision.neutralId), orDash(decision.plmType), text::grouped(group.count)});
    }
    if (!classes.empty()) {
        classes.write(out);
        out << '\n';
    }
    const std::size_t total = classification.products.size();
    out << model.file().name() << ": " << text::counted(total, "product", "products");
    if (total > limit) out << ", the first " << text::grouped(limit) << " are listed (--limit shows more)";
    if (classification.unclassified > 0)
        out << "; " << text::grouped(classification.unclassified) << " without neutral id";
    out << "\nby " << result.documentPath << '\n';
}

Json entryJson(const std::optional<AECEntry>& entry) {
    if (!entry) return nullptr;
    const Json condition = entry->condition
                               ? Json{{"attribute", entry->condition->attribute}, {"value", entry->condition->value}}
                               : Json();
    return {{"ifc_type", entry->type}, {"priority", entry->priority}, {"condition", condition}, {"line", entry->line}};
}

Json resultJson(const sdai::Model& model, const Result& result, std::size_t limit) {
    const Classification& classification = result.classification;
    Json products = Json::array();
    eachListed(model, classification, limit, [&](const DXSdaiAppInstance& product, const Decision& decision) {
        products.push_back({{"instance", product.id()},
                            {"global_id", product.GetAttr("GLOBALID").asString()},
                            {"entity", entityName(decision)},
                            {"name", product.GetAttr("NAME").asString()},
                            {"neutral_id", textOrNull(decision.neutralId)},
                            {"plm_type", textOrNull(decision.plmType)},
                            {"presented_as", textOrNull(decision.ifcType)},
                            {"entry", entryJson(decision.entry)},
                            {"reason", textOrNull(decision.reason)}});
    });
    return {{"file", model.file().path()},
            {"release", model.schema().name()},
            {"document", result.documentPath},
            {"total", classification.products.size()},
            {"unclassified", classification.unclassified},
            {"classes", classesJson(classification)},
            {"products", std::move(products)}};
}

void writeCsv(CommandContext& context, const sdai::Model& model, const Classification& classification,
              std::size_t limit) {
    context.out << "instance,global_id,entity,name,neutral_id,plm_type,ifc_type,priority,condition_attribute,"
                   "condition_value\r\n";
    eachListed(model, classification, limit, [&](const DXSdaiAppInstance& product, const Decision& decision) {
        const AECEntry entry = decision.entry.value_or(AECEntry());
        const AECCondition condition = entry.condition.value_or(AECCondition());
        context.out << product.id() << ',' << csvField(product.GetAttr("GLOBALID").asString()) << ','
                    << csvField(entityName(decision)) << ',' << csvField(product.GetAttr("NAME").asString()) << ','
                    << csvField(decision.neutralId) << ',' << csvField(decision.plmType) << ',' << csvField(entry.type)
                    << ',' << (decision.entry ? std::to_string(entry.priority) : "") << ','
                    << csvField(condition.attribute) << ',' << csvField(condition.value) << "\r\n";
    });
    const std::size_t total = classification.products.size();
    if (total > limit) {
        context.err << "velkor: the first " << text::grouped(limit) << " of " << text::grouped(total)
                    << " products are listed (--limit shows more)\n";
    }
}

void runClassify(CommandContext& context, const Options& options, const ModelInput& input, Json& facts) {
    const auto model = input.openModel(context);
    if (!model) return;
    const PlatformSetup setup(context.configuration, context.tell());
    const auto result = classifyAsConfigured(*model, setup, context.progress());
    if (!result) return context.reportUnreadable(result.error());
    const Classification& classification = result->classification;
    context.status = classification.unclassified == 0 ? Done : Findings;
    facts = {{"products", classification.products.size()}, {"unclassified", classification.unclassified}};
    if (context.json())
        writeModelJson(context, resultJson(*model, *result, options.limit));
    else if (context.csv())
        writeCsv(context, *model, classification, options.limit);
    else
        writeText(context.out, *model, *result, options.limit);
}

} // namespace

void addClassifyCommand(const Command& app, CommandContext& context) {
    const Command command =
        app.addCommand("classify", "The neutral identifier and the PLM type of every product of a model");
    const auto options = std::make_shared<Options>();
    options->models.addTo(command);
    addLimitOption(command, options->limit, "products");
    command.example("velkor classify house.ifc --format csv\n\n"
                    "Exit status 1 when a product has no neutral identifier.");
    const auto run = [&context, options] {
        ModelWork work{.run = [options](CommandContext& one, const ModelInput& input, Json& facts) {
            runClassify(one, *options, input, facts);
        }};
        work.totals = {{"products", "product", "products"},
                       {"unclassified", "without neutral id", "without neutral id"}};
        work.isHeaded = true;
        workOnModels(context, options->models, work);
    };
    context.complete(command, run, {jsonLinesFormat, "csv"});
}

} // namespace velkor::host
