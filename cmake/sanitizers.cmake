add_library(lumivex_sanitizers INTERFACE)
if(LUMIVEX_SANITIZE)
  target_compile_options(lumivex_sanitizers INTERFACE -fsanitize=${LUMIVEX_SANITIZE}
                                                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Instrumented code makes GCC see uninitialised members inside the standard library.
    target_compile_options(lumivex_sanitizers INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_link_options(lumivex_sanitizers INTERFACE -fsanitize=${LUMIVEX_SANITIZE})
endif()
