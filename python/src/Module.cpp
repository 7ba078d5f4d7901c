// The module velkor._velkor: what the package velkor shows.
#include "Bindings.h"
#include "Failure.h"
#include "Values.h"

#include <dlfcn.h>
#include <filesystem>

namespace velkor::python {

std::string shippedResources() {
    Dl_info library{};
    if (dladdr(reinterpret_cast<const void*>(&shippedResources), &library) == 0) return {};
    std::error_code none;
    const auto folder =
        (std::filesystem::absolute(library.dli_fname, none).parent_path() / VELKOR_RESOURCES).lexically_normal();
    return !none && std::filesystem::is_directory(folder, none) ? folder.string() : std::string();
}

} // namespace velkor::python

PYBIND11_MODULE(_velkor, module) {
    using namespace velkor::python;
    declareError(module);
    declareValues(module);
    ModelClass model(module, "Model",
                     "An IFC model opened for reading. It is closed when nothing of it is used any more.");
    declareModel(module, model);
    declareDictionaries(module, model);
    declareJudgement(module, model);
    declarePropertySets(module);
    declareIdentifiers(module, model);
    declareConversion(module, model);
    declareColumns(module, model);
}
