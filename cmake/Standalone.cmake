# Makes the archive anew when CPack has made it: puts all that it needs from this machine into lib/tarnivel, and the licences
# of that beside. What the program loads while it runs is named here, and the libraries of all of it are found.
if(NOT CPACK_GENERATOR STREQUAL "TGZ")
  return()
endif()
set(plugins
  platforms/libqxcb.so platforms/libqwayland-generic.so
  wayland-shell-integration/libxdg-shell.so
  # The frames of windows, which Qt draws only where it has this way to the driver.
  wayland-decoration-client/libbradient.so wayland-graphics-integration-client/libqt-plugin-wayland-egl.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so platforminputcontexts/libibusplatforminputcontextplugin.so
  tls/libqopensslbackend.so)
# What the desktop has, and must have in its own version, is left out: glibc, the graphics driver with what leads to it and
# what it is built on, the connection to the screen. What only speaks over that connection comes along, as does libOpenGL:
# many desktops lack some of it.
set(ofDesktop
  "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|util)\\.so" "^lib(stdc\\+\\+|gcc_s)\\.so"
  "^lib(GL|EGL|GLX|GLdispatch|gbm|drm)\\.so" "^libxcb(-glx|-randr|-shm|-sync|-xfixes)?\\.so"
  "^lib(X11|X11-xcb|Xau|Xdmcp|Xext|SM|ICE)\\.so" "^libwayland-")

set(root "${CPACK_TEMPORARY_DIRECTORY}")
set(libraries "${root}/lib/tarnivel")
set(licences "${root}/share/doc/tarnivel/licences")

function(take source target)
  if(NOT EXISTS "${source}")
    message(FATAL_ERROR "The archive wants ${source}; tools/packages.sh names the packages that it is made of")
  endif()
  get_filename_component(folder "${target}" DIRECTORY)
  file(MAKE_DIRECTORY "${folder}")
  file(COPY_FILE "${source}" "${target}")
  # A library finds its own by the program's path, which a path of its own would switch off.
  file(RPATH_REMOVE FILE "${target}")
  set(taken ${taken} "${source}" PARENT_SCOPE)
endfunction()

foreach(plugin IN LISTS plugins)
  take("${CPACK_STANDALONE_PLUGINS}/${plugin}" "${libraries}/plugins/${plugin}")
endforeach()
take("${CPACK_STANDALONE_TLS}" "${libraries}/libssl.so.3")
file(WRITE "${root}/bin/qt.conf" "[Paths]\nPrefix = ..\nPlugins = lib/tarnivel/plugins\n")

find_program(CMAKE_OBJDUMP objdump REQUIRED)
file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES "${root}/bin/tarnivel" "${root}/bin/tarnivel-order"
  LIBRARIES "${libraries}/modules/libtarnivel_sound.so" ${taken}
  PRE_EXCLUDE_REGEXES ${ofDesktop}
  RESOLVED_DEPENDENCIES_VAR found)
foreach(library IN LISTS found)
  get_filename_component(name "${library}" NAME)
  take("${library}" "${libraries}/${name}")
endforeach()

# dpkg knows a file by its old path or by that of a system whose /lib is in /usr.
list(LENGTH taken files)
list(TRANSFORM taken REPLACE "^(/usr)?(/.*)" "\\2;/usr\\2")
execute_process(COMMAND dpkg-query --search ${taken} OUTPUT_VARIABLE owners ERROR_QUIET)
string(REGEX MATCHALL "[^\n]+: /" owners "${owners}")
list(TRANSFORM owners REPLACE ": /$" "")
list(LENGTH owners known)
if(NOT known EQUAL files)
  message(FATAL_ERROR "dpkg knows the packages, and so the licences, of ${known} files; the archive takes ${files}")
endif()
list(REMOVE_DUPLICATES owners)
list(SORT owners)
file(COPY /usr/share/common-licenses DESTINATION "${licences}")
foreach(owner IN LISTS owners)
  string(REGEX REPLACE ":.*" "" package "${owner}")
  file(COPY_FILE "/usr/share/doc/${package}/copyright" "${licences}/${package}")
endforeach()
execute_process(COMMAND dpkg-query --show ${owners} OUTPUT_FILE "${licences}/packages" COMMAND_ERROR_IS_FATAL ANY)

# In the order of the names: that of CPack is another on another disk.
set(time "$ENV{SOURCE_DATE_EPOCH}")
if(time STREQUAL "")
  string(TIMESTAMP time "%s" UTC)
endif()
get_filename_component(name "${root}" NAME)
execute_process(
  COMMAND tar --create --sort=name --owner=0 --group=0 --numeric-owner --mtime=@${time} --directory "${root}/.." "${name}"
  COMMAND gzip -n
  OUTPUT_FILE "${CPACK_PACKAGE_FILES}" COMMAND_ERROR_IS_FATAL ANY)
