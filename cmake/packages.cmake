# The Debian packages, one for each component of the installation.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL platform runtime dev tool)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/complete_packages.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/drop_scripts.cmake)

set(CPACK_PACKAGE_CONTACT "zel_l2fib maintainers <maintainers@zel-l2fib.example>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE zel-l2fib)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# A router's own package provides this name and conflicts with it: it takes the stand-in's place for good.
set(CPACK_DEBIAN_PLATFORM_PACKAGE_NAME libzel-l2fib-platform${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_PLATFORM_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PLATFORM_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers
                                                ${PROJECT_SOURCE_DIR}/packaging/platform/symbols)
set(CPACK_COMPONENT_PLATFORM_DESCRIPTION "stand-in for the platform library of a router
The library zel_l2fib asks the router that it runs in for the type of a card,
the clock, the text of a status, and the kind of an interface. This package
answers on a machine that is no router. A router brings its own.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzel-l2fib${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS ${CPACK_DEBIAN_PLATFORM_PACKAGE_NAME})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers
                                               ${PROJECT_SOURCE_DIR}/packaging/runtime/symbols)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "layer-2 forwarding state of a router as text
The library turns attachment circuits, pseudowires, bridges, bridge ports and
MAC addresses, as the route processor and the network processors of a router
hold them, into the text of show commands.")

set(of_this_build "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libzel-l2fib-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${of_this_build}, ${CPACK_DEBIAN_PLATFORM_PACKAGE_NAME}")
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_COMPONENT_DEV_DESCRIPTION "layer-2 forwarding state of a router as text - development files
The headers, what pkg-config and CMake need to find the library, its manual
page, and how it is integrated on a router.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME l2fib-show)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION net)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS ${of_this_build})
set(CPACK_COMPONENT_TOOL_DESCRIPTION "prints saved layer-2 forwarding state of a router
The program reads captures of attachment circuits, pseudowires, bridges, bridge
ports and MAC addresses, and prints them as the router's show commands do.
Sample captures are included.")

include(CPack)
