# AddressSanitizer and UndefinedBehaviorSanitizer for the whole build (tests run under both in CI).
if(STYLE_TARNEL_SANITIZE)
  set(_sanitizers -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_compile_options(${_sanitizers})
  add_link_options(-fsanitize=address,undefined)
endif()
