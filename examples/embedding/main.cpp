// Tells how long one unit of length in an IFC model is.
#include "QORIFCUnitServices.h"
#include "velkor/sdai/Model.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: length_unit MODEL\n", stderr);
        return 2;
    }

    // The model owns its instances: pointers to them are good until it goes.
    const auto model = velkor::sdai::Model::open(argv[1]);
    if (!model) {
        std::fprintf(stderr, "%s\n", model.error().message.c_str());
        return 3;
    }
    const auto assignments = (*model)->instancesOf("IFCUNITASSIGNMENT");
    if (assignments.empty()) {
        std::fputs("the model assigns no units\n", stderr);
        return 1;
    }

    // The services keep one model's units per process.
    QORIFCUnitServices::SetSchema(velkor::fileschemaOf((*model)->schema().name()));
    QORIFCUnitServices::StoreGlobalUnits(assignments.front());
    double millimetres = 0.0, radians = 0.0;
    if (QORIFCUnitServices::GetSIConversionFactorforGeometry(millimetres, radians) < 0) {
        std::fputs("the model's units give no factors\n", stderr);
        return 1;
    }
    std::printf("1 model unit = %.15g mm\n", millimetres);
    return 0;
}
