# What Debian asks of each package and an installation has no use for: compressed pages, changelog and copyright.
foreach(component PLATFORM RUNTIME DEV TOOL)
    string(TOLOWER ${component} directory)
    set(usr ${CPACK_TEMPORARY_DIRECTORY}/${directory}/usr)
    set(documents ${usr}/share/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME})
    file(COPY ${CMAKE_CURRENT_LIST_DIR}/changelog ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${documents}
         FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(GLOB pages ${usr}/share/man/man*/*)
    execute_process(COMMAND gzip -9n ${documents}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
