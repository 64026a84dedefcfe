# How the house is built: one folder under src/ is one static library ("couche"), which sees the
# headers of the layers it links and no others.

find_program(CCACHE ccache)
if(CCACHE)
  # The precompiled header makes ccache look at time stamps unless it is told not to.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

add_library(calpenne_options INTERFACE)
target_compile_options(calpenne_options INTERFACE
  -Wall -Wextra -Wconversion -fno-omit-frame-pointer
  # What g++ 12 sees, once it has inlined, in every optional of a Qt value and every joined QString.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overread>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${CCACHE}>:$<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>>
  $<$<BOOL:${CALPENNE_WERROR}>:-Werror>)
target_compile_definitions(calpenne_options INTERFACE QT_NO_CAST_TO_ASCII QT_USE_QSTRINGBUILDER)
if(CALPENNE_FUZZ)
  target_compile_options(calpenne_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CALPENNE_ASAN)
  target_compile_options(calpenne_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_link_options(calpenne_options INTERFACE -fsanitize=address,undefined)
endif()

# calpenne_couche(NOM [LIENS couche...] [PRIVE bibliotheque...])
# The layer NOM of src/NOM. Its public include root holds nothing but a link to its own folder, so
# that "#include "pupils/eleve.h"" compiles only where pupils is linked.
function(calpenne_couche nom)
  cmake_parse_arguments(C "" "" "LIENS;PRIVE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
  if(NOT sources)
    add_library(${nom} INTERFACE)
    target_link_libraries(${nom} INTERFACE ${C_LIENS})
    return()
  endif()
  add_library(${nom} STATIC ${sources})
  set(racine ${CMAKE_BINARY_DIR}/couches/${nom})
  file(MAKE_DIRECTORY ${racine})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${racine}/${nom} SYMBOLIC)
  target_include_directories(${nom} PUBLIC ${racine})
  target_link_libraries(${nom} PUBLIC ${C_LIENS} PRIVATE calpenne_options ${C_PRIVE})
  if(nom STREQUAL "core")
    target_precompile_headers(core PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompile.h)
  elseif(NOT nom STREQUAL "ui")
    target_precompile_headers(${nom} REUSE_FROM core)
  endif()
endfunction()

# calpenne_programme(NOM SOURCES fichier... LIENS couche...)
function(calpenne_programme nom)
  cmake_parse_arguments(P "" "" "SOURCES;LIENS" ${ARGN})
  add_executable(${nom} ${P_SOURCES})
  target_link_libraries(${nom} PRIVATE calpenne_options ${P_LIENS})
endfunction()

# calpenne_test(COUCHE [LIENS bibliotheque...])
# The tests of a folder link that folder and what stands before it, nothing above.
function(calpenne_test nom)
  cmake_parse_arguments(T "" "" "LIENS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp)
  add_executable(test_${nom} ${sources})
  target_link_libraries(test_${nom} PRIVATE calpenne_options ${T_LIENS} GTest::gtest)
  target_include_directories(test_${nom} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_precompile_headers(test_${nom} REUSE_FROM entetes_tests)
  gtest_discover_tests(test_${nom} TEST_PREFIX ${nom}. DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300)
endfunction()
