# Whoever builds a release gets the same files, whatever the folder and the hour: no path of the
# building machine stands in them, and no time (see the resources in src/CMakeLists.txt). Builds for
# debugging and counting keep their paths.
set(without_paths "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.;-ffile-prefix-map=${CMAKE_BINARY_DIR}=.")
add_compile_options("$<$<NOT:$<CONFIG:Debug>>:${without_paths}>")
