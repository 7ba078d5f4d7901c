/// Marks what libvelkortoolkit.so exports; everything else in it is hidden.
#pragma once

#define VELKOR_TOOLKIT_API [[gnu::visibility("default")]]
/// What a class that is exported keeps to itself.
#define VELKOR_TOOLKIT_LOCAL [[gnu::visibility("hidden")]]
