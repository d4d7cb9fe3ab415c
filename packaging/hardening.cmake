# What Debian builds its own programs with: a checked stack, checked calls of the C library, an
# address that differs from run to run, and tables of the linker that can't be written. No path of
# the checkout gets into the program, so that it is the same wherever it is built.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
add_link_options(-Wl,-z,relro,-z,now)
