# CPack runs this after it has packed. Its .zip holds the files in the order of the folder on the disk, with the user's
# number and the time zone's clock; this one is the same from everybody.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    if(package MATCHES "\\.zip$")
        get_filename_component(name ${package} NAME_WLE)
        file(GLOB_RECURSE files RELATIVE ${CPACK_TEMPORARY_DIRECTORY}/.. ${CPACK_TEMPORARY_DIRECTORY}/*)
        list(JOIN files "\n" files)
        file(WRITE ${package}.list "${files}\n")
        file(REMOVE ${package})
        execute_process(COMMAND ${CMAKE_COMMAND} -E env TZ=UTC zip -9Xq@ ${package}
            INPUT_FILE ${package}.list WORKING_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY}/.. COMMAND_ERROR_IS_FATAL ANY)
        file(REMOVE ${package}.list)
    endif()
endforeach()
