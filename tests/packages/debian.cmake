# The Debian packages of the build under test: their texts are valid, lintian finds no error, and what they hold
# starts from where it was unpacked.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)
set(packaging ${SOURCE_DIR}/packaging)
run(desktop-file-validate ${packaging}/upsdesk.desktop)
run(appstreamcli validate --no-net ${packaging}/org.devview.upsdesk.metainfo.xml)
execute_process(COMMAND man --warnings -l ${SOURCE_DIR}/docs/upsdesk.1
    OUTPUT_QUIET ERROR_VARIABLE warnings COMMAND_ERROR_IS_FATAL ANY)
if(warnings)
    message(FATAL_ERROR "upsdesk.1: ${warnings}")
endif()

run(${CMAKE_CPACK_COMMAND} --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR} -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip)
file(GLOB packages ${WORK_DIR}/*.deb)
list(LENGTH packages count)
if(NOT count EQUAL 3)
    message(FATAL_ERROR "three packages were expected: ${packages}")
endif()
run(lintian --fail-on error ${packages})
foreach(package IN LISTS packages)
    run(dpkg-deb --extract ${package} ${WORK_DIR}/root)
endforeach()

set(upsdesk ${WORK_DIR}/root/usr/bin/upsdesk)
unset(ENV{QT_FATAL_WARNINGS}) # the platform without a display warns of what windows ask of it
set(ENV{LD_LIBRARY_PATH} ${WORK_DIR}/root/usr/${LIB_DIR})
run(${upsdesk} --help)
run(${upsdesk} picture sim: --out ${WORK_DIR}/pictures)
file(GLOB pictures ${WORK_DIR}/pictures/*.png)
if(NOT pictures)
    message(FATAL_ERROR "no pictures were painted")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
