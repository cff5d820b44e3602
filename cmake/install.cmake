# What is installed, and with which package: platform, runtime, dev or tool.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Outside /usr, the installation can be moved: its programs find its libraries by their own place.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set_target_properties(zel_l2fib PROPERTIES INSTALL_RPATH "$ORIGIN")
    if(L2FIB_CLIENT)
        file(RELATIVE_PATH lib_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
        set_target_properties(l2fib-show PROPERTIES INSTALL_RPATH "$ORIGIN/${lib_from_bin}")
    endif()
endif()

install(TARGETS zel_l2fib EXPORT zel_l2fib LIBRARY COMPONENT runtime NAMELINK_COMPONENT dev
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS zel_l2fib_platform EXPORT zel_l2fib LIBRARY COMPONENT platform NAMELINK_COMPONENT dev
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set_target_properties(zel_l2fib_platform PROPERTIES EXPORT_NAME platform)
install(FILES include/zel_l2fib/show.h platform/platform.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zel_l2fib
        COMPONENT dev)
install(FILES cmake/zel_l2fib_platform.map DESTINATION ${CMAKE_INSTALL_DATADIR}/zel_l2fib COMPONENT dev)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zel_l2fib)
install(EXPORT zel_l2fib FILE zel_l2fib-config.cmake NAMESPACE zel_l2fib:: DESTINATION ${package_dir} COMPONENT dev)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zel_l2fib-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zel_l2fib-config-version.cmake DESTINATION ${package_dir} COMPONENT dev)

# Directories below the prefix move with it. One that was given as an absolute path stays, and so does what is beside it.
set(pc_prefix ${CMAKE_INSTALL_PREFIX})
if(NOT IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
    file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    string(PREPEND pc_prefix "\${pcfiledir}/")
endif()
foreach(directory INCLUDEDIR LIBDIR DATADIR)
    set(pc_${directory} "\${prefix}")
    cmake_path(APPEND pc_${directory} ${CMAKE_INSTALL_${directory}})
endforeach()
foreach(library zel_l2fib zel_l2fib_platform)
    configure_file(cmake/${library}.pc.in ${library}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${library}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endforeach()

# Installs the files that match some patterns, of which there may be none.
function(l2fib_install_matching patterns destination component)
    file(GLOB files CONFIGURE_DEPENDS ${patterns})
    install(FILES ${files} DESTINATION ${destination} COMPONENT ${component})
endfunction()
l2fib_install_matching(docs/man/*.3 ${CMAKE_INSTALL_MANDIR}/man3 dev)
l2fib_install_matching("docs/architecture.md;docs/fuzzing.md;docs/integration.md" ${CMAKE_INSTALL_DOCDIR} dev)

# The manual has one page for all functions. Each of them leads to it by its own name.
file(STRINGS cmake/zel_l2fib.map exported REGEX "^    [a-z0-9_]+;$")
list(TRANSFORM exported REPLACE "^ +(.*);$" "\\1")
foreach(name ${exported})
    file(CONFIGURE OUTPUT man/${name}.3 CONTENT ".so man3/zel_l2fib.3\n")
    install(FILES ${PROJECT_BINARY_DIR}/man/${name}.3 DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT dev)
endforeach()

if(L2FIB_CLIENT)
    install(TARGETS l2fib-show RUNTIME COMPONENT tool)
    l2fib_install_matching(docs/man/*.1 ${CMAKE_INSTALL_MANDIR}/man1 tool)
    l2fib_install_matching(completions/bash/* ${CMAKE_INSTALL_DATADIR}/bash-completion/completions tool)
    l2fib_install_matching(completions/zsh/* ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions tool)
    l2fib_install_matching(completions/fish/* ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d tool)
    l2fib_install_matching("README.md;docs/capture-format.md;docs/checks.md;docs/fleet.md;docs/json-format.md;docs/querying.md"
                           ${CMAKE_INSTALL_DOCDIR} tool)
    l2fib_install_matching("examples/*.jsonl;examples/task.sh" ${CMAKE_INSTALL_DOCDIR}/examples tool)
    l2fib_install_matching(examples/faults/*.jsonl ${CMAKE_INSTALL_DOCDIR}/examples/faults tool)
endif()
