# The Safe C Library, as l2fib_safec. Its installations have no CMake package.
find_path(L2FIB_SAFEC_INCLUDE_DIR safe_mem_lib.h PATH_SUFFIXES safeclib libsafec REQUIRED)
find_library(L2FIB_SAFEC_LIBRARY safec REQUIRED)
mark_as_advanced(L2FIB_SAFEC_INCLUDE_DIR L2FIB_SAFEC_LIBRARY)
add_library(l2fib_safec UNKNOWN IMPORTED)
set_target_properties(l2fib_safec PROPERTIES IMPORTED_LOCATION ${L2FIB_SAFEC_LIBRARY}
                                             INTERFACE_INCLUDE_DIRECTORIES ${L2FIB_SAFEC_INCLUDE_DIR})
