// The eight schemas: registered when the library is loaded, restored when somebody needs one, withdrawn
// when it is unloaded.

#include "QORDXForceLoadShemas.h"
#include "SchemaLoader.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/sdai/QORDXSdaiSchemaDecl.h"

namespace {

using namespace velkor::schemas;

template <SchemaTables (*tables)() noexcept>
void load() {
    build(DXSdaiDictionaryRepo::TheOne(), tables());
}

std::uint64_t add(DXSdaiDictionaryRepo::Loader loader, const char* name) {
    return DXSdaiDictionaryRepo::AddPtr(loader, DXSdaiString(name, DXSdaiString::ZeroTerminated));
}

// In this order: a host lists the schemas as they were registered.
const QORDXSdaiSchemaDecl ifc2x3(add(load<tablesOfIFC2X3>, "IFC2X3"));
const QORDXSdaiSchemaDecl ifc4(add(load<tablesOfIFC4>, "IFC4"));
const QORDXSdaiSchemaDecl ifc4x1(add(load<tablesOfIFC4X1>, "IFC4X1"));
const QORDXSdaiSchemaDecl ifc4x2(add(load<tablesOfIFC4X2>, "IFC4X2"));
const QORDXSdaiSchemaDecl ifc4x3Add2(add(load<tablesOfIFC4X3_ADD2>, "IFC4X3_ADD2"));
const QORDXSdaiSchemaDecl ifc4x3Rc1(add(load<tablesOfIFC4X3_RC1>, "IFC4X3_RC1"));
const QORDXSdaiSchemaDecl ifc4x3Rc3(add(load<tablesOfIFC4X3_RC3>, "IFC4X3_RC3"));
const QORDXSdaiSchemaDecl ifc4x4(add(load<tablesOfIFC4X4>, "IFC4X4"));

} // namespace

HRESULT QORDXForceLoadShemas() {
    return S_OK;
}

void QORDXSdaiIFC2X3dummy() {}
void QORDXSdaiIFC4dummy() {}
void QORDXSdaiIFC4X1dummy() {}
void QORDXSdaiIFC4X2dummy() {}
void QORDXSdaiIFC4X3_ADD2dummy() {}
void QORDXSdaiIFC4X4dummy() {}
void QORSdaiIFC4X3_RC1dummy() {}
void QORSdaiIFC4X3_RC3dummy() {}

void LoxLoadDicoIFC2X3(LoxDictionary&) {}
void LoxLoadDicoIFC4(LoxDictionary&) {}
void LoxLoadDicoIFC4X1(LoxDictionary&) {}
void LoxLoadDicoIFC4X2(LoxDictionary&) {}
void LoxLoadDicoIFC4X3_ADD2(LoxDictionary&) {}
void LoxLoadDicoIFC4X3_RC1(LoxDictionary&) {}
void LoxLoadDicoIFC4X3_RC3(LoxDictionary&) {}
void LoxLoadDicoIFC4X4(LoxDictionary&) {}
