#include "velkor/sdai/QORDXSdaiSchemaDecl.h"

#include "velkor/sdai/DXSdaiDictionaryRepo.h"

QORDXSdaiSchemaDecl::~QORDXSdaiSchemaDecl() {
    if (_handle != 0) DXSdaiDictionaryRepo::TheOne().withdraw(_handle);
}
