/// Marks what libvelkorplatform.so exports; everything else in it is hidden.
#pragma once

#define VELKOR_PLATFORM_API [[gnu::visibility("default")]]
/// What a class that is exported keeps to itself.
#define VELKOR_PLATFORM_LOCAL [[gnu::visibility("hidden")]]
