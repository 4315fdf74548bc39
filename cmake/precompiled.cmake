# Headers that nearly every file of a target reads, parsed once. Every file includes what it needs all the same, so that
# it builds without them. A compiler cache works by file and would see every one change with each header, so that with a
# launcher they are off.
if(CMAKE_CXX_COMPILER_LAUNCHER)
  set(precompile OFF)
else()
  set(precompile ON)
endif()
option(LUMIVEX_PCH "Precompile common headers" ${precompile})

set(LUMIVEX_STANDARD_HEADERS <algorithm> <array> <cmath> <functional> <memory> <optional> <span> <string> <string_view>
                             <utility> <variant> <vector>)

function(lumivex_precompile target)
  if(LUMIVEX_PCH)
    target_precompile_headers(${target} PRIVATE ${LUMIVEX_STANDARD_HEADERS} ${ARGN})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      # GCC 12 sees copies of half the memory in joined strings where <string> is precompiled.
      target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
    endif()
  endif()
endfunction()
