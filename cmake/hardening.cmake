# What is built reads the bytes of others: an error in it shall stop it, and not be of use to them.
include(CheckCXXSourceCompiles)
include(CheckPIESupported)

check_pie_supported()
add_compile_options(-fstack-protector-strong)
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)

# glibc's checks need an optimised build, and get in the way of the sanitizers'. A compiler or a distribution that asks for
# them itself has its own level.
string(TOUPPER "${CMAKE_BUILD_TYPE}" build_type)
set(CMAKE_REQUIRED_FLAGS "${CMAKE_CXX_FLAGS_${build_type}} -O2")
check_cxx_source_compiles("
    #ifdef _FORTIFY_SOURCE
    #error set already
    #endif
    int main() {}" L2FIB_FORTIFY)
unset(CMAKE_REQUIRED_FLAGS)
if(L2FIB_FORTIFY AND NOT L2FIB_SANITIZE)
    add_compile_options($<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
endif()
