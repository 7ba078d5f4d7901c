/// Marks what libvelkor.so exports; everything else in it is hidden.
#pragma once

#define VELKOR_API [[gnu::visibility("default")]]
