# Installs a build into an empty prefix, builds examples/checking against it as a project of its own, and runs that on
# models whose faults and classes are known.
#
#   cmake -D SOURCE=… -D BUILD=… -D COMPILER=… -D GENERATOR=… [-D SANITIZE=…] [-D PYTHON=…] -P Install.cmake

set(work ${BUILD}/install)
set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})

include(${CMAKE_CURRENT_LIST_DIR}/Step.cmake)

step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

set(flags)
if(SANITIZE)
  set(flags -fsanitize=${SANITIZE})
endif()
step(${CMAKE_COMMAND} -S ${SOURCE}/examples/checking -B ${work}/build -G ${GENERATOR}
     -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_CXX_FLAGS=${flags} -D CMAKE_PREFIX_PATH=${prefix})
step(${CMAKE_COMMAND} --build ${work}/build)

# Headers of the source tree must not have helped out.
file(READ ${work}/build/build.ninja rules)
if(NOT rules MATCHES "${prefix}" OR rules MATCHES "${SOURCE}/(platform|Velkorite)")
  message(FATAL_ERROR "the example was not built against the installed headers")
endif()

step(${work}/build/judge ${SOURCE}/examples/models/house-ifc2x3.ifc)
if(NOT output MATCHES "\n0 problems\n.*\n4 IFCWALLSTANDARDCASE: ExternalWall\n")
  message(FATAL_ERROR "judge answered: ${output}")
endif()
execute_process(COMMAND ${work}/build/judge ${SOURCE}/examples/models/broken.ifc
                OUTPUT_VARIABLE output ERROR_QUIET RESULT_VARIABLE status)
if(NOT status EQUAL 1 OR NOT output MATCHES "broken.ifc:[0-9]+: #[0-9]+: .*\n[1-9][0-9]* problems\n")
  message(FATAL_ERROR "judge answered with ${status}: ${output}")
endif()

# The samples of the pages build and run as they stand there.
step(python3 ${SOURCE}/tests/docs/pages.py samples ${work}/pages)
step(${CMAKE_COMMAND} -S ${work}/pages -B ${work}/pages/build -G ${GENERATOR}
     -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_CXX_FLAGS=${flags} -D CMAKE_PREFIX_PATH=${prefix})
step(${CMAKE_COMMAND} --build ${work}/pages/build)
foreach(sample README cookbook importer)
  step(${CMAKE_COMMAND} -E chdir ${work}/pages build/${sample})
endforeach()

execute_process(COMMAND ${prefix}/bin/velkor --version OUTPUT_VARIABLE version RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT version MATCHES "^velkor [0-9]+\\.[0-9]+\\.[0-9]+\n$")
  message(FATAL_ERROR "the installed program answered --version with ${status}: ${version}")
endif()

# It finds the resource files that lie beside it.
execute_process(COMMAND ${prefix}/bin/velkor validate ${SOURCE}/examples/models/pump-room-ifc4.ifc
                OUTPUT_VARIABLE validation RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT validation MATCHES "no findings; 9 of 9 sets ")
  message(FATAL_ERROR "the installed program answered validate with ${status}: ${validation}")
endif()

# So do all of it, and the Python module, when the prefix is moved as a whole.
if(PYTHON)
  set(moved ${work}/moved)
  file(RENAME ${prefix} ${moved})
  step(${CMAKE_COMMAND} -E env PYTHONPATH=${moved}/lib/python3/dist-packages ${PYTHON} -B -c
       "import sys, velkor
model = velkor.open(sys.argv[1])
print(velkor.__file__, model.validate().checked_sets, len(model.classify().products))"
       ${SOURCE}/examples/models/pump-room-ifc4.ifc)
  if(NOT output MATCHES "^${moved}/.* 9 [1-9][0-9]*\n$")
    message(FATAL_ERROR "the installed Python module answered: ${output}")
  endif()
endif()
