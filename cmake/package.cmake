# The Debian package, made by CPack from the bundle the build tree holds:
#   /usr/lib/style-tarnel/         the bundle (bin/, PlugIns/languages stripped, PlugIns/styles)
#   /usr/bin/style-tarnel          a relative link to the bundle's executable
#   /usr/share/...                 menu entry, icons, AppStream metainfo, manual page, copyright,
#                                  lintian's overrides (each with its reason)
# The files under /usr/share are made by the target package_files (the manual page from the
# program's own help text through packaging/manual-page, the PNG icons by rsvg-convert from the
# SVG) and installed only into the package, never by `cmake --install`, whose prefix is a bundle.
# `cpack` in the build tree (or the target package) makes the package; scripts/package installs
# the tools it needs first.
set(STYLE_TARNEL_PACKAGE_NAME style-tarnel)
set(STYLE_TARNEL_PACKAGE_ID org.style_tarnel.StyleTarnel)
set(_packaging ${PROJECT_SOURCE_DIR}/packaging)
set(_made ${PROJECT_BINARY_DIR}/packaging)

add_custom_command(OUTPUT ${_made}/style-tarnel.1.gz
  COMMAND ${CMAKE_COMMAND} -E make_directory ${_made}
  COMMAND ${_packaging}/manual-page ${STYLE_TARNEL_BIN_DIR}/${STYLE_TARNEL_EXECUTABLE_NAME}
          ${_made}/style-tarnel.1.gz
  DEPENDS style_tarnel ${_packaging}/manual-page
  COMMENT "Writing the manual page style-tarnel(1) from the help text" VERBATIM)
set(_icons)
foreach(size 48 128)
  add_custom_command(OUTPUT ${_made}/icon-${size}/style-tarnel.png
    COMMAND ${CMAKE_COMMAND} -E make_directory ${_made}/icon-${size}
    COMMAND rsvg-convert --width=${size} --height=${size} --output=${_made}/icon-${size}/style-tarnel.png
            ${_packaging}/style-tarnel.svg
    DEPENDS ${_packaging}/style-tarnel.svg
    COMMENT "Rendering the ${size} px icon" VERBATIM)
  list(APPEND _icons ${_made}/icon-${size}/style-tarnel.png)
endforeach()
add_custom_command(OUTPUT ${_made}/changelog.gz
  COMMAND ${CMAKE_COMMAND} -E make_directory ${_made}
  COMMAND gzip -9nc ${_packaging}/changelog > ${_made}/changelog.gz
  DEPENDS ${_packaging}/changelog VERBATIM)
# /usr/bin/style-tarnel, relative, so that the unpacked tree works wherever it lies.
add_custom_command(OUTPUT ${_made}/bin/style-tarnel
  COMMAND ${CMAKE_COMMAND} -E make_directory ${_made}/bin
  COMMAND ${CMAKE_COMMAND} -E create_symlink
          "../lib/${STYLE_TARNEL_PACKAGE_NAME}/bin/${STYLE_TARNEL_EXECUTABLE_NAME}" ${_made}/bin/style-tarnel
  VERBATIM)
add_custom_target(package_files
  DEPENDS ${_made}/style-tarnel.1.gz ${_icons} ${_made}/changelog.gz ${_made}/bin/style-tarnel)

# The component "desktop" goes to /usr in the package (CPACK_INSTALL_CMAKE_PROJECTS below).
set(_desktop COMPONENT desktop EXCLUDE_FROM_ALL)
install(FILES ${_made}/bin/style-tarnel DESTINATION bin ${_desktop})
install(FILES ${_packaging}/${STYLE_TARNEL_PACKAGE_ID}.desktop DESTINATION share/applications ${_desktop})
install(FILES ${_packaging}/${STYLE_TARNEL_PACKAGE_ID}.metainfo.xml DESTINATION share/metainfo ${_desktop})
install(FILES ${_packaging}/style-tarnel.svg DESTINATION share/icons/hicolor/scalable/apps ${_desktop})
foreach(size 48 128)
  install(FILES ${_made}/icon-${size}/style-tarnel.png
          DESTINATION share/icons/hicolor/${size}x${size}/apps ${_desktop})
endforeach()
install(FILES ${_made}/style-tarnel.1.gz DESTINATION share/man/man1 ${_desktop})
install(FILES ${_packaging}/lintian-overrides DESTINATION share/lintian/overrides
        RENAME ${STYLE_TARNEL_PACKAGE_NAME} ${_desktop})
install(FILES ${_packaging}/copyright ${_made}/changelog.gz
        DESTINATION share/doc/${STYLE_TARNEL_PACKAGE_NAME} ${_desktop})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${STYLE_TARNEL_PACKAGE_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Style Tarnel")
set(CPACK_PACKAGE_CONTACT "Style Tarnel <maintainers@style-tarnel.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reformat source files in place, by example")
set(CPACK_PACKAGE_DESCRIPTION
"Style Tarnel reformats C and C++ source files in place, by example. A style
shows, for each structure of the language (an if, a function definition, a
class, a long call), a piece of code written the way that structure should
look. Pick a style, or edit its examples, and revise whole trees; files that
have not changed since their last revision are skipped.

The same program is a window and a command-line tool for continuous
integration, editors and commit hooks. Languages are plugins built on the
clang-format library; C and C++ are shipped with their styles.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://style-tarnel.org")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_STRIP_FILES ON)
# The files package_files makes, made first whenever cpack runs (also through the target package).
set(CPACK_INSTALL_COMMANDS "${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target package_files")
# Two installs into one package: the bundle under /usr/lib/style-tarnel, the desktop files under /usr.
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${PROJECT_BINARY_DIR};${PROJECT_NAME};Unspecified;/usr/lib/${STYLE_TARNEL_PACKAGE_NAME}"
  "${PROJECT_BINARY_DIR};${PROJECT_NAME};desktop;/usr")
include(CPack)
