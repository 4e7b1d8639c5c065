# What every target of the project shares: warnings, sanitizers, precompiled headers, and the two
# functions with which a folder declares its library and its test program. A folder's link list is
# its list of allowed includes (tools/huisregels reads the include lines against the same order).

# A compiler cache, when there is one: paths below the project count as relative, so that a second
# clone finds what the first one compiled.
find_program(LB77_CCACHE ccache)
if(LB77_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    ${LB77_CCACHE})
endif()
# A linker that takes a tenth of the time.
find_program(LB77_MOLD mold)
if(LB77_MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
  add_link_options(-fuse-ld=mold)
endif()

# Header and source libraries of the Debian packages serve another system too; none of the paths of
# this one may come along.
if(CMAKE_CROSSCOMPILING)
  add_library(CLI11::CLI11 INTERFACE IMPORTED)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/koppen)
  file(CREATE_LINK /usr/include/CLI ${CMAKE_BINARY_DIR}/koppen/CLI SYMBOLIC)
  target_include_directories(CLI11::CLI11 SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/koppen)
  if(LB77_TESTS)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  endif()
endif()

add_library(lb77_streng INTERFACE)
if(MSVC)
  target_compile_options(lb77_streng INTERFACE /W4 /WX /utf-8)
else()
  # -fPIC as Qt asks it: all share one set of precompiled headers.
  target_compile_options(lb77_streng INTERFACE -fPIC
    -Wall -Wextra -Wpedantic -Wconversion -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # False alarms of g++ 12 inside std::string when it optimises: "text" + std::move(string).
    target_compile_options(lb77_streng INTERFACE
      -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
  endif()
endif()
if(LB77_FUZZ)
  # Counts the branches that an input reaches; the fuzz programs alone bring libFuzzer's main.
  target_compile_options(lb77_streng INTERFACE -fsanitize=fuzzer-no-link)
endif()
# The code under test is instrumented; the tests themselves are compiled as fast as can be.
add_library(lb77_gewogen INTERFACE)
target_link_libraries(lb77_gewogen INTERFACE lb77_streng)
add_library(lb77_toetsend INTERFACE)
target_link_libraries(lb77_toetsend INTERFACE lb77_streng)
if(LB77_SANITIZE)
  target_compile_options(lb77_gewogen INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lb77_gewogen INTERFACE -fsanitize=address,undefined)
  target_compile_options(lb77_toetsend INTERFACE -O0 -g0)
  target_link_options(lb77_toetsend INTERFACE -fsanitize=address,undefined)
endif()

set(LB77_VOORAF
  <algorithm> <array> <cstddef> <cstdint> <filesystem> <fstream> <functional> <map> <memory>
  <optional> <span> <string> <string_view> <utility> <vector>)

# One set of precompiled headers for all folders, one for all tests: `naam` is the target that they
# take it from.
function(lb77_vooraf naam)
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${naam}.cpp "")
  add_library(${naam} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${naam}.cpp)
  cmake_parse_arguments(V "" "" "MET;GEBRUIKT" ${ARGN})
  target_link_libraries(${naam} PRIVATE ${V_GEBRUIKT})
  target_precompile_headers(${naam} PRIVATE ${V_MET})
endfunction()

if(LB77_PCH)
  lb77_vooraf(lb77_vooraf_map MET ${LB77_VOORAF} GEBRUIKT lb77_gewogen)
endif()
if(LB77_PCH AND LB77_TESTS)
  if(NOT TARGET GTest::gtest)
    find_package(GTest REQUIRED)
  endif()
  lb77_vooraf(lb77_vooraf_toets MET ${LB77_VOORAF} <gtest/gtest.h> <gmock/gmock.h>
    GEBRUIKT lb77_toetsend GTest::gtest GTest::gmock)
endif()

# lb77_map(NAAM BRONNEN a.cpp b.cpp GEBRUIKT text forms)
function(lb77_map naam)
  cmake_parse_arguments(M "" "" "BRONNEN;GEBRUIKT" ${ARGN})
  add_library(lb77_${naam} STATIC ${M_BRONNEN})
  target_include_directories(lb77_${naam} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  list(TRANSFORM M_GEBRUIKT PREPEND lb77_)
  target_link_libraries(lb77_${naam} PUBLIC ${M_GEBRUIKT} PRIVATE lb77_gewogen)
  if(LB77_PCH)
    target_precompile_headers(lb77_${naam} REUSE_FROM lb77_vooraf_map)
  endif()
endfunction()

# lb77_toets(NAAM BRONNEN a.cpp POSIX b.cpp WINDOWS c.cpp GEBRUIKT text script): one test program a
# folder. Those behind POSIX and WINDOWS ask of the system what only such a system has.
function(lb77_toets naam)
  cmake_parse_arguments(M "" "" "BRONNEN;POSIX;WINDOWS;GEBRUIKT" ${ARGN})
  if(UNIX)
    list(APPEND M_BRONNEN ${M_POSIX})
  elseif(WIN32)
    list(APPEND M_BRONNEN ${M_WINDOWS})
  endif()
  add_executable(lb77-${naam}-tests ${M_BRONNEN})
  list(TRANSFORM M_GEBRUIKT PREPEND lb77_)
  target_include_directories(lb77-${naam}-tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(lb77-${naam}-tests PRIVATE
    lb77_steun ${M_GEBRUIKT} GTest::gtest GTest::gmock GTest::gtest_main lb77_toetsend)
  if(LB77_PCH)
    target_precompile_headers(lb77-${naam}-tests REUSE_FROM lb77_vooraf_toets)
  endif()
  add_test(NAME ${naam} COMMAND lb77-${naam}-tests)
  set_property(GLOBAL APPEND PROPERTY LB77_TOETSEN ${naam})
  set(tijd 300)
  if(CMAKE_CROSSCOMPILING)
    set(tijd 900)  # under an emulator
  endif()
  set_tests_properties(${naam} PROPERTIES TIMEOUT ${tijd} FIXTURES_REQUIRED getoond ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp")
endfunction()
