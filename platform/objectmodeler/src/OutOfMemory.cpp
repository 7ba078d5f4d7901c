#include "velkor/objectmodeler/OutOfMemory.h"

#include <new>

void velkor::objectmodeler::outOfMemory() {
    if (const std::new_handler handler = std::get_new_handler()) handler();
    throw std::bad_alloc();
}
