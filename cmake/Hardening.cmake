# The released program is built as Debian builds its own: at a random address, with checked
# library calls and a table of addresses that cannot be changed once it runs; and as small.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(
  "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
add_link_options("$<$<CONFIG:Release>:-Wl,-z,relro,-z,now>")
