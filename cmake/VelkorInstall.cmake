# What an installed Velkor consists of: three libraries, their headers, the program with its resource files, the package
# that find_package(Velkor) reads, with the targets velkor::platform, velkor::velkor and velkor::toolkit, and the same
# for pkg-config. Each is of one component: libraries, development, program; the Python module is of one of its own.

include(CMakePackageConfigHelpers)

set(_headers ${CMAKE_INSTALL_INCLUDEDIR}/velkor)
set(_package ${CMAKE_INSTALL_LIBDIR}/cmake/Velkor)

# Build trees see each area's own folder; an installed library has one.
target_include_directories(velkorplatform INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_include_directories(velkor INTERFACE $<INSTALL_INTERFACE:${_headers}/interfaces>)

# The libraries lie side by side, wherever the prefix is.
set_target_properties(velkor velkorplatform velkortoolkit PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS velkorplatform velkor velkortoolkit EXPORT VelkorTargets
        LIBRARY COMPONENT libraries NAMELINK_COMPONENT development)
if(VELKOR_PROGRAM)
  install(TARGETS velkor_program COMPONENT program)
  # Man pages and completions lie as they do below share.
  install(DIRECTORY ${VELKOR_USAGE}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT program)
  install(DIRECTORY ${VELKOR_USAGE}/bash-completion ${VELKOR_USAGE}/zsh ${VELKOR_USAGE}/fish
          DESTINATION ${CMAKE_INSTALL_DATADIR} COMPONENT program)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Velkorite/interfaces/ DESTINATION ${_headers}/interfaces
        COMPONENT development FILES_MATCHING PATTERN "*.h")
foreach(_library velkorplatform velkortoolkit)
  get_property(_includes GLOBAL PROPERTY ${_library}_includes)
  foreach(_include IN LISTS _includes)
    install(DIRECTORY ${_include}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
            COMPONENT development FILES_MATCHING PATTERN "*.h")
  endforeach()
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/standard ${VELKOR_RESOURCES}/runtime
        DESTINATION ${CMAKE_INSTALL_DATADIR}/velkor COMPONENT program FILES_MATCHING PATTERN "*.xml")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT documents)

install(EXPORT VelkorTargets NAMESPACE velkor:: DESTINATION ${_package} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VelkorConfig.cmake.in ${PROJECT_BINARY_DIR}/VelkorConfig.cmake
                              INSTALL_DESTINATION ${_package} PATH_VARS CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelkorConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VelkorConfig.cmake ${PROJECT_BINARY_DIR}/VelkorConfigVersion.cmake
        DESTINATION ${_package} COMPONENT development)

# velkor_pkgconfig(FILE LIBRARY REQUIRES CFLAGS DESCRIPTION): what pkg-config knows a library by, wherever the prefix is.
set(_pkgconfig ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
function(velkor_pkgconfig _name _library _requires _cflags _description)
  file(RELATIVE_PATH _prefix /${_pkgconfig} /)
  string(REGEX REPLACE "/$" "" _prefix "${_prefix}")
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/packages/velkor.pc.in ${PROJECT_BINARY_DIR}/${_name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${_name}.pc DESTINATION ${_pkgconfig} COMPONENT development)
endfunction()
velkor_pkgconfig(velkor-platform velkorplatform "" "" "The platform that Velkor's services run on")
velkor_pkgconfig(velkor velkor velkor-platform " -I\${includedir}/velkor/interfaces" "${PROJECT_DESCRIPTION}")
velkor_pkgconfig(velkor-toolkit velkortoolkit velkor "" "What one does with whole models in IFC")
