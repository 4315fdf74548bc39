add_library(lumivex_sanitizers INTERFACE)
if(LUMIVEX_SANITIZE)
  target_compile_options(lumivex_sanitizers INTERFACE -fsanitize=${LUMIVEX_SANITIZE}
                                                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lumivex_sanitizers INTERFACE -fsanitize=${LUMIVEX_SANITIZE})
endif()
