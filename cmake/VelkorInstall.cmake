# What an installed Velkor consists of: three libraries, their headers, the program with its resource files, and
# the package that find_package(Velkor) reads. It gives the targets velkor::platform, velkor::velkor and velkor::toolkit.

include(CMakePackageConfigHelpers)

set(_headers ${CMAKE_INSTALL_INCLUDEDIR}/velkor)
set(_package ${CMAKE_INSTALL_LIBDIR}/cmake/Velkor)

# Build trees see each area's own folder; an installed library has one.
target_include_directories(velkorplatform INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_include_directories(velkor INTERFACE $<INSTALL_INTERFACE:${_headers}/interfaces>)

# The libraries lie side by side, wherever the prefix is.
set_target_properties(velkor velkorplatform velkortoolkit PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS velkorplatform velkor velkortoolkit EXPORT VelkorTargets)
if(VELKOR_PROGRAM)
  install(TARGETS velkor_program)
  # Man pages and completions lie as they do below share.
  install(DIRECTORY ${VELKOR_USAGE}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR})
  install(DIRECTORY ${VELKOR_USAGE}/bash-completion ${VELKOR_USAGE}/zsh ${VELKOR_USAGE}/fish
          DESTINATION ${CMAKE_INSTALL_DATADIR})
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Velkorite/interfaces/ DESTINATION ${_headers}/interfaces FILES_MATCHING PATTERN "*.h")
foreach(_library velkorplatform velkortoolkit)
  get_property(_includes GLOBAL PROPERTY ${_library}_includes)
  foreach(_include IN LISTS _includes)
    install(DIRECTORY ${_include}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
  endforeach()
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/standard ${VELKOR_RESOURCES}/runtime
        DESTINATION ${CMAKE_INSTALL_DATADIR}/velkor FILES_MATCHING PATTERN "*.xml")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(EXPORT VelkorTargets NAMESPACE velkor:: DESTINATION ${_package})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VelkorConfig.cmake.in ${PROJECT_BINARY_DIR}/VelkorConfig.cmake
                              INSTALL_DESTINATION ${_package} PATH_VARS CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelkorConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VelkorConfig.cmake ${PROJECT_BINARY_DIR}/VelkorConfigVersion.cmake
        DESTINATION ${_package})
