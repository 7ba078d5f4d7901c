# Brings what is to be packed into its final form: in Debian packages what Debian's policy asks for, in both files and
# folders of one date, SOURCE_DATE_EPOCH, so that the same sources give the same bytes. Run by CPack.

file(GLOB roots ${CPACK_TEMPORARY_DIRECTORY}/*)
string(TIMESTAMP seconds "%s" UTC)

if(CPACK_GENERATOR STREQUAL "DEB")
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(root ${CPACK_TEMPORARY_DIRECTORY}/${component})
    set(documents ${root}/usr/share/doc/${package})

    configure_file(${CPACK_VELKOR_FILES}/copyright ${documents}/copyright COPYONLY)
    configure_file(${CPACK_VELKOR_CHANGELOG} ${documents}/NEWS.md COPYONLY)
    file(WRITE ${documents}/changelog
         "velkor (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium\n\n"
         "  * Velkor ${CPACK_PACKAGE_VERSION}; NEWS.md.gz tells what is new.\n\n"
         " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    if(EXISTS ${CPACK_VELKOR_FILES}/${package}.overrides)
      configure_file(${CPACK_VELKOR_FILES}/${package}.overrides ${root}/usr/share/lintian/overrides/${package} COPYONLY)
    endif()
    file(GLOB_RECURSE texts ${root}/usr/share/man/*.[1-9] ${documents}/NEWS.md
         ${documents}/changelog)
    execute_process(COMMAND gzip -n9 ${texts} COMMAND_ERROR_IS_FATAL ANY)
    # Debian's zsh looks for what packages bring in another place than for what its administrator does.
    if(EXISTS ${root}/usr/share/zsh/site-functions)
      file(RENAME ${root}/usr/share/zsh/site-functions ${root}/usr/share/zsh/vendor-completions)
    endif()

    # CPack would look into each of some thousand files for what binaries need.
    set(binaries)
    file(GLOB_RECURSE candidates ${root}/usr/bin/* ${root}/usr/lib/*.so*)
    foreach(candidate IN LISTS candidates)
      if(NOT IS_SYMLINK ${candidate})
        list(APPEND binaries ${candidate})
      endif()
    endforeach()
    if(binaries)
      file(WRITE ${CPACK_TEMPORARY_DIRECTORY}/debian/control "")
      execute_process(COMMAND dpkg-shlibdeps --ignore-missing-info -x${CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME}
                              -l${CPACK_VELKOR_LIBRARIES} -O ${binaries}
                      WORKING_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY} OUTPUT_VARIABLE needed ERROR_VARIABLE remarks
                      OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE status)
      file(REMOVE_RECURSE ${CPACK_TEMPORARY_DIRECTORY}/debian)
      if(NOT status EQUAL 0)
        message(FATAL_ERROR "dpkg-shlibdeps: ${remarks}")
      endif()
      string(REGEX REPLACE "^.*Depends=" "" needed "${needed}")
      if(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS)
        string(PREPEND needed "${CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS}, ")
      endif()
      set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${needed}")
    endif()
  endforeach()
endif()

execute_process(COMMAND chmod -R u=rwX,go=rX ${roots} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${roots} -exec touch --no-dereference --date=@${seconds} {} + COMMAND_ERROR_IS_FATAL ANY)
