# Builds examples/embedding, which has Velkor as a folder of its own project, and looks at what it gets by that. How
# Velkor's own units compile is known already, so that they are taken from BUILD.
#
#   cmake -D SOURCE=… -D BUILD=… -D COMPILER=… -D GENERATOR=… -D FLAGS=… [-D SANITIZE=…] -P Embed.cmake

include(${CMAKE_CURRENT_LIST_DIR}/Step.cmake)
set(work ${BUILD}/embed)
file(REMOVE_RECURSE ${work})
if(SANITIZE)
  string(APPEND FLAGS " -fsanitize=${SANITIZE}")
endif()

step(${CMAKE_COMMAND} -S ${SOURCE}/examples/embedding -B ${work} -G ${GENERATOR} -D CMAKE_CXX_COMPILER=${COMPILER}
     "-DCMAKE_CXX_FLAGS=${FLAGS}" -D VELKOR_SANITIZE=${SANITIZE}
     "-DCMAKE_CXX_COMPILER_LAUNCHER=sh\;${CMAKE_CURRENT_LIST_DIR}/reuse.sh\;${BUILD}\;velkor/")
step(${CMAKE_COMMAND} --build ${work} --verbose)

# The program's own lines are those of any program; Velkor's units report themselves by their path in Velkor.
string(REGEX MATCHALL "[^\n]*(main\\.cpp\\.o -c|-o length_unit)[^\n]*" own "${output}")
list(LENGTH own lines)
if(NOT lines EQUAL 2 OR "${own}" MATCHES " -W[^l]| -f(visibility|macro|no-)| -Wl,-[^r]")
  message(FATAL_ERROR "Velkor's options reach the program that embeds it: ${own}")
endif()
string(FIND "${output}" " -fmacro-prefix-map=${SOURCE}/= " found)
if(found EQUAL -1 OR output MATCHES "-Werror")
  message(FATAL_ERROR "Velkor is not compiled as a part of another project")
endif()

step(${work}/length_unit ${SOURCE}/examples/models/house-ifc2x3.ifc)
if(NOT output STREQUAL "1 model unit = 1 mm\n")
  message(FATAL_ERROR "length_unit answered: ${output}")
endif()

# Tests, the program and what is installed are Velkor's own affair.
step(${CMAKE_COMMAND} --install ${work} --prefix ${work}/prefix)
foreach(unwanted prefix velkor/tests velkor/host bin lib)
  if(EXISTS ${work}/${unwanted})
    message(FATAL_ERROR "a project that embeds Velkor gets ${unwanted}")
  endif()
endforeach()
