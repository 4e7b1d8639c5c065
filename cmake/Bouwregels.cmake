# What every target of the project shares: warnings, sanitizers, precompiled headers, and the two
# functions with which a folder declares its library and its test program. A folder's link list is
# its list of allowed includes (tools/huisregels reads the include lines against the same order).

add_library(lb77_streng INTERFACE)
if(MSVC)
  target_compile_options(lb77_streng INTERFACE /W4 /WX /utf-8)
else()
  target_compile_options(lb77_streng INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
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
if(LB77_SANITIZE)
  target_compile_options(lb77_streng INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lb77_streng INTERFACE -fsanitize=address,undefined)
endif()

set(LB77_VOORAF
  <algorithm> <array> <cstddef> <cstdint> <filesystem> <fstream> <functional> <map> <memory>
  <optional> <span> <string> <string_view> <utility> <vector>)

# lb77_map(NAAM BRONNEN a.cpp b.cpp GEBRUIKT text forms)
function(lb77_map naam)
  cmake_parse_arguments(M "" "" "BRONNEN;GEBRUIKT" ${ARGN})
  add_library(lb77_${naam} STATIC ${M_BRONNEN})
  target_include_directories(lb77_${naam} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  list(TRANSFORM M_GEBRUIKT PREPEND lb77_)
  target_link_libraries(lb77_${naam} PUBLIC ${M_GEBRUIKT} PRIVATE lb77_streng)
  if(LB77_PCH)
    target_precompile_headers(lb77_${naam} PRIVATE ${LB77_VOORAF})
  endif()
endfunction()

# lb77_toets(NAAM BRONNEN a.cpp GEBRUIKT text script): one test program a folder
function(lb77_toets naam)
  cmake_parse_arguments(M "" "" "BRONNEN;GEBRUIKT" ${ARGN})
  add_executable(lb77-${naam}-tests ${M_BRONNEN})
  list(TRANSFORM M_GEBRUIKT PREPEND lb77_)
  target_include_directories(lb77-${naam}-tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(lb77-${naam}-tests PRIVATE
    LB77_BRONMAP="${PROJECT_SOURCE_DIR}" LB77_BOUWMAP="${PROJECT_BINARY_DIR}")
  target_link_libraries(lb77-${naam}-tests PRIVATE
    lb77_steun ${M_GEBRUIKT} GTest::gtest GTest::gmock GTest::gtest_main lb77_streng)
  if(LB77_PCH)
    target_precompile_headers(lb77-${naam}-tests PRIVATE ${LB77_VOORAF} <gtest/gtest.h>)
  endif()
  add_test(NAME ${naam} COMMAND lb77-${naam}-tests)
  set_property(GLOBAL APPEND PROPERTY LB77_TOETSEN ${naam})
  set_tests_properties(${naam} PROPERTIES TIMEOUT 300 FIXTURES_REQUIRED getoond ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp")
endfunction()
