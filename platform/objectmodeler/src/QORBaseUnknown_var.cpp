#include "velkor/objectmodeler/QORBaseUnknown_var.h"

void* QORBaseUnknown_var::CastTo(const IID& interfaceId) const {
    void* interface = nullptr;
    if (_object != nullptr && FAILED(_object->QueryInterface(interfaceId, &interface))) return nullptr;
    return interface;
}

void QORBaseUnknown_var::ThrowErrorNullVar() {
    throw QORNullVarError();
}
