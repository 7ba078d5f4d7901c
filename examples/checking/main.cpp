// Checks a model and classifies its products by the resource files that Velkor comes with.
#include "velkor/check/ModelCheck.h"
#include "velkor/classification/ProductClasses.h"
#include "velkor/configuration/PlatformSetup.h"

#include <csignal>
#include <iostream>

namespace {

volatile std::sig_atomic_t interrupted = 0;

// Interrupted, the program still shows what it has found so far.
bool showProgress(const velkor::ProgressStep& step) {
    std::cerr << '\r' << step.work << ": " << step.done << " of " << step.total << "\033[K";
    return interrupted == 0;
}

void tell(const std::string& message) {
    std::cerr << message << '\n';
}

bool check(const velkor::sdai::Model& model) {
    const velkor::CheckResult result =
        velkor::checkModel(model, velkor::CheckOptions{.limit = 20, .progress = showProgress});
    std::cerr << '\n';
    for (const velkor::sdai::Problem& problem : result.problems) {
        std::cout << model.file().name() << ':' << problem.line << ": #" << problem.instance << ": " << problem.message
                  << '\n';
    }
    std::cout << result.total << " problems" << (result.isComplete ? "" : " so far") << '\n';
    return result.total == 0;
}

bool classify(const velkor::sdai::Model& model) {
    velkor::Configuration configuration;
    configuration.shippedResources = RESOURCES;
    // Takes back, when it goes, what it has set.
    const velkor::PlatformSetup setup(configuration, tell);
    const auto classified = velkor::classifyAsConfigured(model, setup, showProgress);
    if (!classified) {
        tell(classified.error());
        return false;
    }
    const velkor::Classification& result = classified->classification;
    std::cerr << '\n';
    for (const velkor::Classification::Decision& decision : result.decisions) {
        std::cout << decision.count << ' ' << (decision.entity ? decision.entity->name() : "complex instance") << ": "
                  << (decision.neutralId.empty() ? decision.reason : decision.neutralId) << '\n';
    }
    return result.unclassified == 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        tell("usage: judge MODEL");
        return 2;
    }
    std::signal(SIGINT, [](int) { interrupted = 1; });
    const auto model = velkor::sdai::Model::open(argv[1]);
    if (!model) {
        tell(model.error().message);
        return 3;
    }
    const bool isSound = check(**model), isClassified = classify(**model);
    return isSound && isClassified ? 0 : 1;
}
