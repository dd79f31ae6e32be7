# Where the files of an installed Tarnivel lie, and the packages that CPack makes of them: a Debian package, and an
# archive with all libraries, which runs from any folder. The program finds its files from its own place.
include(GNUInstallDirs)

set(application fr.kavesti.tarnivel)
install(TARGETS tarnivel tarnivel-order RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} BUNDLE DESTINATION .)
if(APPLE)
  set(CPACK_GENERATOR DragNDrop)
  include(CPack)
  return()
endif()
foreach(program tarnivel tarnivel-order)
  # Where the archive has its libraries. This kind of path holds for the libraries of libraries too.
  set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/../lib/tarnivel")
  target_link_options(${program} PRIVATE -Wl,--disable-new-dtags)
endforeach()
install(TARGETS tarnivel_sound LIBRARY DESTINATION lib/tarnivel/modules)
install(DIRECTORY ${PROJECT_BINARY_DIR}/resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/tarnivel
  FILES_MATCHING PATTERN *.wav PATTERN *.ttf PATTERN *.png PATTERN *.qm PATTERN CMakeFiles EXCLUDE)
install(FILES packaging/${application}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/${application}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/icon/tarnivel.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
  RENAME ${application}.svg)
foreach(size 16 24 32 48 64 128 256)
  install(FILES resources/icon/tarnivel_${size}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME ${application}.png)
endforeach()
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

# Compressed as the policy of Debian wants it, without the time of the build.
function(install_compressed source name destination)
  set(compressed ${PROJECT_BINARY_DIR}/packaging/${name}.gz)
  add_custom_command(
    OUTPUT ${compressed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging
    COMMAND sh -c "gzip -9n < \"$1\" > \"$2\"" gzip ${PROJECT_SOURCE_DIR}/${source} ${compressed}
    DEPENDS ${source}
    VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${destination})
endfunction()
foreach(page tarnivel.1 tarnivel-order.1)
  install_compressed(packaging/${page} ${page} ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
install_compressed(packaging/changelog changelog ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/Standalone.cmake)
find_library(CPACK_STANDALONE_TLS libssl.so.3)
set(CPACK_STANDALONE_PLUGINS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS})
set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_INSTALL_COMMANDS "${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR}")
set(CPACK_PACKAGE_NAME tarnivel)
set(CPACK_PACKAGE_VENDOR "The Tarnivel authors")
set(CPACK_PACKAGE_CONTACT "The Tarnivel authors <contact@tarnivel.example>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://tarnivel.example/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "put the scenery_packs.ini of X-Plane in the order of a model")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Tarnivel puts the lines of scenery_packs.ini in the order of a model, which is
a file or an address. It keeps which packs are enabled and disabled, shows what
has no partner, checks the result against the folder Custom Scenery, and saves
it after archiving the old file.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
include(CPack)
