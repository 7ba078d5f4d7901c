# Debian packages and a tar archive of what is installed, by CPack: `cpack -G DEB` and `cpack -G TGZ` in a build tree.
# scripts/package configures a tree for each as it should be.

set(CPACK_PACKAGE_VENDOR Velkor)
set(CPACK_PACKAGE_CONTACT "Velkor <velkor@velkor.invalid>")
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/packages/Contents.cmake)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_VELKOR_FILES ${CMAKE_CURRENT_LIST_DIR}/packages)
set(CPACK_VELKOR_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(CPACK_VELKOR_LIBRARIES ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

string(TOLOWER ${CMAKE_SYSTEM_NAME} _system)
set(CPACK_PACKAGE_FILE_NAME velkor-${PROJECT_VERSION}-${_system}-${CMAKE_SYSTEM_PROCESSOR})

set(CPACK_COMPONENTS_ALL program libraries development)
if(VELKOR_PYTHON)
  list(APPEND CPACK_COMPONENTS_ALL python)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE velkor)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(_libraries libvelkor${PROJECT_VERSION_MAJOR})

# velkor_package(COMPONENT NAME SECTION DEPENDS DESCRIPTION [MULTI_ARCH same] [CONTROL file …])
# The Debian package of a component. What its binaries need beside DEPENDS is found when it is made.
function(velkor_package _component _name _section _depends _description)
  cmake_parse_arguments(ARG "" "MULTI_ARCH" "CONTROL" ${ARGN})
  if(ARG_MULTI_ARCH)
    # CPack knows no Multi-Arch; the value of a field may bring the next one with it.
    string(APPEND _section "\nMulti-Arch: ${ARG_MULTI_ARCH}")
  endif()
  string(TOUPPER ${_component} _upper)
  set(CPACK_DEBIAN_${_upper}_PACKAGE_NAME ${_name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${_upper}_PACKAGE_SECTION "${_section}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${_upper}_PACKAGE_DEPENDS "${_depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${_upper}_DESCRIPTION "${_description}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${_upper}_PACKAGE_CONTROL_EXTRA "${ARG_CONTROL}" PARENT_SCOPE)
endfunction()

velkor_package(program velkor science "${_libraries} (= ${PROJECT_VERSION})"
"exchange of building models in IFC (program)
Velkor reports, checks, validates, classifies and converts building models
in IFC (ISO 16739), from IFC2X3 to IFC4X4.

This package has the program with its manual pages, the completions for
bash, zsh and fish, and the resource files that the libraries work by:
definitions of property sets, mappings and classification.")

# Whoever links the libraries learns from this file which package has them.
set(_shlibs)
foreach(_library velkorplatform velkor velkortoolkit)
  string(APPEND _shlibs "lib${_library} ${PROJECT_VERSION_MAJOR} ${_libraries} (>= ${PROJECT_VERSION})\n")
endforeach()
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/packages/shlibs CONTENT "${_shlibs}" @ONLY)
velkor_package(libraries ${_libraries} libs ""
"exchange of building models in IFC (libraries)
Velkor reports, checks, validates, classifies and converts building models
in IFC (ISO 16739), from IFC2X3 to IFC4X4.

This package has the three shared libraries: the platform, the services
with the dictionaries of the releases, and the toolkit for whole models."
  MULTI_ARCH same
  CONTROL ${PROJECT_BINARY_DIR}/packages/shlibs ${CMAKE_CURRENT_LIST_DIR}/packages/triggers)

velkor_package(development libvelkor-dev libdevel
"${_libraries} (= ${PROJECT_VERSION}), velkor (= ${PROJECT_VERSION}), libexpected-dev"
"exchange of building models in IFC (development)
Velkor reports, checks, validates, classifies and converts building models
in IFC (ISO 16739), from IFC2X3 to IFC4X4.

This package has what programs are built with: headers, the package for
CMake and the files for pkg-config.")

if(VELKOR_PYTHON)
  math(EXPR _next "${Python_VERSION_MINOR} + 1")
  foreach(_script postinst prerm)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/packages/python-${_script}
                   ${PROJECT_BINARY_DIR}/packages/python/${_script} COPYONLY)
  endforeach()
  velkor_package(python python3-velkor python
"${_libraries} (= ${PROJECT_VERSION}), velkor (= ${PROJECT_VERSION}), python3 (>= 3.${Python_VERSION_MINOR}), python3 (<< 3.${_next})"
"exchange of building models in IFC (Python module)
Velkor reports, checks, validates, classifies and converts building models
in IFC (ISO 16739), from IFC2X3 to IFC4X4.

This package has the module for Python 3."
    CONTROL ${PROJECT_BINARY_DIR}/packages/python/postinst ${PROJECT_BINARY_DIR}/packages/python/prerm)
endif()

include(CPack)

# What has to be built before it can be packed.
add_custom_target(velkor_packed)
add_dependencies(velkor_packed velkorplatform velkor velkortoolkit velkor_resource_files)
foreach(_target velkor_program velkor_usage_files velkor_python)
  if(TARGET ${_target})
    add_dependencies(velkor_packed ${_target})
  endif()
endforeach()
