# Packs what BUILD has compiled, laid out as it is in Debian, and looks at the packages.
#
#   cmake -D SOURCE=… -D BUILD=… -D COMPILER=… -D GENERATOR=… -D PYTHON=… -P Packages.cmake

include(${CMAKE_CURRENT_LIST_DIR}/Step.cmake)
set(work ${BUILD}/packages)
file(REMOVE_RECURSE ${work}/packed)

step(dpkg-architecture -qDEB_HOST_MULTIARCH)
string(STRIP "${output}" triplet)
step(${CMAKE_COMMAND} -S ${SOURCE} -B ${work} -G ${GENERATOR} -D CMAKE_CXX_COMPILER=${COMPILER}
     -D CMAKE_BUILD_TYPE=Release -D CMAKE_INSTALL_PREFIX=/usr -D CMAKE_INSTALL_LIBDIR=lib/${triplet}
     -D CMAKE_SKIP_INSTALL_RPATH=ON -D VELKOR_TESTS=OFF -D VELKOR_PYTHON=${PYTHON}
     "-DCMAKE_CXX_COMPILER_LAUNCHER=sh\;${CMAKE_CURRENT_LIST_DIR}/reuse.sh\;${BUILD}\;")
step(${CMAKE_COMMAND} --build ${work} --target velkor_packed)
step(${CMAKE_CPACK_COMMAND} --config ${work}/CPackConfig.cmake -G DEB -B ${work}/packed)
step(python3 ${CMAKE_CURRENT_LIST_DIR}/packages.py ${work}/packed)
