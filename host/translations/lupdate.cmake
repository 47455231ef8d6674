# Brings the catalogues in TARGET_DIR up to date with the texts of the code in SOURCE_DIR. What
# scripts and monitors read, the subcommands and the collector, speaks English only.
set(options -silent -no-obsolete -locations none -no-ui-lines)
set(desk ${TARGET_DIR}/host/translations)

function(update sources)
    execute_process(COMMAND ${LUPDATE} ${options} ${sources} -ts ${ARGN}
        WORKING_DIRECTORY ${SOURCE_DIR} OUTPUT_QUIET ERROR_QUIET RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "lupdate failed for ${sources}: ${result}")
    endif()
endfunction()

file(GLOB rooms LIST_DIRECTORIES true RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/host/*)
list(REMOVE_ITEM rooms host/CMakeLists.txt host/cli host/collector host/translations)
foreach(language de fr es zh_CN)
    update("${rooms}" ${desk}/upsdesk_${language}.ts)
    update("dev;main;include" ${desk}/devview_${language}.ts)
endforeach()
update("dev;main;include" ${TARGET_DIR}/dev/translations/devview.ts)
