# Every target of this project compiles with the same warnings; errors only if asked for, since
# the next compiler knows warnings that this one does not.
add_library(karvenis_strict INTERFACE)
target_compile_options(karvenis_strict INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wduplicated-cond $<$<BOOL:${KARVENIS_WERROR}>:-Werror>
  -Wno-restrict)  # GCC 12 warns of std::string's own operator+ in optimised builds
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(karvenis_strict INTERFACE -Wno-unknown-warning-option)
endif()
if(KARVENIS_SANITIZE)
  add_compile_options(-fsanitize=${KARVENIS_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KARVENIS_SANITIZE})
  add_compile_definitions(_GLIBCXX_ASSERTIONS)  # an index beyond its array, also inside an object
endif()
if(KARVENIS_COVERAGE)
  add_compile_options(--coverage -fprofile-abs-path)
  add_link_options(--coverage)
endif()
