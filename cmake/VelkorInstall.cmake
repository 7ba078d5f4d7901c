# What an installed Velkor consists of.

install(TARGETS velkorplatform velkor velkor_program)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Velkorite/interfaces/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/velkor
        FILES_MATCHING PATTERN "*.h")
get_property(_includes GLOBAL PROPERTY VELKOR_PLATFORM_INCLUDES)
foreach(_include IN LISTS _includes)
  install(DIRECTORY ${_include}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/velkor FILES_MATCHING PATTERN "*.h")
endforeach()
