/// What the object modeler itself may do to a component.
#pragma once

#include "velkor/objectmodeler/QORBaseUnknown.h"

struct ComponentAccess {
    /// Puts an object behind a component, with a reference of its own.
    static void setBehind(QORBaseUnknown& component, QORBaseUnknown* object) {
        if (object != nullptr) object->AddRef();
        if (component._behind != nullptr) component._behind->Release();
        component._behind = object;
    }
    static QORBaseUnknown* behind(const QORBaseUnknown& component) { return component._behind; }
    static unsigned long addReference(QORBaseUnknown& component) { return ++component._references; }
    static unsigned long dropReference(QORBaseUnknown& component) { return --component._references; }
};
