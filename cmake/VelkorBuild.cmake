# What every target of the project has in common, and the few functions that declare targets. All of it holds in this
# folder and below, none of it for a project that embeds Velkor.

include(GNUInstallDirs)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow)
if(VELKOR_WERROR)
  add_compile_options(-Werror)
endif()
add_compile_options(-fno-semantic-interposition)
# Assertion reports name source units by their path in the project.
add_compile_options(-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
# A compiler cache may hand over paths as seen from the build tree.
file(RELATIVE_PATH _source ${CMAKE_BINARY_DIR} ${PROJECT_SOURCE_DIR})
add_compile_options(-fmacro-prefix-map=${_source}=)
add_link_options(-Wl,--as-needed -Wl,-O1)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # A unique symbol would keep the library in the process after dlclose.
  add_compile_options(-fno-gnu-unique)
endif()
if(VELKOR_SANITIZE)
  add_compile_options(-fsanitize=${VELKOR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VELKOR_SANITIZE})
else()
  # Sanitized libraries leave the runtime's symbols to the program.
  add_link_options(-Wl,--no-undefined)
endif()
if(VELKOR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_package(Threads REQUIRED)

# Headers of the standard library and of GoogleTest take a good part of the time of most units. A compiler cache knows a
# unit by its text and does without. What a unit includes itself has to suffice: the second compiler builds without.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(_precompile ON)
else()
  set(_precompile OFF)
endif()
option(VELKOR_PRECOMPILE "Precompile headers that most units include" ${_precompile})
if(VELKOR_PRECOMPILE)
  # Of strings that it has read from there, g++ 12 believes their own buffers too small. Builds without keep the warnings.
  add_compile_options(-Wno-array-bounds -Wno-stringop-overflow)
  set(velkor_standard_headers
    <algorithm> <functional> <map> <memory> <optional> <string> <string_view> <unordered_map> <vector> <tl/expected.hpp>)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/precompiled/Unit.cpp CONTENT "int main() {}\n")
  add_library(velkor_precompiled OBJECT ${PROJECT_BINARY_DIR}/precompiled/Unit.cpp)
  target_precompile_headers(velkor_precompiled PRIVATE ${velkor_standard_headers})
endif()

# velkor_area(LIBRARY NAME FOLDER folder SOURCES … DEPENDS area … LIBRARIES target …)
# One folder of a library that is built of areas: its headers are seen only by areas that name it in DEPENDS.
# With FOLDER it is an area within one, a folder of src whose private headers those areas see too.
# What lies in the library's own include folder, its export macro, is seen by all. velkor_library() puts the areas
# together.
function(velkor_area LIBRARY NAME)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;DEPENDS;LIBRARIES" ${ARGN})
  set(target ${LIBRARY}_${NAME})
  add_library(${target} OBJECT ${ARG_SOURCES})
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH library_folder)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>
                                              $<BUILD_INTERFACE:${library_folder}/include>)
  if(ARG_FOLDER)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/src/${ARG_FOLDER}>)
  else()
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/src)
  endif()
  list(TRANSFORM ARG_DEPENDS PREPEND ${LIBRARY}_)
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} ${ARG_LIBRARIES})
  if(TARGET ${LIBRARY}_precompiled)
    target_precompile_headers(${target} REUSE_FROM ${LIBRARY}_precompiled)
  elseif(VELKOR_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM velkor_precompiled)
  endif()
  set_property(GLOBAL APPEND PROPERTY ${LIBRARY}_areas ${target})
  set_property(GLOBAL APPEND PROPERTY ${LIBRARY}_includes ${CMAKE_CURRENT_SOURCE_DIR}/include)
endfunction()

