# The bundle layout, in the build tree and under any install prefix:
#   bin/Style Tarnel, PlugIns/languages (language plugins), PlugIns/styles (style addons).
set(STYLE_TARNEL_EXECUTABLE_NAME "Style Tarnel")
set(STYLE_TARNEL_BIN_DIR ${PROJECT_BINARY_DIR}/bin)
set(STYLE_TARNEL_LANGUAGES_DIR ${PROJECT_BINARY_DIR}/PlugIns/languages)
set(STYLE_TARNEL_STYLES_DIR ${PROJECT_BINARY_DIR}/PlugIns/styles)
file(MAKE_DIRECTORY ${STYLE_TARNEL_BIN_DIR} ${STYLE_TARNEL_LANGUAGES_DIR} ${STYLE_TARNEL_STYLES_DIR})
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${STYLE_TARNEL_BIN_DIR})

# Installs a language plugin target into the bundle of the build tree and of the install prefix.
function(style_tarnel_language_plugin target)
  set_target_properties(${target} PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY ${STYLE_TARNEL_LANGUAGES_DIR}
    INSTALL_RPATH "$ORIGIN/../../lib")
  install(TARGETS ${target} LIBRARY DESTINATION PlugIns/languages)
endfunction()

# Copies style addons into the bundle of the build tree and of the install prefix.
function(style_tarnel_style_addons)
  foreach(addon IN LISTS ARGN)
    get_filename_component(name ${addon} NAME)
    configure_file(${addon} ${STYLE_TARNEL_STYLES_DIR}/${name} COPYONLY)
    install(FILES ${addon} DESTINATION PlugIns/styles)
  endforeach()
endfunction()

install(DIRECTORY DESTINATION PlugIns/languages)
install(DIRECTORY DESTINATION PlugIns/styles)
