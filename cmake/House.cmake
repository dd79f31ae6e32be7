# How the rooms of the house are built: one static library a folder, and the link line is the rule of who may see whom.

add_library(house_flags INTERFACE)
target_include_directories(house_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(house_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror
  $<$<NOT:$<BOOL:${CMAKE_UNITY_BUILD}>>:-Wshadow>) # sources read as one see the names of their neighbours
# g++ 12 sees an overlap where a literal stands in front of a string in a sum, and there is none.
target_compile_options(house_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# What Debian builds its own packages with. Fortified functions want an optimised build.
target_compile_options(house_flags INTERFACE -fstack-protector-strong -fstack-clash-protection -Wformat
  -Werror=format-security $<$<AND:$<CONFIG:Release>,$<NOT:$<BOOL:${TARNIVEL_SANITIZE}>>>:-D_FORTIFY_SOURCE=2>)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT APPLE)
  target_link_options(house_flags INTERFACE -Wl,-z,relro,-z,now)
endif()
if(TARNIVEL_SANITIZE)
  target_compile_options(house_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # An empty optional or an index too large.
  target_compile_definitions(house_flags INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(house_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TARNIVEL_FUZZ)
  target_compile_options(house_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# house_library(name SOURCES ... [LINKS rooms...] [QT modules...])
#
# QT modules are linked privately: their headers exist for this room alone.
function(house_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;QT" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC house_flags ${ARG_LINKS})
  if(ARG_QT)
    target_link_libraries(${name} PRIVATE ${ARG_QT})
    target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
  endif()
endfunction()

# house_bundle(name): makes the program a macOS bundle, with the resources, the icon and the module for sounds inside.
function(house_bundle name)
  # The name of the executable is filled in by CMake itself, later.
  configure_file(${PROJECT_SOURCE_DIR}/cmake/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)
  set_target_properties(${name} PROPERTIES
    MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST ${PROJECT_BINARY_DIR}/Info.plist)
  set(resources $<TARGET_BUNDLE_CONTENT_DIR:${name}>/Resources)
  add_custom_command(TARGET ${name} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_BINARY_DIR}/resources ${resources}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${resources}/CMakeFiles ${resources}/cmake_install.cmake ${resources}/CTestTestfile.cmake
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/resources/icon/tarnivel.icns ${resources}
    COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:tarnivel_sound> $<TARGET_FILE_DIR:${name}>
    VERBATIM)
endfunction()

# house_program(name SOURCES ... LINKS rooms...): a program, at the top of the build folder, where all find the resources.
function(house_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS})
  add_dependencies(${name} resources)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
endfunction()

# house_test(name SOURCES ... LINKS rooms and modules of Qt...): a GoogleTest program, each of its tests known to ctest.
function(house_test name)
  house_program(${name} ${ARGN} GTest::gtest_main)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
