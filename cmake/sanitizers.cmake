add_library(lumivex_sanitizers INTERFACE)
if(LUMIVEX_SANITIZE)
  target_compile_options(lumivex_sanitizers INTERFACE -fsanitize=${LUMIVEX_SANITIZE}
                                                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  if(LUMIVEX_FUZZ)
    # What libFuzzer learns from, the same for the tests: counters alone cost them little.
    target_compile_options(lumivex_sanitizers INTERFACE -fsanitize-coverage=inline-8bit-counters,pc-table)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Instrumented code makes GCC see uninitialised members inside the standard library.
    target_compile_options(lumivex_sanitizers INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_link_options(lumivex_sanitizers INTERFACE -fsanitize=${LUMIVEX_SANITIZE})
endif()
