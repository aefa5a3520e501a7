# AddressSanitizer and UndefinedBehaviorSanitizer for the whole build (tests run under both in CI),
# or ThreadSanitizer for the runs on several workers (scripts/threads).
if(STYLE_TARNEL_SANITIZE)
  set(_sanitizers -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_compile_options(${_sanitizers})
  add_link_options(-fsanitize=address,undefined)
endif()
if(STYLE_TARNEL_SANITIZE_THREADS)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()