# velkor_library(LIBRARY NAME [INTERNAL] [ORDER place …])
# The shared library of all areas declared so far. It exports what its headers mark and has a versioned soname; other
# projects, whether they embed or find Velkor, know it as velkor::NAME. Who links it sees the headers of all areas, unless
# they are INTERNAL. The objects are linked, and so their static objects built, in the order of the areas' declaration, or
# in that of ORDER: a place there is AREA/UNIT for one unit of an area, AREA for all others of it.
function(velkor_library LIBRARY NAME)
  cmake_parse_arguments(ARG "INTERNAL" "" "ORDER" ${ARGN})
  add_library(${LIBRARY} SHARED)
  add_library(velkor::${NAME} ALIAS ${LIBRARY})
  set(map ${PROJECT_SOURCE_DIR}/cmake/exports.map)
  set_target_properties(${LIBRARY} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                              EXPORT_NAME ${NAME} LINK_DEPENDS ${map})
  target_link_options(${LIBRARY} PRIVATE -Wl,--version-script=${map})
  set_property(GLOBAL APPEND PROPERTY ${LIBRARY}_includes ${CMAKE_CURRENT_SOURCE_DIR}/include)
  get_property(areas GLOBAL PROPERTY ${LIBRARY}_areas)
  if(NOT ARG_ORDER)
    list(TRANSFORM areas REPLACE "^${LIBRARY}_" "" OUTPUT_VARIABLE ARG_ORDER)
  endif()
  foreach(place IN LISTS ARG_ORDER)
    string(REGEX MATCH "^[^/]+" area ${place})
    if(place STREQUAL area)
      set(units ${ARG_ORDER})
      list(FILTER units INCLUDE REGEX "^${area}/")
      list(TRANSFORM units REPLACE "^${area}(/.+)" "|\\1[.]cpp")
      string(CONCAT filter EXCLUDE "," "^$" ${units})
    else()
      string(REGEX REPLACE "^${area}(/.+)" "INCLUDE,\\1[.]cpp" filter ${place})
    endif()
    target_sources(${LIBRARY} PRIVATE "$<FILTER:$<TARGET_OBJECTS:${LIBRARY}_${area}>,${filter}>")
  endforeach()
  # By way of a target in between, areas are linked without their objects, which stand in their order already.
  add_library(${LIBRARY}_areas INTERFACE)
  target_link_libraries(${LIBRARY}_areas INTERFACE ${areas})
  target_link_libraries(${LIBRARY} PRIVATE ${LIBRARY}_areas)
  if(NOT ARG_INTERNAL)
    get_property(includes GLOBAL PROPERTY ${LIBRARY}_includes)
    list(REMOVE_DUPLICATES includes)
    target_include_directories(${LIBRARY} INTERFACE "$<BUILD_INTERFACE:${includes}>")
  endif()
endfunction()

# velkor_test(NAME SOURCES … LIBRARIES target … DEFINITIONS …)
# A GoogleTest program; every test in it is a test of CTest.
function(velkor_test NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;DEFINITIONS" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
  target_compile_definitions(${NAME} PRIVATE
    VELKOR_SOURCE_DIR="${PROJECT_SOURCE_DIR}" VELKOR_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
    VELKOR_LIB_DIR="${CMAKE_LIBRARY_OUTPUT_DIRECTORY}" VELKOR_RESOURCE_DIR="${VELKOR_RESOURCES}" ${ARG_DEFINITIONS})
  # What is tested is optimised; the tests themselves are compiled far more often than run.
  target_compile_options(${NAME} PRIVATE -O0)
  if(VELKOR_PRECOMPILE)
    if(NOT TARGET velkor_precompiled_tests)
      add_executable(velkor_precompiled_tests ${PROJECT_BINARY_DIR}/precompiled/Unit.cpp)
      target_link_libraries(velkor_precompiled_tests PRIVATE GTest::gmock GTest::gtest_main)
      target_compile_options(velkor_precompiled_tests PRIVATE -O0)
      target_precompile_headers(velkor_precompiled_tests PRIVATE
        <gmock/gmock.h> <gtest/gtest.h> <algorithm> <filesystem> <fstream> <functional> <map> <string> <vector>)
    endif()
    target_precompile_headers(${NAME} REUSE_FROM velkor_precompiled_tests)
  endif()
  gtest_discover_tests(${NAME} DISCOVERY_MODE PRE_TEST)
endfunction()

# velkor_fuzz(NAME SOURCES … LIBRARIES target … CORPUS folder)
# A libFuzzer target. Without libFuzzer the same target replays its corpus as a test.
function(velkor_fuzz NAME)
  cmake_parse_arguments(ARG "" "CORPUS" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE ${ARG_LIBRARIES})
  if(VELKOR_FUZZ)
    target_link_options(${NAME} PRIVATE -fsanitize=fuzzer)
    add_test(NAME ${NAME} COMMAND ${NAME} -runs=2000 -max_total_time=20 ${PROJECT_BINARY_DIR}/corpus/${NAME} ${ARG_CORPUS})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/corpus/${NAME})
  else()
    target_sources(${NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests/fuzz/ReplayMain.cpp)
    add_test(NAME ${NAME} COMMAND ${NAME} ${ARG_CORPUS})
  endif()
endfunction()

# velkor_benchmark(NAME SOURCES … LIBRARIES target …)
function(velkor_benchmark NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE ${ARG_LIBRARIES} benchmark::benchmark_main)
  target_compile_definitions(${NAME} PRIVATE VELKOR_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    VELKOR_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}" VELKOR_LIB_DIR="${CMAKE_LIBRARY_OUTPUT_DIRECTORY}"
    VELKOR_RESOURCE_DIR="${VELKOR_RESOURCES}")
endfunction()
