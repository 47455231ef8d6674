# Follows docs/guide.md in a folder of its own: its blocks are the project and the program, built against the build
# folder and run.
cmake_minimum_required(VERSION 3.21)
include(${CMAKE_CURRENT_LIST_DIR}/../packages/run.cmake)

# All blocks of a language, in their order, as one file.
function(extract language file)
    execute_process(COMMAND sed -n "/^```${language}/,/^```/{/^```/d;p}" ${SOURCE_DIR}/docs/guide.md
        OUTPUT_FILE ${WORK_DIR}/${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

extract(cmake CMakeLists.txt)
extract(cpp main.cpp)
run(${CMAKE_COMMAND} -S ${WORK_DIR} -B ${WORK_DIR}/build -G Ninja -DdevView_DIR=${BUILD_DIR}
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS} -Wall -Wextra -Werror")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/myups --once)
file(REMOVE_RECURSE ${WORK_DIR})
