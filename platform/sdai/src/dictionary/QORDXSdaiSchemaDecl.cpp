#include "sdai/QORDXSdaiSchemaDecl.h"

#include "sdai/DXSdaiDictionaryRepo.h"

QORDXSdaiSchemaDecl::~QORDXSdaiSchemaDecl() {
    if (_handle != 0) DXSdaiDictionaryRepo::TheOne().withdraw(_handle);
}
