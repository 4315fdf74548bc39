add_library(lumivex_warnings INTERFACE)
target_compile_options(lumivex_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in every joined std::string (its bug 105651).
  target_compile_options(lumivex_warnings INTERFACE -Wno-restrict)
endif()
if(LUMIVEX_WERROR)
  target_compile_options(lumivex_warnings INTERFACE -Werror)
endif()
