# What is installed, and with which package: runtime, dev or tool.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Outside /usr, the installation can be moved: its programs find its libraries by their own place.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    file(RELATIVE_PATH lib_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(l2fib-show PROPERTIES INSTALL_RPATH "$ORIGIN/${lib_from_bin}")
    set_target_properties(zel_l2fib PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

install(TARGETS zel_l2fib zel_l2fib_platform EXPORT zel_l2fib
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT dev
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set_target_properties(zel_l2fib_platform PROPERTIES EXPORT_NAME platform)
install(TARGETS l2fib-show RUNTIME COMPONENT tool)
install(FILES include/zel_l2fib/show.h platform/platform.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zel_l2fib
        COMPONENT dev)
install(FILES cmake/zel_l2fib_platform.map DESTINATION ${CMAKE_INSTALL_DATADIR}/zel_l2fib COMPONENT dev)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zel_l2fib)
install(EXPORT zel_l2fib FILE zel_l2fib-config.cmake NAMESPACE zel_l2fib:: DESTINATION ${package_dir} COMPONENT dev)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zel_l2fib-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zel_l2fib-config-version.cmake DESTINATION ${package_dir} COMPONENT dev)

file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/zel_l2fib.pc.in zel_l2fib.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zel_l2fib.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

# Installs the files that match some patterns, of which there may be none.
function(l2fib_install_matching patterns destination component)
    file(GLOB files CONFIGURE_DEPENDS ${patterns})
    install(FILES ${files} DESTINATION ${destination} COMPONENT ${component})
endfunction()
l2fib_install_matching(docs/man/*.1 ${CMAKE_INSTALL_MANDIR}/man1 tool)
l2fib_install_matching(docs/man/*.3 ${CMAKE_INSTALL_MANDIR}/man3 dev)
l2fib_install_matching(completions/bash/* ${CMAKE_INSTALL_DATADIR}/bash-completion/completions tool)
l2fib_install_matching(completions/zsh/* ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions tool)
l2fib_install_matching(completions/fish/* ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d tool)
l2fib_install_matching(README.md ${CMAKE_INSTALL_DOCDIR} tool)
l2fib_install_matching("docs/capture-format.md;docs/json-format.md;docs/querying.md" ${CMAKE_INSTALL_DOCDIR} tool)
l2fib_install_matching("docs/design.md;docs/fuzzing.md;docs/integration.md" ${CMAKE_INSTALL_DOCDIR} dev)
l2fib_install_matching(examples/*.jsonl ${CMAKE_INSTALL_DOCDIR}/examples tool)
