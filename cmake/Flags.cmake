# Compile and link flags of every target of ours, on one interface target.
add_library(qx70_flags INTERFACE)
target_compile_options(qx70_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                                            -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# g++ 12 warns of overlapping copies inside its own std::string operator+ at -O3.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  target_compile_options(qx70_flags INTERFACE -Wno-restrict)
endif()
target_compile_definitions(qx70_flags INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH)
if(QX70_SANITIZE)
  target_compile_options(qx70_flags INTERFACE -fsanitize=${QX70_SANITIZE} -fno-sanitize-recover=all
                                              -fno-omit-frame-pointer)
  target_link_options(qx70_flags INTERFACE -fsanitize=${QX70_SANITIZE})
endif()
if(QX70_FUZZ)
  target_compile_options(qx70_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
